#include "tests/interface/SymbolTablesTest.h"

namespace {

class SymbolTablesRebuildTest : public SymbolTablesTest {
protected:
  // Exchanges of these names, in this order, each with the symbol "A".
  void ServeExchanges(std::initializer_list<const char*> names) {
    const std::string entitled = market.entitled;
    market = {};
    market.entitled = entitled;
    for (const char* name : names) {
      ListExchange(20 + name[0] - 'A', name);
      List(20 + name[0] - 'A', "A");
    }
    Serve();
  }
  std::string Slots() {
    std::string slots(128, '-');
    for (const char* name : {"A", "B", "C", "D", "E", "F", "G", "H"})
      if (const int slot = tables.SlotOf(name); slot >= 0)
        slots[static_cast<std::size_t>(slot)] = *name;
    return slots.substr(0, slots.find_last_not_of('-') + 1);
  }
};

TEST_F(SymbolTablesRebuildTest, ExchangeListThatFailsChangesNothing) {
  ServeExchanges({"A", "B"});
  Start();
  ServeExchanges({"C"});
  standin::FailCall("VLGetExch", 1);
  EXPECT_EQ(tables.RebuildSymbolTable(), 0);
  EXPECT_EQ(Slots(), "AB");
}

TEST_F(SymbolTablesRebuildTest, GoneExchangesLeaveAndKeptOnesAreNotReloaded) {
  ServeExchanges({"A", "B", "C"});
  Start();
  ServeExchanges({"C", "A"});
  EXPECT_EQ(tables.RebuildSymbolTable(), 1);
  EXPECT_EQ(Slots(), "A-C");
  EXPECT_EQ(standin::CountCalls("VLGetBaseAttrs2"), 0);
}

TEST_F(SymbolTablesRebuildTest, NewExchangesAreLoadedAndEntitled) {
  market.entitled = "21";
  ServeExchanges({"A"});
  Start();
  ServeExchanges({"A", "B", "C"});
  EXPECT_EQ(tables.RebuildSymbolTable(), 1);
  EXPECT_EQ(Slots(), "ABC");
  EXPECT_EQ(tables.Id("A", "B"), "A.B");
  EXPECT_EQ(tables.IsAuthorizedExch("B"), 1);
  EXPECT_EQ(tables.IsAuthorizedExch("C"), 0);
  EXPECT_EQ(standin::CountCalls("TQSGetUserInfo"), 2) << "read afresh for each";
}

TEST_F(SymbolTablesRebuildTest, FreeSlotIsLookedForFromTheExchangesPlaceInTheList) {
  ServeExchanges({"A", "B", "C"});
  Start();
  ServeExchanges({"C", "D"});
  EXPECT_EQ(tables.RebuildSymbolTable(), 1);
  EXPECT_EQ(Slots(), "-DC") << "slot 0 is free, but lies before D's place";
}

TEST_F(SymbolTablesRebuildTest, ExchangesBesidePassedSlotsWaitForALaterRun) {
  ServeExchanges({"A", "B", "C"});
  Start();
  // D is first: slots 0 to 2 are occupied, it takes slot 3, and the walk goes on at place 4.
  ServeExchanges({"D", "E", "F", "G", "H", "A", "B", "C"});
  EXPECT_EQ(tables.RebuildSymbolTable(), 1);
  EXPECT_EQ(Slots(), "ABCDH");
  EXPECT_EQ(tables.RebuildSymbolTable(), 1);
  EXPECT_EQ(Slots(), "ABCDHE") << "E is at place 1, slot 5 is the next free one";
  EXPECT_EQ(tables.RebuildSymbolTable(), 1);
  EXPECT_EQ(Slots(), "ABCDHEF");
  EXPECT_EQ(tables.RebuildSymbolTable(), 1);
  EXPECT_EQ(Slots(), "ABCDHEFG");
}

TEST_F(SymbolTablesRebuildTest, WalkEndsWhenNoSlotIsLeft) {
  market = {};
  for (int i = 0; i < 128; ++i)
    ListExchange(i + 1, ("X" + std::to_string(i)).c_str());
  Serve();
  Start();
  market.exchanges[3] = {200, "NEW", "NEW", "NEW"};
  ListExchange(201, "LAST");
  Serve();
  EXPECT_EQ(tables.RebuildSymbolTable(), 0);
  EXPECT_EQ(tables.SlotOf("NEW"), 3);
  EXPECT_EQ(tables.SlotOf("LAST"), -1);
}

TEST_F(SymbolTablesRebuildTest, OfTwoTablesWithOneNameTheSecondLeaves) {
  ServeExchanges({"A", "B"});
  Start();
  ASSERT_EQ(tables.RebuildSymbolTable("B", 21), 1);
  market.exchanges.push_back({30, "A", "A", "A"});
  Serve();
  ASSERT_EQ(tables.InitAllSymbolTable(), 1);
  ASSERT_NE(tables.TableAt(2), nullptr);
  EXPECT_EQ(tables.RebuildSymbolTable(), 1);
  EXPECT_EQ(tables.MapToSymbolTableIndex(30), -1);
  EXPECT_EQ(Slots(), "AB");
}

TEST_F(SymbolTablesRebuildTest, NewTableThatFailsToLoadDoesNotEndTheWalk) {
  ServeExchanges({"A"});
  Start();
  ServeExchanges({"A", "B", "C"});
  standin::FailCall("VLGetBaseAttrs2", 1);
  EXPECT_EQ(tables.RebuildSymbolTable(), 1);
  EXPECT_EQ(tables.Id("A", "B"), "");
  EXPECT_EQ(tables.Id("A", "C"), "A.C");
}

TEST_F(SymbolTablesRebuildTest, MinusOneRebuildsTheSet) {
  ServeExchanges({"A"});
  Start();
  ServeExchanges({"B"});
  EXPECT_EQ(tables.RebuildSymbolTable("A", -1), 1);
  EXPECT_EQ(Slots(), "B");
}

TEST_F(SymbolTablesRebuildTest, OneTableIsReloadedByNameOrById) {
  for (const char* name : {"TE", ""}) {
    market = SmallMarket();
    Serve();
    Start();
    Listed("6488", 2).lot = 9;
    Listed("2330", 1).lot = 9;
    Serve();
    EXPECT_EQ(tables.RebuildSymbolTable(name, 2), 1);
    EXPECT_EQ(tables.Lot("6488", "TE"), 9);
    EXPECT_EQ(tables.Lot("2330", "TW"), 1000);
    EXPECT_EQ(standin::CountCalls("VLGetExch"), 0);
    EXPECT_EQ(standin::CountCalls("VLGetBaseAttrs2"), 1);
  }
}

TEST_F(SymbolTablesRebuildTest, NameIsStrongerThanId) {
  Start();
  EXPECT_EQ(tables.RebuildSymbolTable("TE", 1), 1);
  ASSERT_EQ(standin::CountCalls("VLGetBaseAttrs2"), 1);
  EXPECT_EQ(standin::Calls()[0].arguments, "2,-1,0,1");
}

TEST_F(SymbolTablesRebuildTest, ReloadThatFailsLeavesTheTableEmpty) {
  Start();
  standin::FailCall("VLGetBaseAttrs2", 1);
  EXPECT_EQ(tables.RebuildSymbolTable("TE", 2), 0);
  EXPECT_EQ(tables.SlotOf("TE"), 1);
  EXPECT_EQ(tables.Id("6488", "TE"), "");
}

TEST_F(SymbolTablesRebuildTest, MissingTableIsMadeUnderTheGivenName) {
  Start();
  ListExchange(5, "NEW");
  List(5, "A");
  market.entitled = "5";
  Serve();
  EXPECT_EQ(tables.RebuildSymbolTable("te", 5), 1) << "letter case counts: this is no table yet";
  EXPECT_EQ(tables.SlotOf("te"), 6);
  EXPECT_EQ(tables.IsAuthorizedExch("te"), 1);
  EXPECT_EQ(standin::CountCalls("VLGetExch"), 0);
}

TEST_F(SymbolTablesRebuildTest, MissingTableWithoutNameIsNamedByTheService) {
  Start();
  ListExchange(5, "NEW");
  Serve();
  EXPECT_EQ(tables.RebuildSymbolTable("", 5), 1);
  EXPECT_EQ(tables.SlotOf("NEW"), 6);
  EXPECT_EQ(tables.RebuildSymbolTable("", 6), 0);
  EXPECT_EQ(tables.TableAt(7), nullptr);
}

} // namespace
