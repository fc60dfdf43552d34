// The cloud lists: the map, the lists of kind 8, and the cloud groups that follow the map.
#include <string>

#include "tests/interface/GroupsTest.h"

namespace {

constexpr int kUserLists = 1;
constexpr int kCloudLists = 8;
constexpr int kCloudType = 201;

class CloudLists : public GroupsTest {
protected:
  void SetUp() override {
    ASSERT_EQ(StartWithTables(), 1);
    told_ = standin::Notifications().size();
    logged_ = standin::LogLines().size();
  }

  // "id/name/symbols" of each list of kind 8.
  std::string Shape() {
    std::string shape;
    for (int i = 0; i < manager.GetSymbolListCount(kCloudLists); ++i) {
      CString id;
      CString name;
      CString symbols;
      EXPECT_EQ(manager.GetSymbolListInfo(i, id, name, symbols, kCloudLists), 1);
      shape +=
          (i > 0 ? "|" : "") + std::string(id) + "/" + name.GetString() + "/" + symbols.GetString();
    }
    return shape;
  }
  std::string Cloud() { return std::string(manager.GetCloudeList()); }

  // The notifications since the last call: "41:" or "4:ListNameChange".
  std::string Told() {
    std::string told;
    for (; told_ < standin::Notifications().size(); ++told_) {
      const standin::Notification& one = standin::Notifications()[told_];
      EXPECT_EQ(one.target, "");
      EXPECT_EQ(one.reserved, -1);
      told += (told.empty() ? "" : " ") + std::to_string(one.code) + ":" + one.reason;
    }
    return told;
  }
  bool Logged(const std::string& line) {
    for (std::size_t i = logged_; i < standin::LogLines().size(); ++i) {
      if (standin::LogLines()[i].level == 64 && standin::LogLines()[i].text == line)
        return true;
    }
    return false;
  }

