// tqStock's info tables: rows, columns, languages, ownership.
#include "platform/framework/CPtrArray.h"
#include "platform/framework/CStringArray.h"
#include "platform/services/tqCommon.h"
#include "platform/services/tqStock.h"
#include "tests/support/StandInTest.h"

namespace {

using Columns = std::vector<std::string>;
using Rows = std::vector<Columns>;

const CStringArray& RowAt(const CPtrArray& rows, int row) {
  return *static_cast<const CStringArray*>(rows[row]);
}

// The rows of a table as bytes.
Rows Read(InfoType type) {
  CPtrArray rows;
  EXPECT_NE(CStockKey::GetInfoArray(type, rows), 0);
  Rows read;
  for (int i = 0; i < rows.GetSize(); ++i) {
    Columns& columns = read.emplace_back();
    for (const CString& text : RowAt(rows, i))
      columns.push_back(text.GetString());
  }
  return read;
}

std::string InLanguage(const char* traditional, const char* simplified) {
  return standin::ToAnsi(IsTraditionChinese() != 0 ? traditional : simplified);
}

class InfoTables : public StandInTest {
protected:
  InfoTables() {
    standin::Market market;
    market.indicators = {
        {8, "台灣", "台湾", "物價", "物价", "CPI", "物價指數", "物价指数", ""},
        {11, "美國", "美国", "能源", "能源", "CL", "輕原油", "轻原油", "NYMEX"},
        {8, "", "", "", "", "GDP", "", "", ""},
    };
    standin::SetMarket(std::move(market));
  }
};

TEST_F(InfoTables, HaveTheirRowsInTheOrderOfTheMarket) {
  const Rows rows = Read(InfoEconomicIndicators);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0][InfoCode], "CPI");
  EXPECT_EQ(rows[1][InfoCode], "GDP");
}

TEST_F(InfoTables, TellTextsInTheLanguageOfTheMoment) {
  for (const bool traditional : {true, false}) {
    standin::SetTraditional(traditional);
    EXPECT_EQ(Read(InfoEconomicIndicators)[0],
              (Columns{InLanguage("台灣", "台湾"), InLanguage("物價", "物价"), "CPI",
                       InLanguage("物價指數", "物价指数")}));
  }
}

TEST_F(InfoTables, HaveTheMarketOfAFutureBehindItsName) {
  const Rows rows = Read(InfoInternationalFutures);
  ASSERT_EQ(rows.size(), 1u);
  ASSERT_EQ(rows[0].size(), 5u);
  EXPECT_EQ(rows[0][InfoName], InLanguage("輕原油", "轻原油"));
  EXPECT_EQ(rows[0][InfoMarket], "NYMEX");
}

TEST_F(InfoTables, EndARowWithoutANameWithItsCode) {
  EXPECT_EQ(Read(InfoEconomicIndicators)[1], (Columns{"", "", "GDP"}));
}

TEST_F(InfoTables, AreEmptyWhenTheMarketHasNone) {
  EXPECT_TRUE(Read(InfoCommodities).empty());
  EXPECT_TRUE(Read(InfoType{12345}).empty());
}

TEST_F(InfoTables, EmptyTheArrayThatTheyAreAskedInto) {
  int other = 0;
  CPtrArray rows;
  rows.Add(&other);
  EXPECT_NE(CStockKey::GetInfoArray(InfoInternationalFutures, rows), 0);
  EXPECT_EQ(rows.GetSize(), 1);
  EXPECT_NE(rows[0], &other);
  rows.Add(&other);
  standin::FailCall("CStockKey::GetInfoArray", 1);
  EXPECT_EQ(CStockKey::GetInfoArray(InfoInternationalFutures, rows), 0);
  EXPECT_EQ(rows.GetSize(), 0);
}

TEST_F(InfoTables, StayUntilTheNextCallWhateverElseHappens) {
  CPtrArray rows;
  ASSERT_NE(CStockKey::GetInfoArray(InfoInternationalFutures, rows), 0);
  standin::SetTraditional(false);
  standin::SetMarket(standin::Market());
  standin::SetIndicators(InfoInternationalFutures, {});
  ASSERT_EQ(rows.GetSize(), 1);
  EXPECT_STREQ(RowAt(rows, 0)[InfoCode], "CL");
}

TEST_F(InfoTables, AreRecordedWithTheirNumber) {
  standin::ClearCalls();
  Read(InfoCommodities);
  ASSERT_EQ(standin::Calls().size(), 1u);
  EXPECT_EQ(standin::Calls()[0].operation, "CStockKey::GetInfoArray");
  EXPECT_EQ(standin::Calls()[0].arguments, "10");
}

TEST_F(InfoTables, AreWhatATestSays) {
  standin::SetIndicators(InfoEconomicIndicators,
                         {{"region", "category", "code"}, {}, {"", "", "", "名", "x", "y"}});
  const std::string name = standin::ToAnsi("名");
  EXPECT_EQ(Read(InfoEconomicIndicators),
            (Rows{{"region", "category", "code"}, {}, {"", "", "", name, "x", "y"}}));
  EXPECT_EQ(Read(InfoInternationalFutures).size(), 1u);
  standin::SetIndicators(InfoInternationalFutures, {});
  EXPECT_TRUE(Read(InfoInternationalFutures).empty());
}

TEST_F(InfoTables, AreTheMarketsAgainAfterReset) {
  standin::SetIndicators(InfoCommodities, {{"a", "b", "c"}});
  EXPECT_EQ(Read(InfoCommodities).size(), 1u);
  standin::Reset();
  EXPECT_TRUE(Read(InfoCommodities).empty());
}

} // namespace
