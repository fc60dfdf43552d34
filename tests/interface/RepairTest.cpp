// Lists back from files that do not load.
#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class RepairTest : public EditTest {
protected:
  static std::string File(const std::string& lists, const std::string& index = "0") {
    return std::string("<?xml version='1.0' encoding='") +
           (IsTraditionChinese() ? "big5" : "gb2312") + "' ?>\n<Result>\n<SymbolList DefaultIdx='" +
           index + "'>\n" + lists + "</SymbolList>\n</Result>";
  }
  static std::string List(const std::string& id, const std::string& name,
                          const std::string& symbols = "2330.TW,2317.TW") {
    return "\t<List ID='" + id + "' Name='" + name + "' Value='" + symbols + "' Flag='0'/>\n";
  }

  void StartOn(const std::string& bytes) {
    WriteWorking(bytes);
    ASSERT_EQ(StartWithTables(), 1);
    told = standin::Notifications().size();
  }
  void ExpectRepair(int whole, int mended, int lost) {
    TQRepairCounts counts{-1, -1, -1};
    EXPECT_EQ(manager.RepairSymbolList(counts), whole + mended > 0 ? 1 : 0);
    EXPECT_EQ(counts.whole, whole);
    EXPECT_EQ(counts.mended, mended);
    EXPECT_EQ(counts.lost, lost);
  }

  std::size_t told = 0; // notifications of the start
};

TEST_F(RepairTest, AStrayApostropheCostsNoList) {
  const std::string file = File(List("a", "A") + List("b", "it's") + List("c", "C"), "2");
  StartOn(file);
  ASSERT_EQ(Shape(), "");
  ExpectRepair(2, 1, 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW,2317.TW|b/it's/2330.TW,2317.TW|c/C/2330.TW,2317.TW");
  EXPECT_EQ(DefaultIndex(), 2);
  EXPECT_EQ(Rows("a"), "2330.TW 2317.TW");
  EXPECT_EQ(directory.Names(), std::vector<std::string>{"SymbolList.xml"});
  EXPECT_EQ(ReadWorking(), file) << "nothing is written";
  EXPECT_EQ(standin::Notifications().size(), told);
  EXPECT_EQ(standin::LogLines().back().text, "List file " + directory.Joined("SymbolList.xml") +
                                                 " is repaired: 2 lists whole, 1 mended, 0 lost");
  EXPECT_EQ(standin::LogLines().back().level, 64);
}

TEST_F(RepairTest, TheNextSaveKeepsTheDamagedFile) {
  const std::string whole = File(List("a", "A") + List("b", "B", "1101.TW,2317.TW"));
  const std::string file = whole.substr(0, whole.find("1101.TW,23") + 10);
  StartOn(file);
  ExpectRepair(1, 1, 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW,2317.TW|b/B/1101.TW");
  EXPECT_EQ(manager.HasUnsavedChanges(), 1);
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(directory.Read("SymbolList_Kept.xml"), file);
  EXPECT_EQ(manager.HasUnsavedChanges(), 0);
  EXPECT_EQ(manager.LoadSymbolList(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 2);
}

TEST_F(RepairTest, ASoundFileIsLoadedAndNoCopyIsMadeOfItLater) {
  const std::string file = File(List("a", "A") + List("b", "B", ""), "1");
  StartOn(file);
  manager.ClearSymbolList();
  ExpectRepair(2, 0, 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW,2317.TW|b/B/");
  EXPECT_EQ(DefaultIndex(), 1);
  EXPECT_EQ(manager.SaveSymbolList(), 1);
  EXPECT_EQ(directory.Names(), std::vector<std::string>{"SymbolList.xml"});
}

TEST_F(RepairTest, TheNewestCopyIsTakenWhenTheFileGivesNothing) {
  StartOn(File(""));
  directory.Write("SymbolList_Kept.xml", File(List("old", "Old")));
  directory.Write("SymbolList_Kept1.xml", File(List("new", "it's new")));
  directory.Write("SymbolList_Kept2.xml", "nothing of use");
  ExpectRepair(0, 1, 0);
  EXPECT_EQ(Shape(), "new/it's new/2330.TW,2317.TW");
  for (const std::string& useless : {std::string(), std::string(500, '\0'), std::string("<x/>")}) {
    WriteWorking(useless);
    ExpectRepair(0, 1, 0);
    EXPECT_EQ(Shape(), "new/it's new/2330.TW,2317.TW");
  }
}

TEST_F(RepairTest, WithoutAnyListTheOnesInMemoryStay) {
  StartOn(File(List("a", "A")));
  WriteWorking("nothing of use");
  ExpectRepair(0, 0, 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW,2317.TW");
  CString text;
  EXPECT_EQ(CTQSymbolListMgr::GetLastProblem(text), TQProblemFileMissing);
}

TEST_F(RepairTest, WithoutADirectoryThereIsNothingToRepair) {
  ExpectRepair(0, 0, 0);
  CString text;
  EXPECT_EQ(CTQSymbolListMgr::GetLastProblem(text), TQProblemNoFile);
}

// While symbols are resolved the terminal may work on the lists: it finds those of before.
TEST_F(RepairTest, ATerminalThatSavesMeanwhileFindsTheListsOfBeforeAndCostsNothing) {
  const std::string file = File(List("a", "A") + List("b", "it's"));
  StartOn(File(List("z", "Z")));
  WriteWorking(file);
  int saves = 0;
  standin::OnCall("VLGetSymbolInfos", [&] { saves += manager.SaveSymbolList(); });
  ExpectRepair(1, 1, 0);
  EXPECT_GT(saves, 0);
  EXPECT_EQ(Shape(), "a/A/2330.TW,2317.TW|b/it's/2330.TW,2317.TW");
  EXPECT_EQ(directory.Read("SymbolList_Kept.xml"), file);
}

TEST_F(RepairTest, EachListThatIsNotWholeHasALine) {
  StartOn(File(List("a", "A") + List("b", "it's")));
  ExpectRepair(1, 1, 0);
  bool found = false;
  for (const auto& line : standin::LogLines())
    found = found || (line.level == 64 &&
                      line.text == "List 'it's' at line 5 is mended: an apostrophe that is not "
                                   "written as &apos;");
  EXPECT_TRUE(found);
}

TEST_F(RepairTest, TheLoadStateStaysThatOfTheLoad) {
  StartOn(File(List("b", "it's")));
  ExpectRepair(0, 1, 0);
  int line = 0;
  CString reason;
  EXPECT_EQ(manager.GetLoadState(TQListFileWorking, line, reason), TQLoadDamaged);
}

} // namespace
