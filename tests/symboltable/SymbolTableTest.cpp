#include "symboltable/SymbolTable.h"

#include <string>

#include "tests/support/StandInTest.h"
#include "tests/symboltable/Records.h"

namespace {

class TableTest : public StandInTest {
protected:
  void Insert(std::string_view code, int lot = 1000, std::string_view name = "",
              std::string_view suffix = "TF") {
    InsertRecord(table, TestRecord(code, suffix, name, lot));
  }
  int Lot(std::string_view id) { return LotOf(table.FindId(id)); }

  CSymbolTable table{"TF", 3};
};

TEST_F(TableTest, NewTableIsEmptyAndNotEntitled) {
  EXPECT_EQ(table.FindId("A"), nullptr);
  EXPECT_EQ(table.FindId(""), nullptr);
  EXPECT_FALSE(table.IsAuthorized());
  for (int bucket = 0; bucket < tq::kBucketCount; ++bucket)
    EXPECT_EQ(table.Head(bucket), nullptr);
}

TEST_F(TableTest, SymbolIsFoundBareAndWithItsExchangeInAnyCase) {
  Insert("TXFL6");
  for (const char* id : {"TXFL6", "TXFL6.TF", "TXFL6.tf", "TXFL6.tF"})
    EXPECT_STREQ(IdOf(table.FindId(id)), "TXFL6.TF") << id;
  for (const char* id : {"txfl6", "TXFL6.TW", "TXFL", "TXFL66", ".TF"})
    EXPECT_EQ(table.FindId(id), nullptr) << id;
}

TEST_F(TableTest, IdsAreHeldInUpperCaseByWholeCharacters) {
  Insert("txfl6");
  EXPECT_STREQ(IdOf(table.FindId("TXFL6")), "TXFL6.TF");
  Insert("q\xa4\x61q");
  EXPECT_STREQ(IdOf(table.FindId("Q\xa4\x61Q")), "Q\xa4\x61Q.TF");
}

TEST_F(TableTest, IdOfAForeignExchangeIsAKeyAsAWhole) {
  Insert("2330", 7, "", "TW");
  EXPECT_STREQ(IdOf(table.FindId("2330.TW")), "2330.TW");
  EXPECT_EQ(table.FindId("2330"), nullptr);
  EXPECT_EQ(table.FindId("2330.tw"), nullptr) << "only this exchange's suffix has no case";
}

TEST_F(TableTest, NameInLowerCaseStillNamesTheExchange) {
  CSymbolTable lower("tf", 3);
  InsertRecord(lower, TestRecord("A", "tf"));
  EXPECT_STREQ(IdOf(lower.FindId("A")), "A.TF");
  EXPECT_STREQ(IdOf(lower.FindId("A.TF")), "A.TF");
}

TEST_F(TableTest, KeysOfEveryLengthAreToldApart) {
  std::string code;
  for (int length = 1; length <= 19; ++length) {
    code += static_cast<char>('A' + length);
    Insert(code, length);
  }
  for (std::size_t length = 1; length <= 19; ++length) {
    EXPECT_EQ(Lot(code.substr(0, length)), static_cast<int>(length));
    std::string other = code.substr(0, length);
    other.back() = '!';
    EXPECT_EQ(table.FindId(other), nullptr);
  }
  EXPECT_EQ(table.FindId(std::string(100000, 'A')), nullptr);
}

TEST_F(TableTest, SymbolWithoutIdIsDropped) {
  const TestRecord record("A", "TF");
  CStaticKey key;
  ASSERT_NE(key.Setup(&record.bytes), 0);
  standin::FailCall("CStockAttr::GetID", 1);
  tq::ItemTextReader reader;
  table.Insert(key, reader);
  EXPECT_EQ(table.FindId("A"), nullptr);
  EXPECT_EQ(table.Head(65), nullptr);
}

TEST_F(TableTest, SymbolsOfOneChainStandInTheOrderOfLoading) {
  Insert("AB", 1);
  Insert("BA", 2);
  Insert("AAAA", 3);
  const CSymbolItem* item = table.Head('A' + 'B');
  EXPECT_STREQ(IdOf(item), "AB.TF");
  EXPECT_EQ(item->Previous(), nullptr);
  EXPECT_STREQ(IdOf(item->Next()), "BA.TF");
  EXPECT_EQ(item->Next()->Previous(), item);
  EXPECT_EQ(item->Next()->Next(), nullptr);
}

TEST_F(TableTest, FirstOfEqualSymbolsAnswersUntilItIsRemoved) {
  for (const int lot : {1, 2, 3})
    Insert("A", lot);
  for (const int lot : {1, 2, 3}) {
    EXPECT_EQ(Lot("A"), lot);
    table.Remove("A");
  }
  EXPECT_EQ(table.FindId("A"), nullptr);
  EXPECT_EQ(table.Head('A'), nullptr);
  Insert("A", 4);
  EXPECT_EQ(Lot("A"), 4);
}

TEST_F(TableTest, RemovalTakesHeadMiddleAndTail) {
  for (const char* code : {"ABC", "ACB", "BAC", "BCA"})
    Insert(code);
  table.Remove("ACB");
  table.Remove("BCA");
  table.Remove("ABC.tf");
  const CSymbolItem* item = table.Head('A' + 'B' + 'C');
  EXPECT_STREQ(IdOf(item), "BAC.TF");
  EXPECT_EQ(item->Previous(), nullptr);
  EXPECT_EQ(item->Next(), nullptr);
  Insert("CAB");
  EXPECT_STREQ(IdOf(item->Next()), "CAB.TF") << "the tail was kept in step";
}

TEST_F(TableTest, RemovalIgnoresCaseWhereTheChainStays) {
  CSymbolTable numeric("TW", 1);
  InsertRecord(numeric, TestRecord("1234A", "TW"));
  numeric.Remove("1234a");
  EXPECT_EQ(numeric.FindId("1234A"), nullptr);

  Insert("ABCDEFGHIJKLMN");
  table.Remove("ABCDEFGHIJKLmn");
  EXPECT_EQ(table.FindId("ABCDEFGHIJKLMN"), nullptr) << "behind the twelfth byte";
}

TEST_F(TableTest, RemovalInAnotherCaseMissesWhereTheChainDiffers) {
  Insert("AAPL");
  table.Remove("aapl");
  EXPECT_STREQ(IdOf(table.FindId("AAPL")), "AAPL.TF");
}

TEST_F(TableTest, RemovalOfWhatIsNotThereChangesNothing) {
  Insert("AB");
  for (const char* id : {"BA", "", "AB.TW", "Z"})
    table.Remove(id);
  EXPECT_STREQ(IdOf(table.FindId("AB")), "AB.TF");
}

TEST_F(TableTest, NameIsSearchedChainByChainNotByAge) {
  Insert("B", 1, "same");
  Insert("A", 2, "same");
  EXPECT_STREQ(IdOf(table.FindName("same")), "A.TF");
  EXPECT_EQ(table.FindName("Same"), nullptr);
}

TEST_F(TableTest, ReloadReplacesAllSymbols) {
  Insert("OLD");
  EXPECT_EQ(table.Load(), 1);
  EXPECT_EQ(table.FindId("OLD"), nullptr);
  EXPECT_STREQ(IdOf(table.FindId("TXFL6")), "TXFL6.TF");
}

TEST_F(TableTest, FailedLoadLeavesTheTableEmpty) {
  Insert("OLD");
  standin::FailCall("VLGetBaseAttrs2", 1);
  EXPECT_EQ(table.Load(), 0);
  EXPECT_EQ(table.FindId("OLD"), nullptr);
  EXPECT_EQ(table.FindId("TXFL6"), nullptr);
}

TEST_F(TableTest, UnusableRecordsAreLeftOutOfALoad) {
  standin::Market market = SmallMarket();
  for (standin::Instrument& instrument : market.instruments)
    instrument.usable = instrument.code != "TXFL6";
  standin::SetMarket(market);
  EXPECT_EQ(table.Load(), 1);
  EXPECT_EQ(table.FindId("TXFL6"), nullptr);
  EXPECT_NE(table.FindId("TXFA7"), nullptr);
}

TEST_F(TableTest, SymbolStaysUnderBudgetInMemory) {
  CSymbolTable loaded("TF", 3);
  constexpr int count = 2000;
  for (int i = 0; i < count; ++i)
    InsertRecord(loaded, TestRecord("S" + std::to_string(i), "TF"));
  EXPECT_LE(loaded.Footprint() / count, 176u) << "with id and name it has to be within 256 bytes";
}

} // namespace
