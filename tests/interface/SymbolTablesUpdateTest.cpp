#include "tests/interface/SymbolTablesTest.h"

namespace {

class SymbolTablesUpdateTest : public SymbolTablesTest {};

TEST_F(SymbolTablesUpdateTest, AddedSymbolsAreAskedForInOneCall) {
  Start();
  List(1, "9999");
  List(1, "8888");
  Serve();
  EXPECT_EQ(Add(1, {"9999.TW", " 8888.TW  "}), 1);
  ASSERT_EQ(standin::CountCalls("VLGetBaseAttrs"), 1);
  EXPECT_EQ(standin::Calls()[0].arguments, "9999.TW,8888.TW,1");
  EXPECT_EQ(tables.Id("9999", "TW"), "9999.TW");
  EXPECT_EQ(tables.Id("8888", "TW"), "8888.TW");
}

TEST_F(SymbolTablesUpdateTest, RecordThatFillsItsNineteenBytesIsTakenWhole) {
  Start();
  List(1, "1234567890123456789");
  Serve();
  EXPECT_EQ(Add(1, {"1234567890123456789", "2330"}), 1);
  EXPECT_EQ(standin::Calls()[0].arguments, "1234567890123456789,2330,1");
  EXPECT_EQ(tables.Id("1234567890123456789", "TW"), "1234567890123456789.TW");
}

TEST_F(SymbolTablesUpdateTest, SymbolAddedTwiceAnswersAsBeforeUntilRemoved) {
  Start();
  Listed("2330", 1).lot = 7;
  Serve();
  ASSERT_EQ(Add(1, {"2330.TW"}), 1);
  EXPECT_EQ(tables.Lot("2330", "TW"), 1000);
  ASSERT_EQ(Remove(1, {"2330"}), 1);
  EXPECT_EQ(tables.Lot("2330", "TW"), 7);
  ASSERT_EQ(Remove(1, {"2330"}), 1);
  EXPECT_EQ(tables.Id("2330", "TW"), "");
}

TEST_F(SymbolTablesUpdateTest, RecordsThatCannotBeSetUpAreNotAdded) {
  Start();
  List(1, "9999");
  Listed("9999", 1).usable = false;
  Serve();
  EXPECT_EQ(Add(1, {"9999.TW"}), 1);
  EXPECT_EQ(tables.Id("9999", "TW"), "");
}

TEST_F(SymbolTablesUpdateTest, AddThatFailsChangesNothing) {
  Start();
  List(1, "9999");
  Serve();
  standin::FailCall("VLGetBaseAttrs", 1);
  EXPECT_EQ(Add(1, {"9999.TW"}), 0);
  EXPECT_EQ(tables.Id("9999", "TW"), "");
  EXPECT_EQ(tables.Id("2330", "TW"), "2330.TW");
}

TEST_F(SymbolTablesUpdateTest, NoSymbolsAreNoWork) {
  Start();
  for (const int count : {0, -1}) {
    EXPECT_EQ(tables.AddSymbols(1, "", count), 1);
    EXPECT_EQ(tables.UpdateSymbols(1, "", count), 1);
    EXPECT_EQ(tables.RemoveSymbols(1, "", count), 1);
  }
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(SymbolTablesUpdateTest, ExchangeWithoutTableIsLoadedWholeAndEntitled) {
  Start();
  ListExchange(5, "NEW");
  List(5, "A");
  List(5, "B");
  market.entitled = "5";
  Serve();
  for (const bool adding : {true, false}) {
    Start();
    tables.CleanALL();
    EXPECT_EQ(adding ? Add(5, {"A"}) : Update(5, {"A"}), 1);
    EXPECT_EQ(tables.SlotOf("NEW"), 0);
    EXPECT_EQ(tables.Id("B", "NEW"), "B.NEW") << "the given symbols are not what is loaded";
    EXPECT_EQ(tables.IsAuthorizedExch("NEW"), 1);
    EXPECT_EQ(standin::CountCalls("VLGetBaseAttrs"), 0);
  }
}

TEST_F(SymbolTablesUpdateTest, NewTableTakesTheFirstFreeSlot) {
  Start();
  market.exchanges.erase(market.exchanges.begin() + 1);
  Serve();
  ASSERT_EQ(tables.RebuildSymbolTable(), 1);
  EXPECT_EQ(tables.TableAt(1), nullptr);
  ListExchange(5, "NEW");
  Serve();
  EXPECT_EQ(Add(5, {}), 1);
  EXPECT_EQ(tables.SlotOf("NEW"), 1);
}

TEST_F(SymbolTablesUpdateTest, ExchangeThatTheServiceDoesNotNameGetsNoTable) {
  Start();
  EXPECT_EQ(Add(77, {"A"}), 0);
  EXPECT_EQ(Update(77, {"A"}), 0);
  EXPECT_EQ(tables.MapToSymbolTableIndex(77), -1);
  EXPECT_EQ(tables.TableAt(6), nullptr);
}

TEST_F(SymbolTablesUpdateTest, NewTableThatFailsToLoadIsThereAndEmpty) {
  Start();
  ListExchange(5, "NEW");
  List(5, "A");
  Serve();
  standin::FailCall("VLGetBaseAttrs2", 1);
  EXPECT_EQ(Add(5, {"A"}), 0);
  EXPECT_EQ(tables.SlotOf("NEW"), 6);
  EXPECT_EQ(tables.Id("A", "NEW"), "");
}

TEST_F(SymbolTablesUpdateTest, UpdateTakesOverTheNewAttributes) {
  Start();
  Listed("2330", 1).lot = 500;
  Listed("2330", 1).nameTw = Listed("2330", 1).nameCn = "Renamed";
  Serve();
  EXPECT_EQ(Update(1, {"2330.TW"}), 1);
  EXPECT_EQ(standin::Calls()[0].arguments, "2330.TW,1");
  EXPECT_EQ(tables.Lot("2330", "TW"), 500);
  CString id;
  EXPECT_EQ(tables.LookUpNameGetSymbolID("Renamed", id), 1);
  EXPECT_STREQ(id, "2330.TW");
}

TEST_F(SymbolTablesUpdateTest, NameHandedOutEarlierIsNotTouchedByAnUpdate) {
  Start();
  CString before;
  ASSERT_EQ(tables.LookUpSymbolGetString(FieldSymbolName, "2330", "TW", before), 1);
  const std::string kept = before.GetString();
  Listed("2330", 1).nameTw = Listed("2330", 1).nameCn = "Renamed";
  Serve();
  ASSERT_EQ(Update(1, {"2330.TW"}), 1);
  EXPECT_EQ(before.GetString(), kept);
}

TEST_F(SymbolTablesUpdateTest, UpdateReachesTheFirstOfEqualSymbols) {
  Start();
  Listed("2330", 1).lot = 7;
  Serve();
  ASSERT_EQ(Add(1, {"2330.TW"}), 1);
  Listed("2330", 1).lot = 8;
  Serve();
  ASSERT_EQ(Update(1, {"2330.TW"}), 1);
  EXPECT_EQ(tables.Lot("2330", "TW"), 8);
  ASSERT_EQ(Remove(1, {"2330"}), 1);
  EXPECT_EQ(tables.Lot("2330", "TW"), 7);
}

TEST_F(SymbolTablesUpdateTest, UpdateOfASymbolThatIsNotThereIsPassedOver) {
  Start();
  List(1, "9999");
  Listed("2330", 1).lot = 500;
  Serve();
  EXPECT_EQ(Update(1, {"9999.TW", "2330.TW"}), 1);
  EXPECT_EQ(tables.Id("9999", "TW"), "");
  EXPECT_EQ(tables.Lot("2330", "TW"), 500);
}

TEST_F(SymbolTablesUpdateTest, RecordMarkedUnusableIsNotTakenOver) {
  Start();
  Listed("2330", 1).lot = 500;
  Listed("2330", 1).usable = false;
  Serve();
  EXPECT_EQ(Update(1, {"2330.TW"}), 1);
  EXPECT_EQ(tables.Lot("2330", "TW"), 1000);
  EXPECT_EQ(standin::CountCalls("CStaticKey::Setup"), 0);
}

TEST_F(SymbolTablesUpdateTest, UpdateThatFailsChangesNothing) {
  Start();
  Listed("2330", 1).lot = 500;
  Serve();
  standin::FailCall("VLGetBaseAttrs", 1);
  EXPECT_EQ(Update(1, {"2330.TW"}), 0);
  EXPECT_EQ(tables.Lot("2330", "TW"), 1000);
}

TEST_F(SymbolTablesUpdateTest, RemovalTakesBareAndFullIds) {
  Start();
  EXPECT_EQ(Remove(1, {"2330", " 2317.tw", "9999", "2454.TE", ""}), 1);
  EXPECT_EQ(tables.Id("2330", "TW"), "");
  EXPECT_EQ(tables.Id("2317", "TW"), "");
  EXPECT_EQ(tables.Id("2454", "TW"), "2454.TW") << "it was named on another exchange";
  EXPECT_EQ(tables.Id("1101", "TW"), "1101.TW");
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(SymbolTablesUpdateTest, RemovalNeedsATable) {
  Start();
  EXPECT_EQ(Remove(77, {"2330"}), 0);
  EXPECT_TRUE(standin::Calls().empty());
}

TEST_F(SymbolTablesUpdateTest, ManySymbolsOfOneChainAreRemovedInTime) {
  // Twelve leading zeros put all of them into one chain; they are removed from its end.
  constexpr int count = 20000;
  constexpr int firstNumber = 100000;
  const auto code = [](int i) { return "000000000000" + std::to_string(firstNumber + i); };
  market = {};
  ListExchange(9, "BIG");
  std::string records;
  for (int i = 0; i < count; ++i) {
    List(9, code(i).c_str());
    records += Packed({code(count - 1 - i)});
  }
  Serve();
  standin::RecordCalls(false);
  Start();
  EXPECT_EQ(tables.RemoveSymbols(9, records.data(), count - 1), 1);
  EXPECT_EQ(tables.Id(code(0).c_str(), "BIG"), code(0) + ".BIG");
  EXPECT_EQ(tables.Id(code(1).c_str(), "BIG"), "");
  EXPECT_EQ(tables.Id(code(count - 1).c_str(), "BIG"), "");
}

} // namespace
