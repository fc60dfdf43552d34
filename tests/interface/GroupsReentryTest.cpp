// The terminal handles messages while the symbol-data service works, and calls the library from
// there: groups are loaded, removed, pushed and queried within each call of the service.
#include <functional>
#include <memory>

#include "tests/interface/GroupsTest.h"

namespace {

using NamedOperation = std::pair<std::string, std::function<void()>>;

class GroupsReentryTest : public GroupsTest {
protected:
  void SetUp() override {
    manager.UpdateCloudSymbolList("PICK", "picked", "1101.TW");
    ASSERT_EQ(StartWithoutTables(), 1);
  }

  static void AtCall(const std::string& operation, int n, const std::function<void()>& run) {
    const auto left = std::make_shared<int>(n);
    standin::OnCall(operation, [left, run] {
      if (--*left == 0)
        run();
    });
  }

  // Walks through all types, sub-groups and members.
  void AskForEverything() {
    for (const int type : {1, 2, 7, 50, 101, 201}) {
      Shape(type);
      for (const char* id : {"TSE", "CHIP", "OTC", "WAFER", "ETF", "AI", "PICK", "VORNG0101"}) {
        void* const handle = Handle(type, id);
        NameOf(handle);
        MembersOf(handle);
        manager.GetGroupSymbolCount(handle);
        manager.GetGroupSymbolCount(type, id);
      }
    }
    manager.FindSymoblInGroupList(2, "AI", "2330");
  }

  // The terminal's operations within a call.
  std::vector<NamedOperation> Calls() {
    return {
        {"loads all", [this] { manager.LoadGroupList(); }},
        {"loads 1", [this] { manager.LoadGroupList(1); }},
        {"loads 201", [this] { manager.LoadGroupList(201); }},
        {"refreshes the cloud", [this] { manager.RefreshCloudeSymbol(); }},
        {"adds 1 again", [this] { manager.AddNewGroup(1); }},
        {"adds 50", [this] { manager.AddNewGroup(50); }},
        {"removes 1", [this] { manager.RemoveGroupList(1); }},
        {"removes 101", [this] { manager.RemoveGroupList(101); }},
        {"clears", [this] { manager.ClearGroupList(); }},
        {"pushes groups",
         [this] {
           manager.AddGroup({Set(1, "TSE", "t"), Set(1, "ETF", "e")});
         }},
        {"adds groups",
         [this] {
           manager.AddGroup({Set(1, "NEW", "n", {{"NEW1", "n1"}})});
         }},
        {"removes groups",
         [this] {
           manager.RemoveGroup({Set(1, "TSE", ""), Set(1, "ETF", ""), Set(201, "PICK", "")});
         }},
        {"pushes sub-groups",
         [this] {
           manager.UpdateSubGroup({Set(1, "TSE", "", {{"CHIP", "c"}})});
         }},
        {"removes sub-groups",
         [this] {
           manager.RemoveSubGroup({Set(1, "TSE", "", {{"CHIP", ""}, {"CEM", ""}})});
         }},
        {"names groups", [this] { manager.UpdateGroupName({Set(1, "ETF", "named")}); }},
        {"sets cloud lists",
         [this] {
           for (int i = 0; i < 50; ++i)
             manager.UpdateCloudSymbolList(std::to_string(i).c_str(), "filler", "2330.TW");
           manager.UpdateCloudSymbolList("PICK", "picked anew", "2454.TW");
         }},
        {"starts again", [this] { StartWithoutTables(); }},
        {"asks for everything", [this] { AskForEverything(); }},
    };
  }

