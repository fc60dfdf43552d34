// The searches for indicators: the outputs of a chosen row.
#include "tests/interface/IndicatorTest.h"

#include "platform/framework/CPtrArray.h"
#include "platform/services/tqStock.h"

namespace {

class IndicatorChoice : public IndicatorTest {};

TEST_F(IndicatorChoice, ADoubleClickGivesNameAndCodeOfAnEconomicIndicator) {
  EXPECT_EQ(SearchEconomic([](User& user) { EXPECT_TRUE(user.DoubleClick(kList, 1)); }), 1);
  EXPECT_EQ(Outputs(), "出口/TWEXP/was");
}

TEST_F(IndicatorChoice, ADoubleClickGivesNameAndCodeOfACommodity) {
  EXPECT_EQ(SearchCommodity([](User& user) { EXPECT_TRUE(user.DoubleClick(kList, 0)); }), 1);
  EXPECT_EQ(Outputs(), "原油/WTI/was");
}

TEST_F(IndicatorChoice, ADoubleClickGivesNameCodeAndMarketOfAFuture) {
  EXPECT_EQ(SearchFuture([](User& user) {
              ShowAllRegions(user);
              EXPECT_TRUE(user.DoubleClick(kList, 1));
            }),
            1);
  EXPECT_EQ(Outputs(), "標普/ES/CME");
}

TEST_F(IndicatorChoice, TheRowThatIsSeenCountsAndNotItsPlaceInTheTable) {
  SearchFuture([](User& user) {
    ShowAllRegions(user);
    EXPECT_TRUE(user.Select(kCategories, "能源"));
    EXPECT_TRUE(user.DoubleClick(kList, 0));
  });
  EXPECT_EQ(Outputs(), "輕原油/CL/");
}

TEST_F(IndicatorChoice, ARowOfThreeColumnsIsUndefined) {
  EXPECT_EQ(SearchEconomic([](User& user) {
              ShowAllRegions(user);
              EXPECT_TRUE(user.DoubleClick(kList, 3));
            }),
            1);
  EXPECT_EQ(Outputs(), "Undefined/USNFP/was");
}

TEST_F(IndicatorChoice, ARowOfNoColumnsIsUndefinedAndHasNoCode) {
  Serve(InfoInternationalFutures, {{}});
  EXPECT_EQ(SearchFuture([](User& user) { EXPECT_TRUE(user.DoubleClick(kList, 0)); }), 1);
  EXPECT_EQ(Outputs(), "Undefined//");
}

TEST_F(IndicatorChoice, ADoubleClickWithSeveralRowsSelectedChoosesNone) {
  const int result = SearchEconomic([](User& user) {
    ShowAllRegions(user);
    EXPECT_TRUE(user.ClickRow(kList, 0));
    EXPECT_TRUE(user.DoubleClick(kList, 2, Modifier::Shift));
    EXPECT_EQ(user.SelectedRows(kList), (std::vector<int>{0, 1, 2}));
    EXPECT_TRUE(user.IsUp());
    user.Press(WindowKey::Escape);
  });
  EXPECT_EQ(result, 2);
  EXPECT_EQ(Outputs(), untouched);
}

TEST_F(IndicatorChoice, AClickSelectsAndChoosesNothing) {
  SearchEconomic([](User& user) {
    EXPECT_TRUE(user.ClickRow(kList, 1));
    EXPECT_EQ(user.SelectedRows(kList), std::vector<int>{1});
    EXPECT_TRUE(user.IsUp());
    user.Press(WindowKey::Escape);
  });
  EXPECT_EQ(Outputs(), untouched);
}

// The stock library frees its rows at the next call, which the terminal may make at any time.
TEST_F(IndicatorChoice, AnotherTableReadMeanwhileChangesNothing) {
  SearchEconomic([](User& user) {
    CPtrArray rows;
    CStockKey::GetInfoArray(InfoInternationalFutures, rows);
    EXPECT_TRUE(user.Select(kRegions, "美國"));
    EXPECT_TRUE(user.DoubleClick(kList, 0));
  });
  EXPECT_EQ(Outputs(), "美國物價/USCPI/was");
}

TEST_F(IndicatorChoice, AnOutputMayBeTheInput) {
  name = Ansi("出口");
  WhenDialogOpens([](User& user) {
    EXPECT_EQ(user.SelectedRows(kList), std::vector<int>{1});
    EXPECT_TRUE(user.DoubleClick(kList, 0));
  });
  CTQSymbolListMgr::DoSearchFinIndi(nullptr, name, name, code);
  EXPECT_EQ(Outputs(), "台灣物價/TWCPI/was");
}

TEST_F(IndicatorChoice, TenThousandRowsAreShownNarrowedDownAndChosen) {
  std::vector<Row> rows;
  for (int i = 0; i < 10000; ++i) {
    const std::string number = std::to_string(i);
    rows.push_back({"R" + std::to_string(i % 100), "C" + std::to_string(i % 7), "ID" + number,
                    "Name" + number, "M" + number});
  }
  Serve(InfoInternationalFutures, rows);
  SearchFuture(
      [](User& user) {
        EXPECT_EQ(user.Rows(kRegions).size(), 101u);
        EXPECT_EQ(user.Rows(kList).size(), 100u); // the rows of R99
        EXPECT_EQ(user.SelectedRows(kList), std::vector<int>{99});
        EXPECT_TRUE(user.Select(kRegions, "R42"));
        EXPECT_EQ(user.Rows(kList).size(), 100u);
        ShowAllRegions(user);
        EXPECT_EQ(user.Rows(kList).size(), 10000u);
        EXPECT_TRUE(user.DoubleClick(kList, 9998));
      },
      "ID9999");
  EXPECT_EQ(Outputs(), "Name9998/ID9998/M9998");
}

} // namespace
