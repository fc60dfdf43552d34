#include <limits>

#include "tests/interface/SymbolTablesTest.h"

namespace {

class SymbolTablesLookUpTest : public SymbolTablesTest {
protected:
  void SetUp() override {
    // One name in both languages: both code pages have it.
    for (standin::Instrument& instrument : market.instruments)
      instrument.nameCn = instrument.nameTw;
    Serve();
    Start();
  }

  // The text, or "-" when it was not found.
  std::string Text(int field, const char* id, const char* exchName = "") {
    CString value("before");
    if (tables.LookUpSymbolGetString(field, id, exchName, value))
      return value.GetString();
    return "-";
  }
  // The number by all three operations, which must agree; -9 when it was not found.
  long Number(int field, const char* id, const char* exchName = "") {
    int number = -9;
    long value = -9;
    long attribute = -9;
    const int found = tables.LookUpSymbolGetInt(field, id, exchName, number);
    EXPECT_EQ(tables.LookUpSymbolGetValue(field, id, exchName, value), found);
    EXPECT_EQ(tables.LookUpSymbolGetExAttr(field, id, exchName, attribute), found);
    EXPECT_EQ(value, number);
    EXPECT_EQ(attribute, number);
    return number;
  }
};

TEST_F(SymbolTablesLookUpTest, EmptyIdFails) {
  EXPECT_EQ(Text(FieldSymbolId, ""), "-");
  EXPECT_EQ(Text(FieldSymbolId, "", "TW"), "-");
  EXPECT_EQ(Text(FieldExchangeName, "", "TW"), "-");
  EXPECT_EQ(Number(FieldTradeLot, "", "TW"), -9);
}

TEST_F(SymbolTablesLookUpTest, SymbolIsFoundByEveryWayOfWritingIt) {
  const struct {
    const char* id;
    const char* exchName;
  } cases[] = {{"TXFL6.TF", ""}, {"txfl6.tf", ""},   {"TXFL6", "TF"},
               {"txfl6", "tf"},  {"TXFL6.TF", "TF"}, {"tXfL6.Tf", "tF"}};
  for (const auto& each : cases)
    EXPECT_EQ(Text(FieldSymbolId, each.id, each.exchName), "TXFL6.TF")
        << each.id << " " << each.exchName;
}

TEST_F(SymbolTablesLookUpTest, UnknownSymbolExchangeOrFieldFails) {
  EXPECT_EQ(Text(FieldSymbolId, "2331.TW"), "-");
  EXPECT_EQ(Text(FieldSymbolId, "2330", "XX"), "-");
  EXPECT_EQ(Text(FieldSymbolId, "2330.TW", "TE"), "-") << "the given exchange counts";
  EXPECT_EQ(Text(999, "2330.TW"), "-");
  EXPECT_EQ(Number(FieldTradeLot, "2331.TW"), -9);
  EXPECT_EQ(Number(FieldTradeLot, "TXFL6"), -9);
  EXPECT_EQ(Number(999, "2330.TW"), -1);
}

TEST_F(SymbolTablesLookUpTest, DotOfTheSymbolIsNoSuffix) {
  EXPECT_EQ(Text(FieldSymbolId, "BRK.B.NYSE"), "BRK.B.NYSE");
  EXPECT_EQ(Text(FieldSymbolId, "brk.b", "nyse"), "BRK.B.NYSE");
  EXPECT_EQ(Text(FieldSymbolId, "BRK.B"), "-");
  tables.SetDefaults({1, 10});
  EXPECT_EQ(Text(FieldSymbolId, "BRK.B"), "BRK.B.NYSE");
}

TEST_F(SymbolTablesLookUpTest, BareSymbolIsLookedForOnTheDefaultExchanges) {
  EXPECT_EQ(Text(FieldSymbolId, "6488"), "6488.TE");
  EXPECT_EQ(Text(FieldSymbolName, "6488"), standin::ToAnsi("環球晶"));
  EXPECT_EQ(Text(FieldSymbolId, "AAPL"), "-");
  EXPECT_EQ(Number(FieldTradeLot, "6488"), 1000);
}

TEST_F(SymbolTablesLookUpTest, BareSymbolOnTwoDefaultExchangesIsRefusedAsAnIdAlone) {
  EXPECT_EQ(Text(FieldSymbolId, "7777"), "-");
  EXPECT_EQ(Text(FieldSymbolName, "7777"), standin::ToAnsi("雙上市"));
  EXPECT_EQ(Number(FieldTradeLot, "7777"), 1000);
  tables.SetDefaults({2, 1});
  EXPECT_EQ(Text(FieldSymbolId, "7777"), "-");
  EXPECT_EQ(Text(FieldSymbolName, "7777"), standin::ToAnsi("雙上櫃"));
  EXPECT_EQ(Number(FieldTradeLot, "7777"), 2000);
  EXPECT_EQ(Text(FieldSymbolId, "7777.TW"), "7777.TW");
}

TEST_F(SymbolTablesLookUpTest, ExchangeThatIsADefaultTwiceMakesItsSymbolsAmbiguous) {
  tables.SetDefaults({1, 1});
  EXPECT_EQ(Text(FieldSymbolId, "2330"), "-");
  EXPECT_EQ(Number(FieldTradeLot, "2330"), 1000);
}

TEST_F(SymbolTablesLookUpTest, WithoutDefaultExchangesABareSymbolIsNotFound) {
  tables.SetDefaults({});
  EXPECT_EQ(Text(FieldSymbolId, "2330"), "-");
  EXPECT_EQ(Number(FieldTradeLot, "2330"), -9);
  EXPECT_EQ(Text(FieldSymbolId, "2330.TW"), "2330.TW");
}

TEST_F(SymbolTablesLookUpTest, ExchangeNameIsGivenOrDerivedWithoutLookingAtSymbols) {
  EXPECT_EQ(Text(FieldExchangeName, "nothing", "xx"), "XX");
  EXPECT_EQ(Text(FieldExchangeName, "nothing.tw"), "TW");
  EXPECT_EQ(Text(FieldExchangeName, "2330"), "-") << "default exchanges are not asked";
  EXPECT_EQ(Text(FieldExchangeName, "2330.xx"), "-");
  EXPECT_EQ(Number(FieldExchangeName, "2330"), 1) << "as a number it is an attribute";
}

TEST_F(SymbolTablesLookUpTest, ExchangeInLowerCaseIsFoundOnlyAsADefault) {
  ListExchange(50, "low");
  List(50, "ONLY", 5);
  Serve();
  Start();
  tables.SetDefaults({50});
  EXPECT_EQ(Text(FieldSymbolId, "ONLY"), "ONLY.LOW");
  EXPECT_EQ(Number(FieldTradeLot, "ONLY"), 5);
  EXPECT_EQ(Text(FieldSymbolId, "ONLY.low"), "-") << "the upper-cased suffix is not the name";
  EXPECT_EQ(Text(FieldSymbolId, "ONLY", "low"), "-");
  EXPECT_EQ(Text(FieldExchangeName, "ONLY.low"), "LOW");
}

TEST_F(SymbolTablesLookUpTest, OfTwoTablesWithOneNameTheLowerSlotAnswersForADefault) {
  ListExchange(50, "TW");
  List(50, "ONLY");
  List(50, "2330", 5);
  Serve();
  Start();
  tables.SetDefaults({50});
  EXPECT_EQ(Text(FieldSymbolId, "ONLY"), "-");
  EXPECT_EQ(Number(FieldTradeLot, "2330"), 1000);
}

TEST_F(SymbolTablesLookUpTest, ValueOfASymbolThatIsNotFoundIsLeftAlone) {
  CString text("before");
  EXPECT_EQ(tables.LookUpSymbolGetString(FieldSymbolName, "2331", "TW", text), 0);
  EXPECT_STREQ(text, "before");
  // More than an int holds, where a long does.
  constexpr long before = std::numeric_limits<long>::max();
  long value = before;
  EXPECT_EQ(tables.LookUpSymbolGetValue(FieldTradeLot, "2331", "TW", value), 0);
  EXPECT_EQ(value, before);
}

TEST_F(SymbolTablesLookUpTest, ValueMayBeTheIdItself) {
  CString id("2330.tw");
  EXPECT_EQ(tables.LookUpSymbolGetString(FieldSymbolId, id, "", id), 1);
  EXPECT_STREQ(id, "2330.TW");
}

TEST_F(SymbolTablesLookUpTest, CallersIdIsNotChanged) {
  const CString id("2330.tw");
  CString value;
  EXPECT_EQ(tables.LookUpSymbolGetString(FieldSymbolId, id, "", value), 1);
  EXPECT_STREQ(id, "2330.tw");
}

TEST_F(SymbolTablesLookUpTest, VeryLongIdsAreNotFound) {
  const std::string digits(1000000, '9');
  EXPECT_EQ(Text(FieldSymbolId, digits.c_str()), "-");
  EXPECT_EQ(Text(FieldSymbolId, (digits + ".TW").c_str()), "-");
  EXPECT_EQ(Text(FieldSymbolId, "2330", digits.c_str()), "-");
  EXPECT_EQ(Text(FieldSymbolId, (std::string(1000, 'a') + ".tw").c_str()), "-");
}

TEST_F(SymbolTablesLookUpTest, FirstSymbolOfANameIsFoundOverAllTables) {
  market.instruments.clear();
  const struct {
    int exchId;
    const char* code;
    const char* name;
  } listed[] = {{3, "A", "same"}, {2, "B", "same"}, {2, "A", "same"}, {1, "2", "other"}};
  for (const auto& each : listed) {
    List(each.exchId, each.code);
    market.instruments.back().nameTw = market.instruments.back().nameCn = each.name;
  }
  Serve();
  Start();
  CString id("before");
  EXPECT_EQ(tables.LookUpNameGetSymbolID("same", id), 1);
  EXPECT_STREQ(id, "A.TE") << "the lower slot, and there the lower chain";
  EXPECT_EQ(tables.LookUpNameGetSymbolID("Same", id), 0);
  EXPECT_EQ(tables.LookUpNameGetSymbolID("", id), 0);
  EXPECT_STREQ(id, "A.TE");
}

TEST_F(SymbolTablesLookUpTest, NamesWithBackslashBytesAreFound) {
  CString id;
  const std::string name = standin::ToAnsi("許功蓋");
  EXPECT_EQ(tables.LookUpNameGetSymbolID(name.c_str(), id), 1);
  EXPECT_STREQ(id, "1436.TW");
}

} // namespace