  // Runs `work` once for each pair of a call that it makes to the service operation and an
  // operation of Calls(), which runs within that call.
  void ReenterAtEach(const std::string& operation, const std::function<void()>& work,
                     const std::function<void()>& check) {
    manager.LoadGroupList();
    standin::ClearCalls();
    work();
    const int count = standin::CountCalls(operation);
    ASSERT_GT(count, 0) << operation;
    for (const NamedOperation& call : Calls()) {
      for (int n = 1; n <= count; ++n) {
        SCOPED_TRACE("in call " + std::to_string(n) + " of " + operation + " the terminal " +
                     call.first);
        manager.LoadGroupList();
        const int arrays = standin::OutstandingArrays();
        AtCall(operation, n, call.second);
        work();
        standin::OnCall(operation, nullptr);
        EXPECT_EQ(standin::OutstandingArrays(), arrays);
        check();
        AskForEverything();
      }
    }
  }
};

TEST_F(GroupsReentryTest, AFullLoadIsWholeWhateverTheTerminalDoesMeanwhile) {
  const auto whole = [this] {
    EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF");
    EXPECT_EQ(Shape(2), "CTW(AI a2)");
    EXPECT_EQ(Shape(201), "VORNG01(VORNG0101 VORNG0102 VORNG0103) PICK");
    EXPECT_EQ(manager.GetGroupIdx(21), 20);
    EXPECT_EQ(manager.GetGroupIdx(50), -1);
    EXPECT_EQ(manager.GetGroupIdx(101), 21);
    EXPECT_EQ(manager.GetGroupIdx(201), 22);
  };
  for (const char* operation : {"VLGetSubGroup", "VLGetSymbolInfos"})
    ReenterAtEach(
        operation, [this] { EXPECT_EQ(manager.LoadGroupList(), 1); }, whole);
}

TEST_F(GroupsReentryTest, LoadingOneTypeSurvivesWhateverTheTerminalDoesMeanwhile) {
  const auto nothing = [] {};
  ReenterAtEach(
      "VLGetSubGroup", [this] { manager.LoadGroupList(1); }, nothing);
  ReenterAtEach(
      "VLGetSubGroup", [this] { manager.LoadGroupList(201); }, nothing);
  ReenterAtEach(
      "VLGetSymbolInfos", [this] { manager.LoadGroupList(201); }, nothing);
  ReenterAtEach(
      "VLGetSubGroup", [this] { manager.AddNewGroup(60); }, nothing);
  ReenterAtEach(
      "VLGetSubGroup", [this] { manager.RefreshCloudeSymbol(); }, nothing);
}

TEST_F(GroupsReentryTest, AReloadedTypeIsThatOfTheServiceWhateverWasPushedMeanwhile) {
  AtCall("VLGetSubGroup", 2, [this] { manager.AddGroup({Set(1, "NEW", "new")}); });
  EXPECT_EQ(manager.LoadGroupList(1), 1);
  EXPECT_EQ(Shape(1), "TSE(CHIP CEM) OTC(WAFER) ETF");
}

TEST_F(GroupsReentryTest, ATypeThatIsRemovedWhileItIsReloadedStaysRemoved) {
  AtCall("VLGetSubGroup", 2, [this] { EXPECT_EQ(manager.RemoveGroupList(1), 1); });
  EXPECT_EQ(manager.LoadGroupList(1), 0);
  EXPECT_EQ(manager.GetGroupIdx(1), -1);
}

TEST_F(GroupsReentryTest, MembersMayBeAskedForWhileTheirGroupIsRemoved) {
  const auto nothing = [] {};
  CString text;
  SymbolInfo record = {};
  const std::vector<NamedOperation> questions = {
      {"ids", [&] { manager.GetGroupListIDs(Handle(1, "ETF"), text); }},
      {"count", [&] { manager.GetGroupSymbolCount(Handle(1, "CHIP")); }},
      {"record", [&] { manager.GetGroupSymbolInfo(Handle(1, "CHIP"), 0, &record); }},
      {"count by id", [&] { manager.GetGroupSymbolCount(1, "CHIP"); }},
      {"record by id", [&] { manager.GetGroupSymbolInfo(1, "CHIP", 0, &record); }},
      {"text", [&] { manager.FindSymoblInGroupList(2, "AI", "2330"); }},
  };
  for (const NamedOperation& question : questions) {
    SCOPED_TRACE(question.first);
    ReenterAtEach("VLGetGroupSymbol", question.second, nothing);
  }
  ReenterAtEach(
      "VLGetSymbolInfos",
      [this] {
        manager.UpdateCloudSymbolList("WAFER", "wafer", "2330.TW");
        manager.UpdateCloudGroup(Handle(1, "WAFER"));
      },
      nothing);
}

TEST_F(GroupsReentryTest, MembersThatArriveTwiceAreThereOnce) {
  void* const chip = Handle(1, "CHIP");
  AtCall("VLGetGroupSymbol", 1, [&] { EXPECT_EQ(manager.GetGroupSymbolCount(chip), 2); });
  EXPECT_EQ(manager.GetGroupSymbolCount(chip), 2);
  EXPECT_EQ(MembersOf(chip), "2330.TW,2454.TW");
}

// Symptom: the service's answer, requested before, replaced the cloud list's members.
TEST_F(GroupsReentryTest, MembersOfACloudListThatComeMeanwhileStay) {
  void* const chip = Handle(1, "CHIP");
  manager.UpdateCloudSymbolList("CHIP", "mine", "1101.TW");
  AtCall("VLGetGroupSymbol", 1, [&] { manager.UpdateCloudGroup(chip); });
  EXPECT_EQ(MembersOf(chip), "1101.TW");
  EXPECT_EQ(NameOf(chip), "mine");
}

} // namespace
