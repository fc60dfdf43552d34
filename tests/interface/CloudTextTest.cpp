// Cloud lists in detail: the map, the lists of kind 8, and the groups that follow the map.
#include "tests/interface/GroupsTest.h"

namespace {

class CloudTextTest : public GroupsTest {
protected:
  void SetUp() override {
    ASSERT_EQ(StartWithTables(), 1);
    Forget();
  }
  void Forget() {
    standin::ClearCalls();
    told_ = standin::Notifications().size();
    logged_ = standin::LogLines().size();
  }
  std::string Told() const {
    std::string told;
    for (size_t i = told_; i < standin::Notifications().size(); ++i) {
      const standin::Notification& note = standin::Notifications()[i];
      EXPECT_EQ(note.target, "");
      EXPECT_EQ(note.reserved, -1);
      told += (told.empty() ? "" : "|") + std::to_string(note.code) + " " + note.reason;
    }
    return told;
  }
  int LoggedTimes(const std::string& line) const {
    int times = 0;
    for (size_t i = logged_; i < standin::LogLines().size(); ++i)
      times += standin::LogLines()[i].level == 64 && standin::LogLines()[i].text == line ? 1 : 0;
    return times;
  }
  std::string Lists() {
    std::string shape;
    for (int i = 0; i < manager.GetSymbolListCount(8); ++i) {
      CString id;
      CString name;
      CString symbols;
      EXPECT_EQ(manager.GetSymbolListInfo(i, id, name, symbols, 8), 1);
      shape +=
          (i > 0 ? "|" : "") + std::string(id) + "/" + name.GetString() + "/" + symbols.GetString();
    }
    return shape;
  }
  std::string Cloud() { return std::string(manager.GetCloudeList()); }
  static std::string Element(const char* id, const char* name, const char* value, int flag = 0) {
    return std::string("<List ID='") + id + "' Name='" + name + "' Value='" + value + "' Flag='" +
           std::to_string(flag) + "'/>\n";
  }

private:
  size_t told_ = 0;
  size_t logged_ = 0;
};

TEST_F(CloudTextTest, TheTextOfTheMap) {
  EXPECT_EQ(Cloud(), "<Cloud></Cloud>");
  manager.SetCloudeList("C1", "One", "2330.TW,2317.TW");
  EXPECT_EQ(Cloud(), "<Cloud>" + Element("C1", "One", "2330.TW,2317.TW") + "</Cloud>");
  manager.UpdateCloudSymbolList("C1", "New", "");
  EXPECT_EQ(Cloud(), "<Cloud>" + Element("C1", "New", "") + "</Cloud>");
}

TEST_F(CloudTextTest, TheTextOfTheMapIsNotEscapedAndKnowsSystemIds) {
  manager.UpdateCloudSymbolList("ZUSYSLIST1", "a & b", "NONE.TW");
  EXPECT_EQ(Cloud(), "<Cloud>" + Element("ZUSYSLIST1", "a & b", "NONE.TW", 1) + "</Cloud>");
}

TEST_F(CloudTextTest, SettingAListPutsItIntoMapAndLists) {
  manager.SetCloudeList("C1", "One", "2330.TW");
  EXPECT_EQ(Lists(), "C1/One/2330.TW");
  EXPECT_EQ(Told(), "") << "it was added";
  EXPECT_EQ(LoggedTimes("CTQSymbolListMgr::SetCloudeList ListName=One, Symbols=2330.TW"), 1);
}

TEST_F(CloudTextTest, SettingItAgainReplacesTheMapsAndTheSymbolsOfTheOther) {
  manager.SetCloudeList("C1", "One", "2330.TW");
  manager.SetCloudeList("C1", "Two", "2317.TW");
  EXPECT_EQ(Cloud(), "<Cloud>" + Element("C1", "Two", "2317.TW") + "</Cloud>");
  EXPECT_EQ(Lists(), "C1/One/2317.TW");
  EXPECT_EQ(Told(), "41 ");
}

TEST_F(CloudTextTest, AListWithoutNameIsInTheMapOnly) {
  manager.SetCloudeList("C1", "", "2330.TW");
  EXPECT_EQ(Cloud(), "<Cloud>" + Element("C1", "", "2330.TW") + "</Cloud>");
  EXPECT_EQ(Lists(), "");
}

TEST_F(CloudTextTest, AnEmptyListIsSetToo) {
  manager.SetCloudeList("C1", "One", "");
  EXPECT_EQ(Lists(), "C1/One/");
}

TEST_F(CloudTextTest, TheUpdateOfTheMapIsOfTheMapAlone) {
  manager.UpdateCloudSymbolList("C1", "One", "2330.TW");
  EXPECT_EQ(Lists(), "");
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(LoggedTimes("CTQSymbolListMgr::UpdateCloudSymbolList ListName=One, Symbols=2330.TW"),
            1);
}

TEST_F(CloudTextTest, TheUpdateOfAListAddsItOrChangesItsSymbols) {
  manager.UpdateCloudSymbolList("C1", 201, "One", "", 0);
  EXPECT_EQ(Lists(), "");
  manager.UpdateCloudSymbolList("C1", 5, "One", "2330.TW", 0);
  EXPECT_EQ(Lists(), "C1/One/2330.TW");
  EXPECT_EQ(Told(), "");
  manager.UpdateCloudSymbolList("c1", -1, "Two", "2317.TW", 0);
  EXPECT_EQ(Lists(), "C1/One/2317.TW");
  EXPECT_EQ(Told(), "41 ");
  manager.UpdateCloudSymbolList("C1", 201, "", "", 0);
  EXPECT_EQ(Lists(), "C1/One/");
  EXPECT_EQ(Told(), "41 |41 ");
  EXPECT_EQ(Cloud(), "<Cloud></Cloud>");
}

TEST_F(CloudTextTest, AnAddTakesTheNonEmptyPiecesUnchecked) {
  EXPECT_NE(manager.AddCloudSymbolList("a", "A", ",NONE.TW,,2330.TW,", 0), 0);
  EXPECT_EQ(Lists(), "a/A/NONE.TW,2330.TW");
  EXPECT_EQ(manager.GetTQSymbolCount("a", 8), 1);
}

TEST_F(CloudTextTest, AnAddIsRefusedForNameSymbolsAndId) {
  EXPECT_EQ(manager.AddCloudSymbolList("a", "", "2330.TW", 1), 0);
  EXPECT_EQ(manager.AddCloudSymbolList("a", "A", "", 0), 0);
  EXPECT_NE(manager.AddCloudSymbolList("a", "A", "", 1), 0);
  EXPECT_EQ(manager.AddCloudSymbolList("A", "B", "2330.TW", 0), 0);
  EXPECT_NE(manager.AddCloudSymbolList("b", "A", "2330.TW", 0), 0) << "names are not checked";
  EXPECT_EQ(Lists(), "a/A/|b/A/2330.TW");
  EXPECT_EQ(Told(), "");
}

TEST_F(CloudTextTest, AnEmptyIdBecomesANewOneEachTime) {
  EXPECT_NE(manager.AddCloudSymbolList("", "A", "2330.TW", 0), 0);
  EXPECT_NE(manager.AddCloudSymbolList("", "B", "2330.TW", 0), 0);
  TQSymbolListInfo first = {};
  TQSymbolListInfo second = {};
  ASSERT_EQ(manager.GetTQSymbolListInfo(0, &first, 8), 1);
  ASSERT_EQ(manager.GetTQSymbolListInfo(1, &second, 8), 1);
  EXPECT_EQ(std::string(first.ID).size(), 36U);
  EXPECT_STRNE(first.ID, second.ID);
}

TEST_F(CloudTextTest, ReplacingAllListsMovesSymbolsInTheCallersToo) {
  manager.AddCloudSymbolList("old", "Old", "2330.TW", 0);
  CSymbolList first;
  first.SetID("n1");
  first.SetName("N1");
  first.Update1("6488.TW,2330.TW");
  CSymbolList second;
  second.SetID("n2");
  second.SetName("N2");
  CPtrArray lists;
  lists.Add(&first);
  lists.Add(&second);
  manager.SetCloudSymbolList(&lists, 77);
  EXPECT_EQ(Lists(), "n1/N1/6488.TE,2330.TW|n2/N2/");
  EXPECT_STREQ(first.GetIDs(), "6488.TE,2330.TW");
  manager.ClearCloudSymbolList();
  EXPECT_EQ(Lists(), "");
  EXPECT_STREQ(first.GetName(), "N1");
}

TEST_F(CloudTextTest, GroupsTakeNameAndMembersFromTheMapWhenTheyAreLoaded) {
  manager.SetCloudeList("VORNG0102", "Mine", "2330.TW,2454.TW");
  manager.SetCloudeList("PICK", "Picked", "1101.TW");
  EXPECT_NE(NameOf(Handle(201, "VORNG0102")), "Mine");
  Forget();
  manager.RefreshCloudeSymbol();
  EXPECT_EQ(Told(), "4 ListNameChange");
  EXPECT_EQ(Asked(), 2) << "201 alone";
  EXPECT_EQ(NameOf(Handle(201, "VORNG0102")), "Mine");
  EXPECT_EQ(MembersOf(Handle(201, "VORNG0102")), "2330.TW,2454.TW");
  EXPECT_EQ(NameOf(Handle(201, "PICK")), "Picked");
  EXPECT_EQ(MembersOf(Handle(201, "PICK")), "1101.TW");
  EXPECT_EQ(Fetched(), 0) << "members that are there are not asked for";
  EXPECT_EQ(LoggedTimes("CCloudeListUtil::DoModifyList ListName=Mine, Symbols=2330.TW,2454.TW"), 1);
  EXPECT_EQ(LoggedTimes("CGroupList::Update1 GroupName = Mine, Symbols = 2330.TW,2454.TW"), 1);
}

TEST_F(CloudTextTest, EveryLoadOf201FollowsTheMap) {
  manager.UpdateCloudSymbolList("PICK", "Picked", "1101.TW");
  manager.LoadGroupList(201);
  EXPECT_EQ(NameOf(Handle(201, "PICK")), "Picked");
  manager.UpdateCloudSymbolList("PICK", "Second", "2881.TW");
  manager.LoadGroupList();
  EXPECT_EQ(NameOf(Handle(201, "PICK")), "Second");
  EXPECT_EQ(MembersOf(Handle(201, "PICK")), "2881.TW");
}

TEST_F(CloudTextTest, OtherTypesDoNotFollowTheMap) {
  manager.UpdateCloudSymbolList("ETF", "Cloud", "1101.TW");
  manager.LoadGroupList();
  EXPECT_EQ(NameOf(Handle(1, "ETF")), standin::ToAnsi("基金"));
  EXPECT_EQ(MembersOf(Handle(1, "ETF")), "0050.TW");
}

TEST_F(CloudTextTest, AGroupWithSubGroupsHasItsDefaultNameWhateverTheMapSays) {
  const std::string before = NameOf(Handle(201, "VORNG01"));
  EXPECT_NE(before, standin::ToAnsi("雲端"));
  EXPECT_NE(before, standin::ToAnsi("云端"));
  manager.UpdateCloudSymbolList("VORNG01", "Mine", "1101.TW");
  manager.RefreshCloudeSymbol();
  EXPECT_EQ(NameOf(Handle(201, "VORNG01")), before);
}

TEST_F(CloudTextTest, AGroupWithoutSubGroupsHasNoDefaultName) {
  standin::Market market = standin::CurrentMarket();
  market.groups = {{201, "", "VORNG01", "甲", "甲", {}}};
  standin::SetMarket(market);
  manager.RefreshCloudeSymbol();
  EXPECT_EQ(NameOf(Handle(201, "VORNG01")), standin::ToAnsi("甲"));
  manager.UpdateCloudSymbolList("VORNG01", "Mine", "1101.TW");
  manager.RefreshCloudeSymbol();
  EXPECT_EQ(NameOf(Handle(201, "VORNG01")), "Mine");
}

TEST_F(CloudTextTest, TheRefreshReachesTheThirdLevel) {
  AddToMarket({201, "VORNG0101", "DEEP", "深", "深", {}});
  manager.UpdateCloudSymbolList("DEEP", "Deep", "1101.TW");
  manager.UpdateCloudSymbolList("VORNG0101", "not this one", "1101.TW");
  manager.RefreshCloudeSymbol();
  GroupInfo info = {};
  ASSERT_EQ(manager.GetGroupInfo(201, Handle(201, "VORNG0101"), 0, &info), 1);
  EXPECT_STREQ(info.szName, "Deep");
  EXPECT_NE(NameOf(Handle(201, "VORNG0101")), "not this one");
}

TEST_F(CloudTextTest, ARefreshIsToldThoughNothingChanged) {
  manager.RefreshCloudeSymbol();
  manager.ClearGroupList();
  manager.RefreshCloudeSymbol();
  EXPECT_EQ(Told(), "4 ListNameChange|4 ListNameChange");
}

TEST_F(CloudTextTest, OneGroupFollowsTheMapByItsHandle) {
  manager.UpdateCloudSymbolList("PICK", "Picked", "1101.TW");
  manager.UpdateCloudSymbolList("VORNG01", "Mine", "1101.TW");
  const std::string before = NameOf(Handle(201, "VORNG01"));
  manager.UpdateCloudGroup(Handle(201, "PICK"));
  manager.UpdateCloudGroup(Handle(201, "VORNG01"));
  manager.UpdateCloudGroup(Handle(201, "VORNG0101"));
  manager.UpdateCloudGroup(nullptr);
  EXPECT_EQ(NameOf(Handle(201, "PICK")), "Picked");
  EXPECT_EQ(MembersOf(Handle(201, "PICK")), "1101.TW");
  EXPECT_EQ(NameOf(Handle(201, "VORNG01")), before);
  EXPECT_EQ(LoggedTimes("CTQSymbolListMgr::UpdateCloudGroup ListName=Picked, Symbols=1101.TW"), 1);
  EXPECT_EQ(Told(), "");
}

} // namespace
