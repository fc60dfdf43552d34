// Queries about lists.
#include <cstring>
#include <string>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"

namespace {

class QueriesTest : public EditTest {};

TEST_F(QueriesTest, OtherKindsHaveNoListAndNoCount) {
  StartWith({"a/A/2330.TW"});
  EXPECT_EQ(manager.GetSymbolListCount(1), 1);
  EXPECT_EQ(manager.GetTQSymbolListCount(1), 1);
  CString text = "kept";
  SymbolInfo record = {};
  CSymbolList* list = nullptr;
  for (int kind : {-1, 2, 3, 4, 5, 6, 7, 8, 9, 201}) {
    EXPECT_EQ(manager.GetSymbolListCount(kind), 0);
    EXPECT_EQ(manager.GetTQSymbolListCount(kind), 0);
    EXPECT_EQ(manager.GetSymbolList("a", &list, kind), 0);
    EXPECT_EQ(manager.GetTQSymbolCount("a", kind), 0);
    EXPECT_EQ(manager.GetTQSymbolInfo("a", 0, &record, kind), 0);
    EXPECT_EQ(manager.GetSymbolListInfo(0, text, text, text, kind), 0);
    CPtrArray copies;
    EXPECT_EQ(manager.GetSymbolList(copies, kind), kind == 6 || kind == 8 ? 1 : 0);
    EXPECT_EQ(copies.GetSize(), 0);
  }
  EXPECT_STREQ(text, "kept");
}

TEST_F(QueriesTest, CopiesAreAppendedInOrderAndTheCallers) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW"});
  CPtrArray copies;
  EXPECT_EQ(manager.GetSymbolList(copies, 1), 1);
  EXPECT_EQ(manager.GetSymbolList(copies, 1), 1);
  ASSERT_EQ(copies.GetSize(), 4);
  auto* second = static_cast<CSymbolList*>(copies[1]);
  EXPECT_STREQ(second->GetID(), "b");
  second->Update1("2454.TW");
  EXPECT_EQ(Shape(), "a/A/2330.TW|b/B/2317.TW");
  DeleteCopies(copies);
}

TEST_F(QueriesTest, TheLiveListChangesTheManagerWithoutASave) {
  StartWith({"a/A/2330.TW"});
  const std::string file = ReadWorking();
  CSymbolList* list = nullptr;
  ASSERT_EQ(manager.GetSymbolList("A", &list, 1), 1);
  list->Update1("2317.TW");
  EXPECT_EQ(Shape(), "a/A/2317.TW");
  EXPECT_EQ(ReadWorking(), file);
}

TEST_F(QueriesTest, ListInfoTestsItsIndex) {
  StartWith({"a/A/2330.TW"});
  TQSymbolListInfo info = {};
  EXPECT_EQ(manager.GetTQSymbolListInfo(-1, &info, 1), 0);
  EXPECT_EQ(manager.GetTQSymbolListInfo(1, &info, 1), 0);
  EXPECT_EQ(info.ID[0], '\0');
  EXPECT_EQ(manager.GetTQSymbolListInfo(0, &info, 1), 1);
  EXPECT_STREQ(info.ID, "a");
  CString id;
  EXPECT_EQ(manager.GetSymbolListInfo(-1, id, id, id, 1), 0);
  EXPECT_EQ(manager.GetSymbolListInfo(1, id, id, id, 1), 0);
}

TEST_F(QueriesTest, NamesAreFoundByIdIgnoringLetterCase) {
  StartWith({"ab/\xB3\x5C/2330.TW"});
  CString name;
  EXPECT_EQ(manager.GetSymbolListName("AB", name, 1), 1);
  EXPECT_STREQ(name, "\xB3\x5C");
  name.Empty();
  EXPECT_EQ(manager.GetTQSymbolListName("aB", name, 1), 1);
  EXPECT_STREQ(name, "\xB3\x5C");
  EXPECT_EQ(manager.GetTQSymbolListName(nullptr, name, 1), 0);
}

// Symptom: the caller's text kept the name of the previous list, as if it were the unknown list's.
TEST_F(QueriesTest, TheNameOfAnUnknownListIsEmpty) {
  StartWith({"a/A/2330.TW"});
  for (const int kind : {-1, 0, 1, 2, 6, 8, 201}) {
    CString name = "old";
    EXPECT_EQ(manager.GetSymbolListName("b", name, kind), 0);
    EXPECT_STREQ(name, "") << kind;
    name = "old";
    EXPECT_EQ(manager.GetTQSymbolListName("b", name, kind), 0);
    EXPECT_STREQ(name, "") << kind;
  }
}

