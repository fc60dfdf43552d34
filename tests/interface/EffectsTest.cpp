// The side effects of each operation of the manager: files written, lines in the log,
// notifications. docs/notifications.md has the same table.
#include "tests/interface/EffectsTest.h"

namespace {

// --- Operations that only need a line ------------------------------------------------------------

struct Operation {
  const char* name;
  void (*call)(CTQSymbolListMgr& manager);
  const char* seen;
};

const Operation kOperations[] = {
    // Whole lists.
    {"AddSymbolList", [](CTQSymbolListMgr& m) { m.AddSymbolList("c", 0, "C", "1101.TW", 1, 0); },
     "SymbolList.xml | 64 Add SymbolList | 40 ''"},
    {"AddSymbolListToOneThatIsThere",
     [](CTQSymbolListMgr& m) { m.AddSymbolList("a", 0, "A", "1101.TW", 1, 0); },
     "SymbolList.xml | 64 Add SymbolList | 40 ''"},
    {"AddSymbolListRefused", [](CTQSymbolListMgr& m) { m.AddSymbolList("c", 0, "", "1", 1, 0); },
     kNothing},
    {"DeleteSymbolList", [](CTQSymbolListMgr& m) { m.DeleteSymbolList("a"); },
     "SymbolList.xml |  | "},
    {"DeleteSymbolListRefused", [](CTQSymbolListMgr& m) { m.DeleteSymbolList("none"); }, kNothing},
    // Entries.
    {"DeleteSymbolListEntry", [](CTQSymbolListMgr& m) { m.DeleteSymbolList("a", 0); }, kNothing},
    {"InsertSymbolList", [](CTQSymbolListMgr& m) { m.InsertSymbolList("a", 0, "1101.TW", 0, 0); },
     kNothing},
    {"SwapSymbolList", [](CTQSymbolListMgr& m) { m.SwapSymbolList("a", 0, 1); }, kNothing},
    {"ReplaceSymbolList", [](CTQSymbolListMgr& m) { m.ReplaceSymbolList("a", 0, "1101.TW"); },
     kNothing},
    // The file.
    {"LoadSymbolList", [](CTQSymbolListMgr& m) { m.LoadSymbolList(); }, kNothing},
    {"SaveSymbolList", [](CTQSymbolListMgr& m) { m.SaveSymbolList(); }, "SymbolList.xml |  | "},
    {"BackupSymbolList", [](CTQSymbolListMgr& m) { m.BackupSymbolList(); },
     "SymbolList_Backup.xml |  | "},
    {"RestorSymbolList", [](CTQSymbolListMgr& m) { m.RestorSymbolList(); }, kNothing},
    {"CreateEmptySymbolListFile", [](CTQSymbolListMgr& m) { m.CreateEmptySymbolListFile(); },
     "SymbolList.xml |  | "},
    {"UpdateTQSymbolList", [](CTQSymbolListMgr& m) { m.UpdateTQSymbolList(); }, kNothing},
    {"SetDefaultIndex", [](CTQSymbolListMgr& m) { m.SetDefaultIndex(1); }, kNothing},
    {"ClearSymbolList", [](CTQSymbolListMgr& m) { m.ClearSymbolList(); }, kNothing},
    // System lists.
    {"LoadSystemList", [](CTQSymbolListMgr& m) { m.LoadSystemList(nullptr); }, kNothing},
    {"UpdateSystemListByNumber", [](CTQSymbolListMgr& m) { m.UpdateSystemList(0, "1101.TW", 1); },
     kNothing},
    // Cloud lists.
    {"SetCloudeListOfAnother", [](CTQSymbolListMgr& m) { m.SetCloudeList("new", "N", "1101.TW"); },
     " | 64 CTQSymbolListMgr::SetCloudeList ListName=N, Symbols=1101.TW | "},
    {"SetCloudeListOfOneThatIsThere",
     [](CTQSymbolListMgr& m) { m.SetCloudeList("PICK", "N", "1101.TW"); },
     " | 64 CTQSymbolListMgr::SetCloudeList ListName=N, Symbols=1101.TW | 41 ''"},
    {"UpdateCloudSymbolListOfTheMap",
     [](CTQSymbolListMgr& m) { m.UpdateCloudSymbolList("PICK", "N", "1101.TW"); },
     " | 64 CTQSymbolListMgr::UpdateCloudSymbolList ListName=N, Symbols=1101.TW | "},
    {"UpdateCloudSymbolListOfOneThatIsThere",
     [](CTQSymbolListMgr& m) { m.UpdateCloudSymbolList("PICK", 0, "N", "1101.TW", 0); },
     " |  | 41 ''"},
    {"UpdateCloudSymbolListOfAnother",
     [](CTQSymbolListMgr& m) { m.UpdateCloudSymbolList("new", 0, "N", "1101.TW", 0); }, kNothing},
    {"AddCloudSymbolList",
     [](CTQSymbolListMgr& m) { m.AddCloudSymbolList("n", "N", "1101.TW", 0); }, kNothing},
    {"ClearCloudSymbolList", [](CTQSymbolListMgr& m) { m.ClearCloudSymbolList(); }, kNothing},
    {"RefreshCloudeSymbol", [](CTQSymbolListMgr& m) { m.RefreshCloudeSymbol(); },
     " | 64 CGroupList::Update1 GroupName = P, Symbols = 2330.TW, "
     "64 CCloudeListUtil::DoModifyList ListName=P, Symbols=2330.TW | 4 'ListNameChange'"},
    // Lists from trading accounts.
    {"LoadTSList", [](CTQSymbolListMgr& m) { m.LoadTSList(); }, kNothing},
    {"UpdateTSLogin", [](CTQSymbolListMgr& m) { m.UpdateTSLogin("T1"); },
     "TSList.xml |  | 40 'TSSymbolList', 4 'TSSymbolList'"},
    {"UpDataTSAccHodling",
     [](CTQSymbolListMgr& m) { m.UpDataTSAccHodling("T1", "9801", static_cast<TqsAccType>(1)); },
     "TSList.xml |  | 40 'TSSymbolList', 40 'TSSymbolList', 4 'TSSymbolList'"},
    {"AddTSSymbolList", [](CTQSymbolListMgr& m) { m.AddTSSymbolList("n", 6, "N", "1101.TW", 0); },
     kNothing},
    {"UpdateTSSymbolListOfOneThatIsThere",
     [](CTQSymbolListMgr& m) { m.UpdateTSSymbolList("ALLMYSTOCKLISTS", 6, "N", "1101.TW", 0); },
     " |  | 40 'TSSymbolList'"},
    {"UpdateTSSymbolListOfAnother",
     [](CTQSymbolListMgr& m) { m.UpdateTSSymbolList("n", 6, "N", "1101.TW", 0); }, kNothing},
    {"DeleteTSSymbolList", [](CTQSymbolListMgr& m) { m.DeleteTSSymbolList("ALLMYSTOCKLISTS"); },
     kNothing},
    {"BuildTSListToSymbolList", [](CTQSymbolListMgr& m) { m.BuildTSListToSymbolList(); }, kNothing},
    {"ClearTSSymbolList", [](CTQSymbolListMgr& m) { m.ClearTSSymbolList(); }, kNothing},
    // Groups.
    {"LoadGroupListOfAType", [](CTQSymbolListMgr& m) { m.LoadGroupList(1); }, kNothing},
    {"AddNewGroup", [](CTQSymbolListMgr& m) { m.AddNewGroup(150); }, kNothing},
    {"RemoveGroupList", [](CTQSymbolListMgr& m) { m.RemoveGroupList(1); }, kNothing},
    {"ClearGroupList", [](CTQSymbolListMgr& m) { m.ClearGroupList(); }, kNothing},
    // Exchanges and symbols.
    {"ReLoadDefaultExch", [](CTQSymbolListMgr& m) { m.ReLoadDefaultExch(1); }, kNothing},
    {"UpdateExchSymbolChange",
     [](CTQSymbolListMgr& m) { m.UpdateExchSymbolChange(0, nullptr, 1, ExchSymbolsAdded); },
     kNothing},
    {"AddExtraTQInfo", [](CTQSymbolListMgr& m) { m.AddExtraTQInfo("X"); }, kNothing},
};

class EffectsOf : public Effects, public testing::WithParamInterface<Operation> {};

TEST_P(EffectsOf, AreThese) {
  GetParam().call(manager);
  EXPECT_EQ(Seen(), GetParam().seen);
}

std::string NameOf(const testing::TestParamInfo<Operation>& tested) {
  return tested.param.name;
}

INSTANTIATE_TEST_SUITE_P(Operation, EffectsOf, testing::ValuesIn(kOperations), NameOf);

// --- Operations on lists, maps and handles -------------------------------------------------------

TEST_F(Effects, OfPuttingListsInAreNone) {
  CSymbolList list = List("n");
  EXPECT_EQ(manager.AddTQSymbolList(&list, 1), 1);
  CPtrArray lists;
  lists.Add(&list);
  EXPECT_EQ(manager.SetSymbolList(&lists), 1);
  EXPECT_EQ(manager.SetCloudSymbolList(&lists, 8), 1);
  EXPECT_EQ(Seen(), kNothing);
}

TEST_F(Effects, OfReplacingIdsAreThoseOfAnAddWithALineOfTheirOwn) {
  CStringArray old;
  CStringArray replaced;
  old.Add("9999.TW");
  replaced.Add("1101.TW");
  EXPECT_EQ(manager.ReplaceID(&old, &replaced), 0);
  EXPECT_EQ(Seen(), kNothing);
  old[0] = "2330.TW";
  EXPECT_EQ(manager.ReplaceID(&old, &replaced), 1);
  EXPECT_EQ(Seen(), "SymbolList.xml | 64 ReplaceID | 40 ''");
}

TEST_F(Effects, OfReplacingIdsThatIsRefusedAreALine) {
  CStringArray old;
  CStringArray replaced;
  old.Add("2330.TW");
  replaced.Add(CString('x', 65 << 20));
  EXPECT_EQ(manager.ReplaceID(&old, &replaced), 0);
  EXPECT_EQ(Seen(), " | 64 ReplaceID is refused: no list file can hold the lists after it | ");
}

TEST_F(Effects, OfASystemListAreNone) {
  int nameChanged = 0;
  EXPECT_EQ(manager.UpdateSystemList("ZUSYSLIST1", "Other", "1101.TW", nameChanged), 1);
  EXPECT_EQ(Seen(), kNothing);
}

TEST_F(Effects, OfSeveralSystemListsAreASaveAndANotification) {
  CMapStringToString symbols;
  symbols.SetAt("ZUSYSLIST1", "1101.TW");
  EXPECT_EQ(manager.UpdateSystemList(&symbols, nullptr), 1);
  EXPECT_EQ(Seen(), "SymbolList.xml |  | 4 ''");
}

TEST_F(Effects, OfRenamedSystemListsHaveAReason) {
  CMapStringToString symbols;
  symbols.SetAt("ZUSYSLIST1", "1101.TW");
  CMapStringToString names;
  names.SetAt("ZUSYSLIST1", "Other");
  EXPECT_EQ(manager.UpdateSystemList(&symbols, &names), 1);
  EXPECT_EQ(Seen(), "SymbolList.xml |  | 4 'ListNameChange'");
}

TEST_F(Effects, OfALoadWithoutListsAreASave) {
  WriteWorking(Document(""));
  manager.LoadSymbolList();
  EXPECT_EQ(Seen(), "SymbolList.xml |  | ");
}

TEST_F(Effects, OfALoadWithoutADefaultIndexAreALine) {
  directory.Write("SymbolList_Backup.xml",
                  "<Result><SymbolList><List ID='a' Name='A' Value=''/></SymbolList></Result>");
  manager.RestorSymbolList();
  EXPECT_NE(Seen().find("| 64 CXMLDOMParser don't find GetDefaultIndex | "), std::string::npos);
}

TEST_F(Effects, OfAnImportAreOneSaveAndALineAndANotificationForEachList) {
  directory.Write("Old.xml", "<HaldeUserList><L><IDs>2330.TW</IDs></L>"
                             "<L><IDs>2317.TW</IDs></L></HaldeUserList>");
  CString path = directory.Joined("Old.xml").c_str();
  EXPECT_EQ(manager.DoLoadOtherProductList(path, 1), 1);
  EXPECT_EQ(Seen(), "SymbolList.xml | 64 Add SymbolList, 64 Add SymbolList | 40 '', 40 ''");
}

TEST_F(Effects, OfTheFirstQuestionForAGroupsMembersAreALine) {
  CString ids;
  for (int i = 0; i < 2; ++i)
    EXPECT_EQ(manager.GetGroupListIDs(Handle(1, "ETF"), ids), 1);
  EXPECT_EQ(Seen(), " | 64 CGroupList::Update2 GroupName=基金, Symbols=0050.TW | ");
}

TEST_F(Effects, OfACloudGroupThatTakesOverItsListAreLines) {
  manager.UpdateCloudGroup(Handle(201, "PICK"));
  EXPECT_EQ(Seen(), " | 64 CGroupList::Update1 GroupName = P, Symbols = 2330.TW, "
                    "64 CTQSymbolListMgr::UpdateCloudGroup ListName=P, Symbols=2330.TW | ");
}

TEST_F(Effects, OfPushedGroupsAreNone) {
  const std::vector<CGroupSet> sets = {Set(1, "TSE", "Pushed", {{"CHIP", "Chips"}})};
  EXPECT_EQ(manager.UpdateGroup(sets), 1);
  EXPECT_EQ(manager.UpdateGroupName(sets), 1);
  EXPECT_EQ(manager.UpdateSubGroup(sets), 1);
  EXPECT_EQ(manager.UpdateSubGroupName(sets), 1);
  EXPECT_EQ(manager.RemoveSubGroup(sets), 1);
  EXPECT_EQ(manager.AddSubGroup(sets), 1);
  EXPECT_EQ(manager.RemoveGroup(sets), 1);
  EXPECT_EQ(manager.AddGroup(sets), 1);
  EXPECT_EQ(Seen(), kNothing);
}

TEST_F(Effects, OfMoreChangesThanCountAreALine) {
  const std::string records(19 * 11, '\0');
  manager.UpdateExchSymbolChange(11, records.data(), 1, ExchSymbolsAdded);
  EXPECT_EQ(Seen(), " | 256 CTQSymbolListMgr::UpdateExchSymbolChange Count = 11, "
                    "MaxSymbolChangeItems = 10 | ");
}

// The failed save shows its message; everything else is as for a save that succeeds.
TEST_F(Effects, OfAnAddWhoseSaveFailsAreTheLineAndTheNotification) {
  directory.Remove();
  EXPECT_EQ(manager.AddSymbolList("c", 0, "C", "1101.TW", 1, 0), 1);
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages()[0].id, 48026u);
  const std::string seen = Seen();
  EXPECT_EQ(seen.substr(seen.find('|')), "| 64 Add SymbolList | 40 ''");
}

} // namespace
