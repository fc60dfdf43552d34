#include "tests/interface/SymbolTablesTest.h"

namespace {

class SymbolTablesLifeTest : public SymbolTablesTest {};

TEST_F(SymbolTablesLifeTest, NewTablesAreEmptyAndAskNothing) {
  EXPECT_TRUE(standin::Calls().empty());
  for (int slot = 0; slot < 128; ++slot)
    EXPECT_EQ(tables.TableAt(slot), nullptr);
  EXPECT_EQ(tables.Id("2330", "TW"), "");
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(SymbolTablesLifeTest, EachExchangeGetsTheSlotOfItsPlaceInTheList) {
  Start();
  const char* const names[] = {"TW", "TE", "TF", "NYSE", "NASD", "AMEX"};
  for (int slot = 0; slot < 6; ++slot)
    EXPECT_EQ(tables.SlotOf(names[slot]), slot);
  EXPECT_EQ(tables.TableAt(6), nullptr);
  EXPECT_EQ(tables.Id("2330", "TW"), "2330.TW");
  EXPECT_EQ(tables.Id("BRK.B", "NYSE"), "BRK.B.NYSE");
}

TEST_F(SymbolTablesLifeTest, LoadingAsksForTheListAndForEachExchangeOnce) {
  ASSERT_EQ(tables.InitAllSymbolTable(), 1);
  EXPECT_EQ(standin::CountCalls("VLGetExch"), 1);
  EXPECT_EQ(standin::CountCalls("VLGetBaseAttrs2"), 6);
  EXPECT_EQ(standin::Calls()[0].arguments, "1");
  EXPECT_EQ(standin::Calls()[1].arguments, "1,-1,0,1");
}

TEST_F(SymbolTablesLifeTest, NoTableIsEntitledBeforeTheEntitlementsAreRead) {
  Start();
  EXPECT_EQ(tables.IsAuthorizedExch("TW"), 0);
  ASSERT_EQ(tables.InitAuthorizedExch(), 1);
  EXPECT_EQ(tables.IsAuthorizedExch("TW"), 1);
  EXPECT_EQ(tables.IsAuthorizedExch("NYSE"), 0);
}

TEST_F(SymbolTablesLifeTest, ExchangeListThatFailsLeavesNoTable) {
  standin::FailCall("VLGetExch", 1);
  EXPECT_EQ(tables.InitAllSymbolTable(), 0);
  EXPECT_EQ(tables.TableAt(0), nullptr);
}

TEST_F(SymbolTablesLifeTest, ExchangeThatFailsToLoadIsThereAndEmpty) {
  standin::FailCall("VLGetBaseAttrs2", 2);
  EXPECT_EQ(tables.InitAllSymbolTable(), 0);
  EXPECT_EQ(tables.SlotOf("TE"), 1);
  EXPECT_EQ(tables.Id("6488", "TE"), "");
  EXPECT_EQ(tables.Id("2330", "TW"), "2330.TW");
  EXPECT_EQ(tables.Id("AAPL", "NASD"), "AAPL.NASD");
}

TEST_F(SymbolTablesLifeTest, ExchangeWithoutSymbolsCountsAsLoaded) {
  ListExchange(40, "EMPTY");
  Serve();
  EXPECT_EQ(tables.InitAllSymbolTable(), 1);
  EXPECT_EQ(tables.SlotOf("EMPTY"), 6);
}

TEST_F(SymbolTablesLifeTest, NoExchangesAreNoFailure) {
  standin::SetMarket({});
  EXPECT_EQ(tables.InitAllSymbolTable(), 1);
  EXPECT_EQ(tables.TableAt(0), nullptr);
}

TEST_F(SymbolTablesLifeTest, ExchangesBeyondThe128thGetNoTable) {
  market = {};
  for (int i = 0; i < 150; ++i) {
    ListExchange(i + 1, ("X" + std::to_string(i)).c_str());
    List(i + 1, "A");
  }
  Serve();
  EXPECT_EQ(tables.InitAllSymbolTable(), 1);
  EXPECT_EQ(tables.Id("A", "X127"), "A.X127");
  EXPECT_EQ(tables.SlotOf("X128"), -1);
  EXPECT_EQ(standin::CountCalls("VLGetBaseAttrs2"), 128);
  EXPECT_EQ(Add(140, {"A"}), 0) << "no slot is free";
  EXPECT_EQ(tables.RebuildSymbolTable("NEW", 140), 0);
  EXPECT_EQ(tables.RebuildSymbolTable(), 0);
}

TEST_F(SymbolTablesLifeTest, OfAnExchangeListedTwiceTheFirstTableAnswers) {
  ListExchange(50, "TW");
  List(50, "NEW");
  Serve();
  Start();
  EXPECT_EQ(tables.SlotOf("TW"), 0);
  EXPECT_EQ(tables.MapToSymbolTableIndex(50), 6);
  EXPECT_EQ(tables.Id("2330", "TW"), "2330.TW");
  EXPECT_EQ(tables.Id("NEW", "TW"), "");
}

TEST_F(SymbolTablesLifeTest, SymbolsThatTheServiceMarksUnusableAreLeftOut) {
  Listed("2330", 1).usable = false;
  Serve();
  Start();
  EXPECT_EQ(tables.Id("2330", "TW"), "");
  EXPECT_EQ(tables.Id("2317", "TW"), "2317.TW");
}

TEST_F(SymbolTablesLifeTest, SymbolsWithoutIdAreLeftOut) {
  standin::FailCall("CStockAttr::GetID", 1);
  Start();
  EXPECT_EQ(tables.Id("2330", "TW"), "");
  EXPECT_EQ(tables.Id("2317", "TW"), "2317.TW");
}

TEST_F(SymbolTablesLifeTest, CleaningDeletesTheTablesAndKeepsTheDefaults) {
  Start();
  tables.CleanALL();
  EXPECT_EQ(tables.TableAt(0), nullptr);
  EXPECT_EQ(tables.Id("2330", "TW"), "");
  EXPECT_EQ(tables.SlotOf("TW"), -1);
  CString name;
  EXPECT_EQ(tables.GetDefaultExchange("2330", name), 0);
  ASSERT_EQ(tables.InitAllSymbolTable(), 1);
  EXPECT_EQ(tables.GetDefaultExchange("2330", name), 1);
}

TEST_F(SymbolTablesLifeTest, BuildingTwiceReplacesTheTables) {
  Start();
  Listed("2330", 1).lot = 5;
  Serve();
  ASSERT_EQ(tables.InitAllSymbolTable(), 1);
  EXPECT_EQ(tables.Lot("2330", "TW"), 5);
  EXPECT_EQ(tables.TableAt(6), nullptr);
}

TEST_F(SymbolTablesLifeTest, DefaultListIsACopy) {
  Start();
  CUIntArray ids;
  ids.Add(2);
  tables.InitDefaultExchList(ids);
  ids.SetAt(0, 1);
  CString name;
  EXPECT_EQ(tables.GetDefaultExchange("2330", name), 0);
  EXPECT_EQ(tables.GetDefaultExchange("6488", name), 1);
}

} // namespace
