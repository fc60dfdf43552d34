// The six system lists.
#include <string>

#include "platform/interface/TQSymbolStrings.h"
#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class Manager : public CTQSymbolListMgr {
public:
  using CTQSymbolListMgr::IsSameSysSymbolListGUID;
};

class SystemListsTest : public EditTest {
protected:
  int StartWithSystemLists(CStringArray* names = nullptr) {
    return manager.Init(directory.Path().c_str(), 0, 1, 1, names, 0, 0);
  }
  static std::string DefaultName(unsigned index) {
    return standin::ToAnsi(tqSymbolString(48033 + index, IsTraditionChinese()));
  }
};

TEST_F(SystemListsTest, FileWithoutThemGainsAllSixAtTheEndEmptyAndNamedByTheLibrary) {
  WriteWorking("<Result><SymbolList DefaultIdx='0'><List ID='a' Name='A' Value='2330.TW'/>"
               "</SymbolList></Result>");
  const std::string file = ReadWorking();
  ASSERT_EQ(StartWithSystemLists(), 1);
  ASSERT_EQ(manager.GetSymbolListCount(1), 7);
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(IdAt(i + 1), "ZUSYSLIST" + std::to_string(i + 1));
    EXPECT_EQ(NameAt(i + 1), DefaultName(static_cast<unsigned>(i)));
    EXPECT_EQ(manager.GetTQSymbolCount(IdAt(i + 1).c_str(), 1), 0);
    EXPECT_EQ(manager.IsSystemList(IdAt(i + 1).c_str(), 1), 1);
  }
  EXPECT_EQ(NameAt(1), standin::ToAnsi(IsTraditionChinese() ? "自選一" : "自选一"));
  EXPECT_EQ(ReadWorking(), file); // the next save writes them
  manager.SaveSymbolList();
  EXPECT_NE(ReadWorking().find("ID='ZUSYSLIST6'"), std::string::npos);
  EXPECT_NE(ReadWorking().find("Flag='1'"), std::string::npos);
}

TEST_F(SystemListsTest, NamesOfTheTerminalOverrideTheFirstOnes) {
  CStringArray names;
  names.Add("First");
  names.Add("Second");
  StartWithSystemLists(&names);
  EXPECT_EQ(NameAt(0), "First");
  EXPECT_EQ(NameAt(1), "Second");
  EXPECT_EQ(NameAt(2), DefaultName(2));
}

TEST_F(SystemListsTest, ListsThatAreThereKeepNameContentsAndPlace) {
  WriteWorking("<Result><SymbolList DefaultIdx='0'><List ID='zusyslist3' Name='Mine' "
               "Value='2330.TW'/></SymbolList></Result>");
  CStringArray names;
  for (int i = 0; i < 6; ++i)
    names.Add("n");
  StartWithSystemLists(&names);
  ASSERT_EQ(manager.GetSymbolListCount(1), 6);
  EXPECT_EQ(IdAt(0), "zusyslist3");
  EXPECT_EQ(NameAt(0), "Mine");
  EXPECT_EQ(Rows("ZUSYSLIST3"), "2330.TW");
  EXPECT_EQ(manager.IsSystemList("zusyslist3", 1), 1);
}

TEST_F(SystemListsTest, WithoutTheWishThereAreNone) {
  StartWith({"a/A/"});
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
  manager.UpdateTQSymbolList();
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
}

TEST_F(SystemListsTest, LoadingAgainBringsThemBackUnderTheirNames) {
  CStringArray names;
  names.Add("First");
  StartWithSystemLists(&names);
  manager.ClearSymbolList();
  EXPECT_EQ(manager.UpdateTQSymbolList(), 1);
  EXPECT_EQ(manager.GetSymbolListCount(1), 6);
  EXPECT_EQ(NameAt(0), "First");
  TempDir other;
  manager.ReLoadList(other.Path().c_str());
  EXPECT_EQ(manager.GetSymbolListCount(1), 6);
  EXPECT_EQ(NameAt(0), "First");
}

TEST_F(SystemListsTest, MarkIsOfTheFirstListWithTheId) {
  StartWith({"a/A/", "ZUSYSLIST1/S/"});
  EXPECT_EQ(manager.IsSystemList("ZuSysList1", 1), 1);
  EXPECT_EQ(manager.IsSystemList("a", 1), 0);
  EXPECT_EQ(manager.IsSystemList("none", 1), 0);
  EXPECT_EQ(manager.IsSystemList(nullptr, 1), 0);
  EXPECT_EQ(manager.IsSystemList("ZUSYSLIST1", 6), 0);
  EXPECT_EQ(manager.IsSystemList("ZUSYSLIST1", 2), 0);
}

TEST_F(SystemListsTest, ReservedIdsAreKnownExactly) {
  const Manager known;
  EXPECT_NE(known.IsSameSysSymbolListGUID("ZUSYSLIST1"), 0);
  EXPECT_NE(known.IsSameSysSymbolListGUID("ZUSYSLIST6"), 0);
  EXPECT_EQ(known.IsSameSysSymbolListGUID("zusyslist1"), 0);
  EXPECT_EQ(known.IsSameSysSymbolListGUID("ZUSYSLIST7"), 0);
  EXPECT_EQ(known.IsSameSysSymbolListGUID(""), 0);
}

