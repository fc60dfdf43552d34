#include "tests/interface/SymbolTablesTest.h"

namespace {

class SymbolTablesExchangeTest : public SymbolTablesTest {
protected:
  std::string Mapped(const char* exchIds) {
    return tables.MapExchIDsToExchName(exchIds).GetString();
  }
  std::string Split(const char* id) {
    const auto [symbol, exchName] = tables.GetSymbolAndExchID(id);
    return std::string(symbol.GetString()) + "|" + exchName.GetString();
  }
  std::string Entitled() {
    int mask[128] = {};
    if (!tables.GetAuthMask(mask))
      return "failed";
    std::string exchIds;
    for (int n = 0; n < 128; ++n)
      if (mask[n] == 1)
        exchIds += std::to_string(n) + " ";
    return exchIds;
  }
};

TEST_F(SymbolTablesExchangeTest, NameOfAnExchangeIsAskedOfTheService) {
  CString name("before");
  EXPECT_EQ(tables.FindExchID(10, name), 1);
  EXPECT_STREQ(name, "NYSE");
  EXPECT_EQ(tables.FindExchID(99, name), 0);
  standin::FailCall("VLGetExch", 1);
  EXPECT_EQ(tables.FindExchID(1, name), 0);
  EXPECT_STREQ(name, "NYSE") << "left alone";
}

TEST_F(SymbolTablesExchangeTest, EntitlementIsThatOfTheFirstTableOfTheName) {
  ListExchange(50, "TW");
  market.entitled = "50,2";
  Serve();
  Start();
  ASSERT_EQ(tables.InitAuthorizedExch(), 1);
  EXPECT_EQ(tables.IsAuthorizedExch("TW"), 0);
  EXPECT_EQ(tables.IsAuthorizedExch("TE"), 1);
  for (const char* name : {"", "te", "XX"})
    EXPECT_EQ(tables.IsAuthorizedExch(name), 0) << name;
}

TEST_F(SymbolTablesExchangeTest, EntitlementsThatCannotBeReadLeaveTheMarks) {
  Start();
  ASSERT_EQ(tables.InitAuthorizedExch(), 1);
  standin::FailCall("TQSGetUserInfo", 1);
  EXPECT_EQ(tables.InitAuthorizedExch(), 0);
  EXPECT_EQ(tables.IsAuthorizedExch("TW"), 1);
  market.entitled = "2";
  Serve();
  EXPECT_EQ(tables.InitAuthorizedExch(), 1);
  EXPECT_EQ(tables.IsAuthorizedExch("TW"), 0);
}

TEST_F(SymbolTablesExchangeTest, ExchangesOutsideOneTo127AreNeverEntitled) {
  market = {};
  const int ids[] = {0, -3, 127, 128, 1000};
  for (const int id : ids)
    ListExchange(id, ("X" + std::to_string(id)).c_str());
  market.entitled = "0,-3,127,128,1000";
  Serve();
  Start();
  ASSERT_EQ(tables.InitAuthorizedExch(), 1);
  for (const int id : ids) {
    EXPECT_EQ(tables.IsAuthorizedExch(("X" + std::to_string(id)).c_str()), id == 127) << id;
    EXPECT_EQ(tables.IsAuthExch(id), id == 127) << id;
  }
}

TEST_F(SymbolTablesExchangeTest, EntitlementTextIsReadPieceByPiece) {
  const struct {
    const char* text;
    const char* exchIds;
  } cases[] = {{"0,3,128,abc,7", "3 7 "},         {"", ""}, {"127", "127 "}, {"1,1,,2", "1 2 "},
               {" 5x,+6,-7,99999999999", "5 6 "}, {",", ""}};
  for (const auto& each : cases) {
    market.entitled = each.text;
    Serve();
    EXPECT_EQ(Entitled(), each.exchIds) << each.text;
  }
}

TEST_F(SymbolTablesExchangeTest, EntitlementTextThatFillsItsBufferEndsThere) {
  for (int i = 0; i < 400; ++i)
    market.entitled += "4";
  Serve();
  EXPECT_EQ(Entitled(), "1 2 ");
}

TEST_F(SymbolTablesExchangeTest, MaskThatCannotBeReadStaysAsItWas) {
  int mask[128] = {};
  mask[5] = 9;
  standin::FailCall("TQSGetUserInfo", 1);
  EXPECT_EQ(tables.GetAuthMask(mask), 0);
  EXPECT_EQ(mask[1], 0);
  EXPECT_NE(tables.GetAuthMask(mask), 0);
  EXPECT_EQ(mask[1], 1);
  EXPECT_EQ(mask[5], 9);
}

TEST_F(SymbolTablesExchangeTest, OneExchangesEntitlementIsReadAfresh) {
  EXPECT_EQ(tables.IsAuthExch(3), 1);
  EXPECT_EQ(tables.IsAuthExch(10), 0);
  market.entitled = "10";
  Serve();
  EXPECT_EQ(tables.IsAuthExch(3), 0);
  EXPECT_EQ(tables.IsAuthExch(10), 1);
  ASSERT_EQ(standin::CountCalls("TQSGetUserInfo"), 4);
  EXPECT_EQ(standin::Calls()[0].arguments, "0,");
  standin::FailCall("TQSGetUserInfo", 1);
  EXPECT_EQ(tables.IsAuthExch(10), 0);
  standin::ClearCalls();
  EXPECT_EQ(tables.IsAuthExch(0), 0);
  EXPECT_EQ(tables.IsAuthExch(128), 0);
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(SymbolTablesExchangeTest, FamilyIsSupportedOnlyAsAWhole) {
  const struct {
    const char* entitled;
    int supported;
  } cases[] = {{"10,11,12", 1}, {"12,1,10,11", 1}, {"10,11", 0},
               {"10,12", 0},    {"11,12", 0},      {"", 0}};
  for (const auto& each : cases) {
    market.entitled = each.entitled;
    Serve();
    EXPECT_EQ(tables.IsSupportUJKExch(), each.supported) << each.entitled;
  }
  market.entitled = "10,11,12";
  Serve();
  standin::FailCall("TQSGetUserInfo", 1);
  EXPECT_EQ(tables.IsSupportUJKExch(), 0);
}

TEST_F(SymbolTablesExchangeTest, ExchangeIdsBecomeNames) {
  Start();
  EXPECT_EQ(Mapped("3"), "TF");
  EXPECT_EQ(Mapped("3,1"), "TF,TW");
  EXPECT_EQ(Mapped("3,99,1"), "TF,TW");
  EXPECT_EQ(Mapped(""), "");
  EXPECT_EQ(Mapped("99"), "");
  EXPECT_EQ(Mapped("abc"), "");
  EXPECT_EQ(Mapped("1,1"), "TW,TW");
}

TEST_F(SymbolTablesExchangeTest, FirstIdThatIsLeftOutLeavesItsComma) {
  Start();
  EXPECT_EQ(Mapped("10,3"), ",TF");
  EXPECT_EQ(Mapped("99,3"), ",TF");
  EXPECT_EQ(Mapped(",3"), ",TF");
}

TEST_F(SymbolTablesExchangeTest, FamilyIsShownWithAFullMenuAlone) {
  Start();
  EXPECT_EQ(Mapped("1,10,11,12,2"), "TW,TE");
  market.fullMenuKey = "1";
  Serve();
  EXPECT_EQ(Mapped("1,10,11,12,2"), "TW,NYSE,NASD,AMEX,TE");
  standin::FailCall("TQSGetUserExtraValue", 1);
  EXPECT_EQ(Mapped("10,3"), ",TF");
}

TEST_F(SymbolTablesExchangeTest, FullMenuIsAskedForOnceAndOnlyForTheFamily) {
  Start();
  Mapped("1,2,3");
  EXPECT_TRUE(standin::Calls().empty());
  Mapped("10,11,12");
  ASSERT_EQ(standin::Calls().size(), 1u);
  EXPECT_EQ(standin::Calls()[0].arguments, ",FullMenuKey,1024");
}

TEST_F(SymbolTablesExchangeTest, IdSplitsWhereItsSuffixIsAnExchange) {
  Start();
  const struct {
    const char* id;
    const char* parts;
  } cases[] = {{"2330.TW", "2330|TW"},
               {"2330.tW", "2330|tW"},
               {"2330.XX", "2330.XX|"},
               {"2330", "2330|"},
               {"", "|"},
               {"2330.", "2330.|"},
               {".TW", "|TW"},
               {"BRK.B", "BRK.B|"},
               {"BRK.B.NYSE", "BRK.B|NYSE"},
               {"2330.TW.XX", "2330.TW.XX|"},
               {"2330.XX.TE", "2330.XX|TE"}};
  for (const auto& each : cases)
    EXPECT_EQ(Split(each.id), each.parts) << each.id;
}

TEST_F(SymbolTablesExchangeTest, ExchangePartAloneTellsWhetherThereIsOne) {
  Start();
  CString name;
  EXPECT_NE(tables.GetExch("2330.te", name), 0);
  EXPECT_STREQ(name, "te");
  EXPECT_EQ(tables.GetExch("2330.xx", name), 0);
  EXPECT_STREQ(name, "");
}

TEST_F(SymbolTablesExchangeTest, DefaultExchangesSuffixIsTakenOff) {
  Start();
  const struct {
    const char* id;
    const char* symbol;
  } cases[] = {{"2330.TW", "2330"},    {"2330.TE", "2330"},      {"2330.tw", "2330.tw"},
               {"2330.TF", "2330.TF"}, {"2330", "2330"},         {"", ""},
               {"2330.XX", "2330.XX"}, {"UNKNOWN.TW", "UNKNOWN"}};
  for (const auto& each : cases)
    EXPECT_STREQ(tables.HandleDefaultExchangeSymbol(each.id), each.symbol) << each.id;
  tables.SetDefaults({99, 3});
  EXPECT_STREQ(tables.HandleDefaultExchangeSymbol("A.TF"), "A");
  EXPECT_STREQ(tables.HandleDefaultExchangeSymbol("A.TW"), "A.TW");
}

TEST_F(SymbolTablesExchangeTest, DefaultExchangesThatHoldASymbolAreCounted) {
  Start();
  CString name("before");
  EXPECT_EQ(tables.GetDefaultExchange("TXFL6", name), 0);
  EXPECT_STREQ(name, "before");
  EXPECT_EQ(tables.GetDefaultExchange("2330", name), 1);
  EXPECT_STREQ(name, "TW");
  EXPECT_EQ(tables.GetDefaultExchange("7777", name), 2);
  EXPECT_STREQ(name, "TE") << "the last in order";
  EXPECT_EQ(tables.GetDefaultExchange("7777.TW", name), 1) << "each takes its own suffix off";
  tables.SetDefaults({2, 99, 1});
  EXPECT_EQ(tables.GetDefaultExchange("7777", name), 2);
  EXPECT_STREQ(name, "TW");
}

TEST_F(SymbolTablesExchangeTest, FirstDefaultExchangeThatHoldsASymbol) {
  Start();
  CString name("before");
  EXPECT_EQ(tables.IsGetDefaultExchange("TXFL6", name), 0);
  EXPECT_STREQ(name, "before");
  EXPECT_NE(tables.IsGetDefaultExchange("7777", name), 0);
  EXPECT_STREQ(name, "TW");
}

TEST_F(SymbolTablesExchangeTest, DefaultExchangeWithoutTableIsPassedOverUntilItHasOne) {
  Start();
  tables.SetDefaults({5, 1});
  CString name;
  EXPECT_EQ(tables.GetDefaultExchange("2330", name), 1);
  ListExchange(5, "NEW");
  List(5, "2330");
  Serve();
  ASSERT_EQ(tables.RebuildSymbolTable("", 5), 1);
  EXPECT_EQ(tables.GetDefaultExchange("2330", name), 2);
  EXPECT_NE(tables.IsGetDefaultExchange("2330", name), 0);
  EXPECT_STREQ(name, "NEW");
}

TEST_F(SymbolTablesExchangeTest, TableIsFoundByNameOrWithoutOneById) {
  Start();
  EXPECT_EQ(tables.FindSymbolTableIndex("TE", 1), 1);
  EXPECT_EQ(tables.FindSymbolTableIndex("te", 1), -1);
  EXPECT_EQ(tables.FindSymbolTableIndex("", 3), 2);
  EXPECT_EQ(tables.FindSymbolTableIndex("", 99), -1);
  EXPECT_EQ(tables.MapToSymbolTableIndex(12), 5);
  EXPECT_EQ(tables.MapToSymbolTableIndex(99), -1);
}

} // namespace
