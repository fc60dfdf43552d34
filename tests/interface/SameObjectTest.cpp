// Operations with one object as input and output, as terminals write them: GetSymbolListName(text,
// text, 1). The result is the same as with two objects.
#include <cstring>
#include <string>

#include "tests/interface/GroupsTest.h"

namespace {

struct Operation {
  const char* name;
  const char* input;
  int (*call)(CTQSymbolListMgr& manager, const CString& input, CString& output);
};

constexpr TqsAccType kStocks = static_cast<TqsAccType>(1);

const Operation kOperations[] = {
    {"GetSymbolListName", "a",
     [](CTQSymbolListMgr& manager, const CString& id, CString& name) {
       return manager.GetSymbolListName(id, name, 1);
     }},
    {"GetTQSymbolListName", "a",
     [](CTQSymbolListMgr& manager, const CString& id, CString& name) {
       return manager.GetTQSymbolListName(id, name, 1);
     }},
    {"GetSymbolListIDs", "a",
     [](CTQSymbolListMgr& manager, const CString& id, CString& symbols) {
       return manager.GetSymbolListIDs(1, id, symbols, nullptr);
     }},
    {"GetSymoblIDList", "a",
     [](CTQSymbolListMgr& manager, const CString& id, CString& symbols) {
       return manager.GetSymoblIDList(id, symbols, 1);
     }},
    {"GetGroupName", "CHIP",
     [](CTQSymbolListMgr& manager, const CString& id, CString& name) {
       return manager.GetGroupName(1, id, name, 0);
     }},
    {"GetTSAccHodlingOfASystem", "T1",
     [](CTQSymbolListMgr& manager, const CString& system, CString& symbols) {
       return manager.GetTSAccHodling(system, "9801", symbols);
     }},
    {"GetTSAccHodlingOfAnAccount", "9801",
     [](CTQSymbolListMgr& manager, const CString& account, CString& symbols) {
       return manager.GetTSAccHodling("T1", account, symbols);
     }},
    {"GetTSSymbolListsOfASystem", "T1",
     [](CTQSymbolListMgr& manager, const CString& system, CString& symbols) {
       return manager.GetTSSymbolLists(system, kStocks, symbols);
     }},
    {"GetTSSymbolListsOfAnAccount", "9801",
     [](CTQSymbolListMgr& manager, const CString& account, CString& symbols) {
       return manager.GetTSSymbolLists("T1", kStocks, account, symbols);
     }},
};

class SameObject : public GroupsTest, public testing::WithParamInterface<Operation> {
protected:
  SameObject() {
    standin::Market market = GroupMarket();
    market.tradingSystems = {
        {"T1", "甲證券", "甲证券", true, {{1, "9801", "9801-*", "2330.TW,2317.TW"}}}};
    standin::SetMarket(market);
    WriteWorking("<Result><SymbolList DefaultIdx='0'>"
                 "<List ID='a' Name='Mine' Value='2330.TW,GONE.TW,2317.TW' Flag='0'/>"
                 "</SymbolList></Result>");
    EXPECT_EQ(manager.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 1), 1);
    manager.UpdateTSLogin("T1");
  }
};

TEST_P(SameObject, IsAnsweredAsTwoObjectsAre) {
  const CString input = GetParam().input;
  CString expected;
  ASSERT_EQ(GetParam().call(manager, input, expected), 1);
  ASSERT_STRNE(expected, "");
  CString text = input;
  EXPECT_EQ(GetParam().call(manager, text, text), 1);
  EXPECT_STREQ(text, expected);
}

std::string NameOf(const testing::TestParamInfo<Operation>& tested) {
  return tested.param.name;
}

INSTANTIATE_TEST_SUITE_P(Of, SameObject, testing::ValuesIn(kOperations), NameOf);

// --- Records that contain the text asked for -----------------------------------------------------

using SameRecord = SameObject;

TEST_F(SameRecord, ASymbolsRecordMayHoldTheSymbol) {
  SymbolInfo record = {};
  std::strcpy(record.id, "2317.TW");
  EXPECT_EQ(manager.GetSymbolInfo(record.id, nullptr, 0, &record), 1);
  EXPECT_STREQ(record.id, "2317.TW");
  std::strcpy(record.id, "CHIP");
  EXPECT_EQ(manager.GetGroupSymbolInfo(1, record.id, 1, &record), 1);
  EXPECT_STREQ(record.id, "2454.TW");
  std::strcpy(record.id, "a");
  EXPECT_EQ(manager.GetTQSymbolInfo(record.id, 1, &record, 1), 1);
  EXPECT_STREQ(record.id, "2317.TW");
}

TEST_F(SameRecord, AGroupsRecordMayHoldTheGroupAbove) {
  GroupInfo record = {};
  std::strcpy(record.szID, "TSE");
  EXPECT_EQ(manager.GetGroupInfos(1, record.szID, 1, &record), 1);
  EXPECT_STREQ(record.szID, "CEM");
}

// --- Two outputs: the last one stands ------------------------------------------------------------

using SameOutput = SameObject;

TEST_F(SameOutput, OfAListsTextsTheSymbolsStand) {
  CString text;
  EXPECT_EQ(manager.GetSymbolListInfo(0, text, text, text, 1), 1);
  EXPECT_STREQ(text, "2330.TW,GONE.TW,2317.TW");
}

// Symptom: the field and the rest were mixed up: "A,BC" became "".
TEST_F(SameOutput, OfAParameterStringWhatIsBehindTheFieldStands) {
  CString text = "A,BC";
  CTQSymbolListMgr::CutStringAndGetParamBefore(text, ',', text);
  EXPECT_STREQ(text, "BC");
  CTQSymbolListMgr::CutStringAndGetParamBefore(text, ',', text);
  EXPECT_STREQ(text, "");
}

} // namespace