TEST_F(SystemListsTest, UpdatingOneSetsSymbolsAndReportsAChangedName) {
  StartWith({"ZUSYSLIST1/Old/2330.TW"});
  const std::string file = ReadWorking();
  int changed = 9;
  EXPECT_EQ(manager.UpdateSystemList("zusyslist1", "New", "2317.TW", changed), 1);
  EXPECT_EQ(changed, 1);
  EXPECT_EQ(Shape(), "ZUSYSLIST1/New/2317.TW");
  manager.UpdateSystemList("ZUSYSLIST1", "New", "", changed);
  EXPECT_EQ(changed, 0);
  manager.UpdateSystemList("ZUSYSLIST1", "NEW", "", changed);
  EXPECT_EQ(changed, 1);
  EXPECT_EQ(ReadWorking(), file);
}

TEST_F(SystemListsTest, UpdatingWithAnEmptyNameLeavesTheNameAndReportsNoChange) {
  StartWith({"ZUSYSLIST1/Old/2330.TW"});
  int changed = 9;
  EXPECT_EQ(manager.UpdateSystemList("ZUSYSLIST1", "", "2317.TW", changed), 1);
  EXPECT_EQ(changed, 0);
  EXPECT_EQ(Shape(), "ZUSYSLIST1/Old/2317.TW");
}

TEST_F(SystemListsTest, UpdatingAnUnknownIdDoesNothing) {
  StartWith({"a/A/2330.TW"});
  int changed = 9;
  EXPECT_EQ(manager.UpdateSystemList("ZUSYSLIST1", "New", "2317.TW", changed), 0);
  EXPECT_EQ(changed, 9);
  EXPECT_EQ(Shape(), "a/A/2330.TW");
}

TEST_F(SystemListsTest, ANameThatIsCutCountsAsChangedOnce) {
  StartWith({"ZUSYSLIST1/Old/"});
  const CString longName('n', 70);
  int changed = 0;
  manager.UpdateSystemList("ZUSYSLIST1", longName, "", changed);
  EXPECT_EQ(changed, 1);
  manager.UpdateSystemList("ZUSYSLIST1", longName, "", changed);
  EXPECT_EQ(changed, 0);
}

TEST_F(SystemListsTest, UpdatingByNumberNeedsANameFromTheStart) {
  CStringArray names;
  names.Add("First");
  names.Add("Second");
  StartWithSystemLists(&names);
  EXPECT_EQ(manager.UpdateSystemList(1, "2330.TW", 1), 1);
  EXPECT_EQ(Rows("ZUSYSLIST2"), "2330.TW");
  for (int index : {-1, 2, 5, 6, 1000})
    EXPECT_EQ(manager.UpdateSystemList(index, "2330.TW", 1), 0) << index;
}

TEST_F(SystemListsTest, UpdatingByNumberInModeZeroFillsOnlyAnEmptyList) {
  CStringArray names;
  names.Add("First");
  StartWithSystemLists(&names);
  EXPECT_EQ(manager.UpdateSystemList(0, "2330.TW", 0), 1);
  EXPECT_EQ(manager.UpdateSystemList(0, "2317.TW", 0), 0);
  EXPECT_EQ(Rows("ZUSYSLIST1"), "2330.TW");
  EXPECT_EQ(manager.UpdateSystemList(0, "2317.TW", 1), 1);
  EXPECT_EQ(Rows("ZUSYSLIST1"), "2317.TW");
}

TEST_F(SystemListsTest, UpdatingSeveralSavesAndTellsTheTerminalWhetherANameChanged) {
  StartWith({"ZUSYSLIST1/One/", "ZUSYSLIST2/Two/"});
  CMapStringToString symbols;
  CMapStringToString names;
  symbols.SetAt("ZUSYSLIST1", "2330.TW");
  symbols.SetAt("ZUSYSLIST2", "2317.TW");
  symbols.SetAt("none", "2454.TW");
  EXPECT_EQ(manager.UpdateSystemList(&symbols, nullptr), 1);
  ExpectNotified(1, 4, "");
  EXPECT_EQ(Shape(), "ZUSYSLIST1/One/2330.TW|ZUSYSLIST2/Two/2317.TW");
  EXPECT_NE(ReadWorking().find("2317.TW"), std::string::npos);
  names.SetAt("ZUSYSLIST1", "Other");
  EXPECT_EQ(manager.UpdateSystemList(&symbols, &names), 1);
  ExpectNotified(2, 4, "ListNameChange");
  EXPECT_EQ(Shape(), "ZUSYSLIST1/Other/2330.TW|ZUSYSLIST2/Two/2317.TW");
}

TEST_F(SystemListsTest, UpdatingSeveralWithoutAMapDoesNothing) {
  StartWith({"ZUSYSLIST1/One/"});
  const std::string file = ReadWorking();
  CMapStringToString names;
  EXPECT_EQ(manager.UpdateSystemList(nullptr, &names), 0);
  ExpectNotNotified();
  EXPECT_EQ(ReadWorking(), file);
}

} // namespace
