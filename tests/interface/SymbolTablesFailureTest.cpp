// Each service operation fails at each of its first calls: nothing may leak, crash or stay half
// done.
#include <string_view>

#include "tests/interface/SymbolTablesTest.h"

namespace {

class SymbolTablesFailureTest : public SymbolTablesTest,
                                public testing::WithParamInterface<const char*> {
protected:
  // Calls everything that asks the services, once.
  void UseAll() {
    tables.InitAllSymbolTable();
    tables.InitAuthorizedExch();
    tables.SetDefaults({1, 2});
    tables.RebuildSymbolTable();
    tables.RebuildSymbolTable("TE", 2);
    tables.RebuildSymbolTable("EXTRA", 3);
    tables.RebuildSymbolTable();
    Add(1, {"2330.TW", "2317.TW"});
    Update(1, {"2330.TW", "2317.TW"});
    Add(99, {"A"});
    Update(12, {"SPY"});
    Remove(1, {"2454"});
    tables.IsSupportUJKExch();
    tables.MapExchIDsToExchName("1,10,11,12");
    CString text;
    tables.FindExchID(1, text);
    for (const int field : {1, 2, 81, 109, 112, 113, 155, 170, 171, 179, 184, 188})
      tables.LookUpSymbolGetString(field, "2330.TW", "", text);
    int number = 0;
    for (const int field : {110, 112, 169, 170, 171, 176, 178, 186, 3006})
      tables.LookUpSymbolGetInt(field, "2330.TW", "", number);
  }
};

TEST_P(SymbolTablesFailureTest, TablesStayUsableAndNothingLeaks) {
  constexpr int mostCalls = 40;
  for (int failing = 1; failing <= mostCalls; ++failing) {
    standin::FailCall(GetParam(), failing);
    UseAll();
    standin::FailCall(GetParam(), 0);
    ASSERT_EQ(standin::OutstandingArrays(), 0) << failing;
    tables.CleanALL();
    Start();
    ASSERT_EQ(tables.Id("2330", ""), "2330.TW") << failing;
    tables.CleanALL();
  }
}

TEST_P(SymbolTablesFailureTest, OperationThatAlwaysFailsLeaksNothing) {
  standin::FailAlways(GetParam());
  UseAll();
  EXPECT_EQ(standin::OutstandingArrays(), 0);
}

INSTANTIATE_TEST_SUITE_P(EachService, SymbolTablesFailureTest,
                         testing::Values("*", "VLGetExch", "VLGetBaseAttrs2", "VLGetBaseAttrs",
                                         "TQSGetUserInfo", "TQSGetUserExtraValue",
                                         "CStaticKey::Setup", "CStaticKey::SetUpTrade",
                                         "CStockAttr::GetID", "CStaticKey::GetFieldString",
                                         "CStaticKey::GetFieldInt", "tqStockGetFieldString"));

} // namespace
