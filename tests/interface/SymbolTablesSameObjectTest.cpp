// Look-ups of the symbol tables with one object as input and output. The result is the same as with
// two objects.
#include "tests/interface/SymbolTablesTest.h"

namespace {

struct LookUp {
  const char* name;
  const char* input;
  int (*call)(OpenTables& tables, const CString& input, CString& output);
};

const LookUp kLookUps[] = {
    // Symptom: the first exchange's name was looked up on the others, so that a symbol of two
    // default exchanges counted as unique.
    {"GetDefaultExchange", "7777",
     [](OpenTables& tables, const CString& symbol, CString& exchName) {
       return tables.GetDefaultExchange(symbol, exchName);
     }},
    {"IsGetDefaultExchange", "7777",
     [](OpenTables& tables, const CString& symbol, CString& exchName) {
       return tables.IsGetDefaultExchange(symbol, exchName);
     }},
    {"GetExch", "2330.TW",
     [](OpenTables& tables, const CString& id, CString& exchName) {
       return tables.GetExch(id, exchName);
     }},
    {"LookUpNameGetSymbolID", "AAPL name",
     [](OpenTables& tables, const CString& name, CString& id) {
       return tables.LookUpNameGetSymbolID(name, id);
     }},
    {"LookUpSymbolGetStringOfAnId", "2330.tw",
     [](OpenTables& tables, const CString& id, CString& value) {
       return tables.LookUpSymbolGetString(FieldSymbolId, id, "", value);
     }},
    {"LookUpSymbolGetStringOfAnExchange", "te",
     [](OpenTables& tables, const CString& exchName, CString& value) {
       return tables.LookUpSymbolGetString(FieldSymbolId, "7777", exchName, value);
     }},
    {"LookUpSymbolGetStringOfAnExchangesName", "2330.tw",
     [](OpenTables& tables, const CString& id, CString& value) {
       return tables.LookUpSymbolGetString(FieldExchangeName, id, "", value);
     }},
};

class SymbolTablesSameObject : public SymbolTablesTest,
                               public testing::WithParamInterface<LookUp> {};

TEST_P(SymbolTablesSameObject, IsAnsweredAsTwoObjectsAre) {
  Listed("AAPL", 11).nameTw = Listed("AAPL", 11).nameCn = "AAPL name";
  Serve();
  Start();
  const CString input = GetParam().input;
  CString expected;
  const int result = GetParam().call(tables, input, expected);
  ASSERT_NE(result, 0);
  ASSERT_STRNE(expected, input);
  CString text = input;
  EXPECT_EQ(GetParam().call(tables, text, text), result);
  EXPECT_STREQ(text, expected);
}

std::string NameOfLookUp(const testing::TestParamInfo<LookUp>& tested) {
  return tested.param.name;
}

INSTANTIATE_TEST_SUITE_P(Of, SymbolTablesSameObject, testing::ValuesIn(kLookUps), NameOfLookUp);

} // namespace