  std::size_t told_ = 0;
  std::size_t logged_ = 0;
};

// --- The map and its text ------------------------------------------------------------------------

TEST_F(CloudLists, EmptyMapIsNothingBetweenTwoTags) {
  EXPECT_EQ(Cloud(), "<Cloud></Cloud>");
}

TEST_F(CloudLists, TextHasOneElementForEachListInTheOrderOfTheirIds) {
  manager.UpdateCloudSymbolList("VORNG0102", "second", "2317.TW");
  manager.UpdateCloudSymbolList("VORNG0101", "first", "2330.TW,2454.TW");
  EXPECT_EQ(Cloud(), "<Cloud>"
                     "<List ID='VORNG0102' Name='second' Value='2317.TW' Flag='0'/>\n"
                     "<List ID='VORNG0101' Name='first' Value='2330.TW,2454.TW' Flag='0'/>\n"
                     "</Cloud>");
}

TEST_F(CloudLists, TextKeepsDoubleByteNamesToTheByte) {
  const std::string name = standin::ToAnsi("许功") + "\xB3\x5C";
  manager.UpdateCloudSymbolList("A", name.c_str(), "");
  EXPECT_EQ(Cloud(), "<Cloud><List ID='A' Name='" + name + "' Value='' Flag='0'/>\n</Cloud>");
}

TEST_F(CloudLists, UpdatingTheMapTouchesNoListAndTellsNobody) {
  manager.UpdateCloudSymbolList("A", "one", "2330.TW");
  EXPECT_EQ(Shape(), "");
  EXPECT_EQ(Told(), "");
  EXPECT_TRUE(Logged("CTQSymbolListMgr::UpdateCloudSymbolList ListName=one, Symbols=2330.TW"));
}

TEST_F(CloudLists, UpdatingTheMapReplacesTheListOfThatId) {
  manager.UpdateCloudSymbolList("A", "one", "2330.TW");
  manager.UpdateCloudSymbolList("A", "two", "2317.TW");
  EXPECT_EQ(Cloud(), "<Cloud><List ID='A' Name='two' Value='2317.TW' Flag='0'/>\n</Cloud>");
}

TEST_F(CloudLists, IdsOfTheMapDifferInLetterCase) {
  manager.UpdateCloudSymbolList("a", "small", "");
  manager.UpdateCloudSymbolList("A", "large", "");
  EXPECT_NE(Cloud().find("small"), std::string::npos);
  EXPECT_NE(Cloud().find("large"), std::string::npos);
}

TEST_F(CloudLists, TheMapAsksTheServiceNothing) {
  standin::ClearCalls();
  manager.UpdateCloudSymbolList("A", "one", "2330.TW");
  manager.GetCloudeList();
  EXPECT_TRUE(standin::Calls().empty());
}

// --- SetCloudeList -------------------------------------------------------------------------------

TEST_F(CloudLists, SettingAListMakesItAListOfKind8) {
  manager.SetCloudeList("A", "one", "2330.TW,2317.TW");
  EXPECT_EQ(Cloud(), "<Cloud><List ID='A' Name='one' Value='2330.TW,2317.TW' Flag='0'/>\n</Cloud>");
  EXPECT_EQ(Shape(), "A/one/2330.TW,2317.TW");
  EXPECT_EQ(manager.GetTQSymbolCount("A", kCloudLists), 2);
  EXPECT_EQ(Told(), "") << "a list that is added is not told";
  EXPECT_TRUE(Logged("CTQSymbolListMgr::SetCloudeList ListName=one, Symbols=2330.TW,2317.TW"));
}

TEST_F(CloudLists, SettingAListAgainGivesItTheNewSymbols) {
  manager.SetCloudeList("A", "one", "2330.TW");
  manager.SetCloudeList("A", "two", "2317.TW");
  EXPECT_EQ(Cloud(), "<Cloud><List ID='A' Name='two' Value='2317.TW' Flag='0'/>\n</Cloud>");
  EXPECT_EQ(Shape(), "A/one/2317.TW") << "the list of kind 8 keeps its name";
  EXPECT_EQ(Told(), "41:");
}

TEST_F(CloudLists, AnEmptyListCanBeSet) {
  manager.SetCloudeList("A", "one", "");
  EXPECT_EQ(Shape(), "A/one/");
}

TEST_F(CloudLists, AListWithoutANameIsInTheMapOnly) {
  manager.SetCloudeList("A", "", "2330.TW");
  EXPECT_EQ(Cloud(), "<Cloud><List ID='A' Name='' Value='2330.TW' Flag='0'/>\n</Cloud>");
  EXPECT_EQ(Shape(), "");
}

TEST_F(CloudLists, ALongIdIsCutInBothForms) {
  const std::string id(40, 'x');
  manager.SetCloudeList(id.c_str(), "one", "2330.TW");
  EXPECT_EQ(Shape(), std::string(36, 'x') + "/one/2330.TW");
  EXPECT_NE(Cloud().find("ID='" + std::string(36, 'x') + "'"), std::string::npos);
}

TEST_F(CloudLists, UserTextIsNoFormatOfTheLog) {
  manager.SetCloudeList("A", "%s%n%d", "2330.TW");
  EXPECT_TRUE(Logged("CTQSymbolListMgr::SetCloudeList ListName=%s%n%d, Symbols=2330.TW"));
}

// --- Lists of kind 8 -----------------------------------------------------------------------------

TEST_F(CloudLists, UpdatingAListThatIsThereAlwaysTells) {
  manager.UpdateCloudSymbolList("A", kCloudType, "one", "2330.TW", 0);
  EXPECT_EQ(Told(), "");
  manager.UpdateCloudSymbolList("a", kCloudType, "two", "2330.TW", 0);
  EXPECT_EQ(Told(), "41:") << "found without regard to letter case, told though nothing changed";
  manager.UpdateCloudSymbolList("A", kCloudType, "two", "", 0);
  EXPECT_EQ(Told(), "41:");
  EXPECT_EQ(Shape(), "A/one/") << "a list that is there may be emptied";
}

TEST_F(CloudLists, AddingRefusesWhatIsNoList) {
  EXPECT_EQ(manager.AddCloudSymbolList("A", "", "2330.TW", 1), 0);
  EXPECT_EQ(manager.AddCloudSymbolList("A", "one", "", 0), 0);
  EXPECT_EQ(manager.AddCloudSymbolList("A'B", "one", "2330.TW", 0), 0);
  EXPECT_EQ(manager.AddCloudSymbolList(std::string(37, 'x').c_str(), "one", "2330.TW", 0), 0);
  EXPECT_EQ(Shape(), "");
  EXPECT_EQ(manager.AddCloudSymbolList("A", "one", "", 1), 1);
  EXPECT_EQ(manager.AddCloudSymbolList("a", "two", "2330.TW", 0), 0) << "taken";
  EXPECT_EQ(Shape(), "A/one/");
  EXPECT_EQ(Told(), "");
}

TEST_F(CloudLists, AnIdThatAUserListHasIsFree) {
  ASSERT_EQ(manager.AddSymbolList("A", 1, "mine", "2330.TW", 1, 0), 1);
  EXPECT_EQ(manager.AddCloudSymbolList("A", "mine", "2317.TW", 0), 1);
  EXPECT_EQ(manager.GetSymbolListCount(kUserLists), 1);
  EXPECT_EQ(Shape(), "A/mine/2317.TW");
}

TEST_F(CloudLists, AddingLeavesEmptyPiecesOut) {
  EXPECT_EQ(manager.AddCloudSymbolList("A", "one", ",2330.TW,,NOBODY.XX,2317.TW,", 0), 1);
  EXPECT_EQ(Shape(), "A/one/2330.TW,NOBODY.XX,2317.TW") << "unknown ids stay";
  EXPECT_EQ(manager.AddCloudSymbolList("B", "two", ",,", 0), 1) << "not empty, but of nothing";
  EXPECT_EQ(manager.GetTQSymbolCount("B", kCloudLists), 0);
}

TEST_F(CloudLists, AListWithoutAnIdGetsANewOne) {
  EXPECT_EQ(manager.AddCloudSymbolList("", "one", "2330.TW", 0), 1);
  EXPECT_EQ(manager.AddCloudSymbolList("", "two", "2330.TW", 0), 1);
  TQSymbolListInfo first = {};
  TQSymbolListInfo second = {};
  ASSERT_EQ(manager.GetTQSymbolListInfo(0, &first, kCloudLists), 1);
  ASSERT_EQ(manager.GetTQSymbolListInfo(1, &second, kCloudLists), 1);
  EXPECT_EQ(std::string(first.ID).size(), 36u);
  EXPECT_STRNE(first.ID, second.ID);
}

TEST_F(CloudLists, ReplacingTakesCopiesAndMovesSymbolsInBoth) {
  manager.AddCloudSymbolList("OLD", "old", "2330.TW", 0);
  CSymbolList moved;
  moved.SetID("A");
  moved.SetName("one");
  moved.Update1("6488.TW,2330.TW"); // 6488 has moved from TW to TE
  CPtrArray lists;
  lists.Add(&moved);
  EXPECT_EQ(manager.SetCloudSymbolList(&lists, kCloudLists), 1);
  EXPECT_EQ(Shape(), "A/one/6488.TE,2330.TW");
  EXPECT_STREQ(moved.GetIDs(), "6488.TE,2330.TW") << "the caller's list too";
  moved.Update1("2317.TW");
  EXPECT_EQ(Shape(), "A/one/6488.TE,2330.TW") << "a copy";
  EXPECT_EQ(Told(), "");
}

TEST_F(CloudLists, ReplacingByTheManagersOwnListsLosesNothing) {
  manager.AddCloudSymbolList("A", "one", "2330.TW", 0);
  manager.AddCloudSymbolList("B", "two", "2317.TW", 0);
  CSymbolList* first = nullptr;
  CSymbolList* second = nullptr;
  ASSERT_EQ(manager.GetSymbolList("A", &first, kCloudLists), 1);
  ASSERT_EQ(manager.GetSymbolList("B", &second, kCloudLists), 1);
  CPtrArray lists;
  lists.Add(second);
  lists.Add(nullptr);
  lists.Add(first);
  EXPECT_EQ(manager.SetCloudSymbolList(&lists, 0), 1);
  EXPECT_EQ(Shape(), "B/two/2317.TW|A/one/2330.TW");
}

TEST_F(CloudLists, ReplacingByNullIsRefused) {
  manager.AddCloudSymbolList("A", "one", "2330.TW", 0);
  EXPECT_EQ(manager.SetCloudSymbolList(nullptr, kCloudLists), 0);
  EXPECT_EQ(Shape(), "A/one/2330.TW");
}

TEST_F(CloudLists, ClearingLeavesTheMap) {
  manager.SetCloudeList("A", "one", "2330.TW");
  manager.ClearCloudSymbolList();
  EXPECT_EQ(Shape(), "");
  EXPECT_NE(Cloud(), "<Cloud></Cloud>");
}

// --- Cloud groups --------------------------------------------------------------------------------

TEST_F(CloudLists, GroupsFollowTheMapWhenTheyAreLoaded) {
  manager.UpdateCloudSymbolList("VORNG0102", "semis", "2330.TW,2454.TW");
  manager.UpdateCloudSymbolList("PICK", "picked", "1101.TW");
  EXPECT_EQ(NameOf(Handle(kCloudType, "PICK")) == "picked", false) << "not before a load";
  EXPECT_EQ(manager.LoadGroupList(kCloudType), 1);
  EXPECT_EQ(NameOf(Handle(kCloudType, "VORNG0102")), "semis");
  EXPECT_EQ(MembersOf(Handle(kCloudType, "VORNG0102")), "2330.TW,2454.TW");
  EXPECT_EQ(NameOf(Handle(kCloudType, "PICK")), "picked");
  EXPECT_EQ(MembersOf(Handle(kCloudType, "PICK")), "1101.TW");
  EXPECT_TRUE(Logged("CCloudeListUtil::DoModifyList ListName=semis, Symbols=2330.TW,2454.TW"));
}

TEST_F(CloudLists, GroupsThatNoListHasKeepWhatTheServiceGave) {
  const std::string before = NameOf(Handle(kCloudType, "PICK"));
  EXPECT_EQ(manager.LoadGroupList(kCloudType), 1);
  EXPECT_EQ(NameOf(Handle(kCloudType, "PICK")), before);
  EXPECT_EQ(MembersOf(Handle(kCloudType, "PICK")), "2317.TW");
}

TEST_F(CloudLists, TheMapsIdsAreComparedWithGroupIdsAsTheyStand) {
  manager.UpdateCloudSymbolList("pick", "picked", "1101.TW");
  manager.LoadGroupList(kCloudType);
  EXPECT_EQ(MembersOf(Handle(kCloudType, "PICK")), "2317.TW");
}

TEST_F(CloudLists, AGroupWithSubGroupsTakesItsNameFromTheDefaultOnes) {
  manager.UpdateCloudSymbolList("VORNG01", "not for a group with sub-groups", "2330.TW");
  manager.LoadGroupList(kCloudType);
  EXPECT_EQ(NameOf(Handle(kCloudType, "VORNG01")),
            standin::ToAnsi(IsTraditionChinese() != 0 ? "雲自選" : "云自选"));
}

TEST_F(CloudLists, OtherGroupTypesDoNotFollowTheMap) {
  manager.UpdateCloudSymbolList("ETF", "mine", "1101.TW");
  manager.LoadGroupList();
  EXPECT_EQ(MembersOf(Handle(1, "ETF")), "0050.TW");
}

TEST_F(CloudLists, AFullLoadRefreshesTheCloudGroups) {
  manager.UpdateCloudSymbolList("PICK", "picked", "1101.TW");
  manager.UpdateGroup(kCloudType, nullptr); // loads all types
  EXPECT_EQ(MembersOf(Handle(kCloudType, "PICK")), "1101.TW");
}

TEST_F(CloudLists, RefreshingAlwaysTells) {
  manager.RefreshCloudeSymbol();
  EXPECT_EQ(Told(), "4:ListNameChange");
  manager.UpdateCloudSymbolList("PICK", "picked", "1101.TW");
  manager.RefreshCloudeSymbol();
  EXPECT_EQ(Told(), "4:ListNameChange");
  EXPECT_EQ(MembersOf(Handle(kCloudType, "PICK")), "1101.TW");
}

TEST_F(CloudLists, RefreshingTellsThoughTheServiceFails) {
  standin::FailAlways("VLGetSubGroup");
  manager.RefreshCloudeSymbol();
  EXPECT_EQ(Told(), "4:ListNameChange");
  EXPECT_EQ(Shape(), "");
  EXPECT_EQ(manager.GetGroupCount(kCloudType, nullptr), 0);
}

TEST_F(CloudLists, OneGroupCanBeUpdatedByItsHandle) {
  manager.UpdateCloudSymbolList("PICK", "picked", "1101.TW");
  void* pick = Handle(kCloudType, "PICK");
  manager.UpdateCloudGroup(pick);
  EXPECT_EQ(NameOf(pick), "picked");
  EXPECT_EQ(MembersOf(pick), "1101.TW");
  GroupInfo info = {};
  EXPECT_EQ(manager.GetGroupInfo(kCloudType, nullptr, 1, &info), 1);
  EXPECT_STREQ(info.szName, "picked") << "the record has the name as well";
  EXPECT_TRUE(Logged("CTQSymbolListMgr::UpdateCloudGroup ListName=picked, Symbols=1101.TW"));
}

TEST_F(CloudLists, AHandleOfAGroupWithSubGroupsIsLeftAlone) {
  manager.UpdateCloudSymbolList("VORNG01", "mine", "1101.TW");
  void* group = Handle(kCloudType, "VORNG01");
  const std::string before = NameOf(group);
  manager.UpdateCloudGroup(group);
  manager.UpdateCloudGroup(nullptr);
  EXPECT_EQ(NameOf(group), before);
}

TEST_F(CloudLists, AGroupsNameIsCutToItsRecord) {
  const std::string name(60, 'n');
  manager.UpdateCloudSymbolList("PICK", name.c_str(), "1101.TW");
  manager.LoadGroupList(kCloudType);
  EXPECT_EQ(NameOf(Handle(kCloudType, "PICK")), std::string(48, 'n'));
}

TEST_F(CloudLists, EveryFailingCallOfARefreshLeavesARefreshThatWorks) {
  manager.UpdateCloudSymbolList("PICK", "picked", "1101.TW,2330.TW");
  standin::ClearCalls();
  manager.RefreshCloudeSymbol();
  const int calls = static_cast<int>(standin::Calls().size());
  ASSERT_GT(calls, 2);
  for (int n = 1; n <= calls; ++n) {
    standin::FailCall("*", n);
    manager.RefreshCloudeSymbol();
    standin::FailCall("*", 0);
    manager.RefreshCloudeSymbol();
    EXPECT_EQ(MembersOf(Handle(kCloudType, "PICK")), "1101.TW,2330.TW") << n;
    EXPECT_EQ(manager.GetGroupSymbolCount(Handle(kCloudType, "PICK")), 2) << n;
  }
}

} // namespace