TEST_F(QueriesTest, StoredStringHasUnknownIdsAndTheResolvedOneHasNot) {
  StartWith({"a/A/GONE.TW,Head:,2330.TW,gone2.TW,2317.TW"});
  CString symbols;
  CStringArray tokens;
  EXPECT_EQ(manager.GetSymbolListIDs(1, "A", symbols, &tokens), 1);
  EXPECT_STREQ(symbols, "GONE.TW,Head:,2330.TW,gone2.TW,2317.TW");
  EXPECT_EQ(tokens.GetSize(), 5);
  EXPECT_EQ(manager.GetSymoblIDList("a", symbols, 1), 1);
  EXPECT_STREQ(symbols, "Head:,2330.TW,2317.TW");
  EXPECT_EQ(manager.GetTQSymbolCount("a", 1), 3);
  EXPECT_EQ(manager.GetSymbolListIDs(1, "A", symbols, nullptr), 1);
}

TEST_F(QueriesTest, KindZeroIsTheDefaultListWhateverTheId) {
  StartWith({"a/A/2330.TW", "b/B/2317.TW"});
  CString symbols;
  manager.SetDefaultIndex(1);
  EXPECT_EQ(manager.GetSymbolListIDs(0, "a", symbols, nullptr), 1);
  EXPECT_STREQ(symbols, "2317.TW");
  for (int index : {-1, 2, 7}) {
    manager.SetDefaultIndex(index);
    CStringArray tokens;
    tokens.Add("old");
    symbols = "old";
    EXPECT_EQ(manager.GetSymbolListIDs(0, "a", symbols, &tokens), 0);
    EXPECT_TRUE(symbols.IsEmpty());
    EXPECT_EQ(tokens.GetSize(), 0);
  }
}

TEST_F(QueriesTest, OutputsAreEmptiedWhenThereIsNoSuchList) {
  StartWith({"a/A/2330.TW"});
  CString symbols = "old";
  EXPECT_EQ(manager.GetSymbolListIDs(1, "none", symbols, nullptr), 0);
  EXPECT_TRUE(symbols.IsEmpty());
  symbols = "old";
  EXPECT_EQ(manager.GetSymoblIDList("none", symbols, 1), 0);
  EXPECT_TRUE(symbols.IsEmpty());
}

TEST_F(QueriesTest, RowsComeAsRecords) {
  StartWith({"a/A/2330.TW,Head:"});
  SymbolInfo record = {};
  EXPECT_EQ(manager.GetTQSymbolInfo("A", 0, &record, 1), 1);
  EXPECT_STREQ(record.id, "2330.TW");
  EXPECT_EQ(manager.GetTQSymbolInfo("A", 1, &record, 1), 1);
  EXPECT_STREQ(record.id, ":");
  EXPECT_EQ(manager.GetTQSymbolInfo("A", 2, &record, 1), 0);
  EXPECT_EQ(manager.GetTQSymbolInfo("none", 0, &record, 1), 0);
  EXPECT_EQ(manager.GetTQSymbolInfo("A", 0, nullptr, 1), 0);
}

TEST_F(QueriesTest, SymbolsOfAnExchangeArePassedStraightFromTheService) {
  StartWith({});
  SymbolInfo* list = nullptr;
  int count = 0;
  EXPECT_NE(manager.GetSymbolInfos(2, -1, &list, &count), 0);
  EXPECT_EQ(count, 4);
  EXPECT_STREQ(list[0].id, "6488.TE");
  VLFree(list);
  EXPECT_EQ(standin::Calls().back().arguments, "2,-1,0");
}

TEST_F(QueriesTest, AttributesArePassedStraightFromTheService) {
  StartWith({});
  BaseAttr* list = nullptr;
  int count = 0;
  EXPECT_NE(manager.GetBaseAttrs("2330.TW,2317.TW", &list, &count), 0);
  EXPECT_EQ(count, 2);
  VLFree(list);
}

TEST_F(QueriesTest, AllSymbolsAreHandedOutAsACopy) {
  CTQSymbolListMgr fresh;
  SymbolInfo* all = nullptr;
  int count = -1;
  EXPECT_EQ(fresh.GetAllSymbolInfos(&all, &count), 0);
  EXPECT_EQ(all, nullptr);
  EXPECT_EQ(count, -1);
  StartWith({});
  EXPECT_EQ(manager.GetAllSymbolInfos(nullptr, &count), 0);
  EXPECT_EQ(manager.GetAllSymbolInfos(&all, nullptr), 0);
  ASSERT_EQ(manager.GetAllSymbolInfos(&all, &count), 1);
  EXPECT_EQ(count, static_cast<int>(standin::CurrentMarket().instruments.size()));
  CTQSymbolListMgr::FreeSymbolInfos(all);
  CTQSymbolListMgr::FreeSymbolInfos(nullptr);
}

// Terminals built before FreeSymbolInfos share the library's runtime, as this program does.
TEST_F(QueriesTest, HostsOfTheSameRuntimeMayDeleteTheCopyThemselves) {
  StartWith({});
  SymbolInfo* all = nullptr;
  int count = 0;
  ASSERT_EQ(manager.GetAllSymbolInfos(&all, &count), 1);
  delete[] all;
}

} // namespace
