// Which rows a place has, and what stands in them.
#include "terminal/desk/QuotePage.h"

#include "tests/desk/DeskTest.h"

namespace {

using desk::From;
using desk::Place;
using desk::QuotePage;

class QuotePageTest : public DeskTest {
protected:
  Texts CodesOf(const Place& place) {
    page.Show(place);
    Texts codes;
    for (int row = 0; row < page.RowCount(); ++row)
      codes.push_back(Utf8(page.Cell(row, QuotePage::Code)));
    return codes;
  }
  Texts Row(int row) const {
    Texts cells;
    for (int column = 0; column < QuotePage::ColumnCount; ++column)
      cells.push_back(Utf8(page.Cell(row, column)));
    return cells;
  }

  QuotePage page{manager};
};

TEST_F(QuotePageTest, AListHasItsSymbolsUnderItsHeadings) {
  EXPECT_EQ(CodesOf({{From::UserLists}, "A"}), (Texts{"2330", "■ Tag", "2454"}));
  EXPECT_EQ(Row(1), (Texts{"■ Tag", "", "", ""}));
  EXPECT_TRUE(page.SymbolAt(1).IsEmpty());
}

TEST_F(QuotePageTest, ARowHasCodeNameMarketAndPrice) {
  page.Show({{From::UserLists}, "A"});
  EXPECT_EQ(Row(0), (Texts{"2330", Said("台積電", "台积电"), "上市", "1085.00"}));
  EXPECT_EQ(page.SymbolAt(0), "2330.TW");
}

TEST_F(QuotePageTest, APriceHasTheDecimalPlacesOfItsSymbol) {
  standin::Market market = standin::CurrentMarket();
  for (standin::Instrument& instrument : market.instruments)
    instrument.decimals = instrument.code == "2330" ? 0 : 3;
  standin::SetMarket(market);
  manager.GetSymbolTableMgr()->RebuildSymbolTable("TW", 1);
  page.Show({{From::UserLists}, "A"});
  EXPECT_EQ(Row(0).back(), "1085");
  EXPECT_EQ(Row(2).back(), "1390.000");
}

TEST_F(QuotePageTest, ASymbolWithoutAPriceShowsADash) {
  manager.AddSymbolList("C", 0, "three", "8069.TE", 1, 0);
  page.Show({{From::UserLists}, "C"});
  EXPECT_EQ(Row(0), (Texts{"8069", "元太", Said("上櫃", "上柜"), "--"}));
}

TEST_F(QuotePageTest, AMarketThatTheUserIsNotEntitledToShowsNoPrices) {
  manager.AddSymbolList("C", 0, "three", "AAPL.NASD", 1, 0);
  page.Show({{From::UserLists}, "C"});
  EXPECT_EQ(Row(0).back(), "--");
}

TEST_F(QuotePageTest, CodesWithADotKeepIt) {
  manager.AddSymbolList("C", 0, "three", "BRK.B.NYSE", 1, 0);
  EXPECT_EQ(CodesOf({{From::UserLists}, "C"}), Texts{"BRK.B"});
}

TEST_F(QuotePageTest, AccountsHaveWhatTheyHold) {
  desk::LogIn(manager);
  EXPECT_EQ(CodesOf({{From::Holdings}, "198011"}), (Texts{"2330", "2317", "0050"}));
}

TEST_F(QuotePageTest, CloudListsAndCloudGroupsHaveWhatWasPushedIn) {
  desk::PushCloudLists(manager);
  const Texts pushed = {"2330", "2317", "0050", "6488"};
  EXPECT_EQ(CodesOf({{From::CloudLists}, "VORNG0101"}), pushed);
  EXPECT_EQ(CodesOf({{From::Group, 201, "VORNG01"}, "VORNG0101"}), pushed);
}

TEST_F(QuotePageTest, GroupsHaveTheirMembers) {
  EXPECT_EQ(CodesOf({{From::Group, 1, "TSE"}, "CHIP"}), (Texts{"2330", "2454"}));
  EXPECT_EQ(CodesOf({{From::Group, 1, "ETF"}}), Texts{"0050"});
}

TEST_F(QuotePageTest, AllSymbolsAreTheManagersOwn) {
  page.Show({{From::AllSymbols}});
  EXPECT_EQ(page.RowCount(), static_cast<int>(standin::CurrentMarket().instruments.size()));
  EXPECT_EQ(page.RowOf("2330.TW"), 0);
}

// The buffer is replaced by the manager whenever exchanges change.
TEST_F(QuotePageTest, AllSymbolsStayWhileTheyAreShown) {
  page.Show({{From::AllSymbols}});
  standin::SetMarket({});
  manager.SortAllSymbolByExch();
  EXPECT_EQ(page.SymbolAt(0), "2330.TW");
}

TEST_F(QuotePageTest, FindsTheRowOfASymbol) {
  page.Show({{From::UserLists}, "A"});
  EXPECT_EQ(page.RowOf("2454.tw"), 2);
  EXPECT_EQ(page.RowOf("1101.TW"), -1);
}

TEST_F(QuotePageTest, WhatIsNotThereHasNoRows) {
  EXPECT_EQ(CodesOf({{From::UserLists}, "none"}), Texts());
  EXPECT_EQ(CodesOf({{From::Group, 1, "none"}}), Texts());
  EXPECT_TRUE(page.SymbolAt(0).IsEmpty());
  EXPECT_TRUE(page.SymbolAt(-1).IsEmpty());
}

} // namespace
