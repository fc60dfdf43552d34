// The symbol that is meant with what was typed. Default exchanges are TW and TE.
#include "dialogs/search/TypedSymbol.h"

#include "tests/interface/EditTest.h"

namespace {

using tq::TypedMatch;

class TypedSymbolTest : public EditTest {
protected:
  TypedSymbolTest() { StartWith({"A/one/2330.TW"}); }
  // UTF-8. The id, "none" or "several".
  std::string Find(const std::string& text) {
    const tq::DialogSources sources(manager, manager.GetSymbolTableMgr());
    CString id = "was";
    switch (FindTypedSymbol(sources, standin::ToAnsi(text).c_str(), id)) {
    case TypedMatch::One:
      return id.GetString();
    case TypedMatch::Several:
      EXPECT_STREQ(id, "was");
      return "several";
    default:
      EXPECT_STREQ(id, "was");
      return "none";
    }
  }
  static std::string Word(const char* traditional, const char* simplified) {
    return IsTraditionChinese() != 0 ? traditional : simplified;
  }
};

TEST_F(TypedSymbolTest, AFullIdIsThatSymbol) {
  EXPECT_EQ(Find("2330.TW"), "2330.TW");
  EXPECT_EQ(Find("7777.TE"), "7777.TE");
  EXPECT_EQ(Find("AAPL.NASD"), "AAPL.NASD");
  EXPECT_EQ(Find("BRK.B.NYSE"), "BRK.B.NYSE");
}

TEST_F(TypedSymbolTest, LetterCaseOfCodesIsIgnored) {
  EXPECT_EQ(Find("2330.tw"), "2330.TW");
  EXPECT_EQ(Find("txfl6.tf"), "TXFL6.TF");
}

TEST_F(TypedSymbolTest, ABareCodeIsTheOneOfTheDefaultExchanges) {
  EXPECT_EQ(Find("2330"), "2330.TW");
  EXPECT_EQ(Find("6488"), "6488.TE");
}

TEST_F(TypedSymbolTest, ABareCodeOfTwoDefaultExchangesIsSeveral) {
  EXPECT_EQ(Find("7777"), "several");
}

TEST_F(TypedSymbolTest, ABareCodeOfNoDefaultExchangeIsNone) {
  EXPECT_EQ(Find("AAPL"), "none");
  EXPECT_EQ(Find("9999"), "none");
}

TEST_F(TypedSymbolTest, ANameIsItsSymbolWhenItIsThereWhole) {
  EXPECT_EQ(Find(Word("台積電", "台积电")), "2330.TW");
  EXPECT_EQ(Find(Word("許功蓋", "许功盖")), "1436.TW"); // second bytes are backslashes
  EXPECT_EQ(Find(Word("台積", "台积")), "none");
}

// Symptom: of two symbols with one name the first was added, whichever the user meant.
TEST_F(TypedSymbolTest, ANameOfTwoSymbolsIsSeveral) {
  standin::Market market = SmallMarket();
  market.instruments[11].nameTw = market.instruments[0].nameTw;
  market.instruments[11].nameCn = market.instruments[0].nameCn;
  standin::SetMarket(market);
  StartWith({"A/one/2330.TW"});
  EXPECT_EQ(Find(Word("台積電", "台积电")), "several");
}

TEST_F(TypedSymbolTest, ANameThatOthersContainIsStillOne) {
  standin::Market market = SmallMarket();
  market.instruments[11].nameTw = market.instruments[0].nameTw + "甲";
  market.instruments[11].nameCn = market.instruments[0].nameCn + "甲";
  standin::SetMarket(market);
  StartWith({"A/one/2330.TW"});
  EXPECT_EQ(Find(Word("台積電", "台积电")), "2330.TW");
}

TEST_F(TypedSymbolTest, TheServiceIsAskedForNamesAlone) {
  standin::ClearCalls();
  Find("2330");
  Find("9999");
  EXPECT_EQ(standin::CountCalls("VLFindSymbol"), 0);
  Find(Word("台積電", "台积电"));
  EXPECT_EQ(standin::CountCalls("VLFindSymbol"), 1);
}

TEST_F(TypedSymbolTest, AServiceThatFailsLeavesTheTablesAnswer) {
  standin::FailAlways("VLFindSymbol");
  EXPECT_EQ(Find(Word("台積電", "台积电")), "2330.TW");
}

TEST_F(TypedSymbolTest, NothingTypedIsNone) {
  EXPECT_EQ(Find(""), "none");
  EXPECT_EQ(Find("."), "none");
}

TEST_F(TypedSymbolTest, WithoutTablesNothingIsFound) {
  CString id;
  EXPECT_EQ(tq::FindTypedSymbol({manager, nullptr}, "2330.TW", id), TypedMatch::None);
}

// The terminal may start the manager anew while a dialog is up: the tables are others then.
TEST_F(TypedSymbolTest, TheTablesOfAManagerThatWasStartedAnewAreAsked) {
  const tq::DialogSources sources(manager, manager.GetSymbolTableMgr());
  ASSERT_EQ(StartWithTables(), 1);
  CString id;
  EXPECT_EQ(tq::FindTypedSymbol(sources, "2330.TW", id), TypedMatch::One);
}

} // namespace
