// The searches for indicators: their contents, and how choices filter them.
#include "tests/interface/IndicatorTest.h"

namespace {

class IndicatorSearch : public IndicatorTest {
protected:
  // Three rows of one name, of two regions and of none.
  static void ServeRowsOfOneName(InfoType type) {
    Serve(type, {{"台灣", "就業", "TWUN", "失業率"},
                 {"台灣", "貿易", "TWEXP", "出口"},
                 {"美國", "就業", "USUN", "失業率"},
                 {"", "就業", "WUN", "失業率"}});
  }
};

// --- What is seen when a search opens ------------------------------------------------------------

TEST_F(IndicatorSearch, EconomicIndicatorsAtTheStart) {
  SearchEconomic([](User& user) {
    EXPECT_EQ(user.Screen(), Text(R"(=== 經濟指標查詢
label: 地區:
combo 761: 台灣 (focus)
label: 類別:
combo 762: 所有類別
table 781: 經濟指標名稱
    台灣物價
    出口
)",
                                  R"(=== 经济指标查询
label: 地区:
combo 761: 台灣 (focus)
label: 类别:
combo 762: 所有类别
table 781: 经济指标名称
    台灣物價
    出口
)"));
    user.Press(WindowKey::Escape);
  });
}

TEST_F(IndicatorSearch, CommoditiesAtTheStartHaveNoRegions) {
  SearchCommodity([](User& user) {
    EXPECT_EQ(user.Screen(), Text(R"(=== 國際商品查詢
label: 類別:
combo 762: 所有類別 (focus)
table 781: 國際商品指標名稱
    原油
    玉米
)",
                                  R"(=== 国际商品查询
label: 类别:
combo 762: 所有类别 (focus)
table 781: 国际商品指标名称
    原油
    玉米
)"));
    user.Press(WindowKey::Escape);
  });
}

TEST_F(IndicatorSearch, FuturesAtTheStart) {
  SearchFuture([](User& user) {
    EXPECT_EQ(user.Screen(), Text(R"(=== 國際期貨查詢
label: 地區:
combo 761: 日本 (focus)
label: 類別:
combo 762: 所有類別
table 781: 國際期貨指標名稱
    日經
)",
                                  R"(=== 国际期货查询
label: 地区:
combo 761: 日本 (focus)
label: 类别:
combo 762: 所有类别
table 781: 国际期货指标名称
    日經
)"));
    user.Press(WindowKey::Escape);
  });
}

TEST_F(IndicatorSearch, TheBoxesHaveAnEntryForAllAndEachTextOnce) {
  SearchEconomic([](User& user) {
    EXPECT_EQ(user.Rows(kRegions), (Lines{Text("所有地區", "所有地区"), "台灣", "美國"}));
    EXPECT_EQ(user.Rows(kCategories),
              (Lines{Text("所有類別", "所有类别"), "物價", "貿易", "就業"}));
    user.Press(WindowKey::Escape);
  });
}

TEST_F(IndicatorSearch, TheTableIsTheOneThatWasAskedFor) {
  Serve(static_cast<InfoType>(42), {{"", "", "X", "另一個"}});
  WhenDialogOpens([](User& user) {
    EXPECT_EQ(user.Rows(kList), Lines{"另一個"});
    user.Press(WindowKey::Escape);
  });
  CTQSymbolListMgr::DoSearchCommIndi(nullptr, "", name, code, "", "", static_cast<InfoType>(42));
  EXPECT_EQ(standin::CountCalls("CStockKey::GetInfoArray"), 1);
}

// --- Narrowing down ------------------------------------------------------------------------------

TEST_F(IndicatorSearch, ARegionLeavesItsRows) {
  SearchEconomic([](User& user) {
    EXPECT_TRUE(user.Select(kRegions, "美國"));
    EXPECT_EQ(user.Rows(kList), (Lines{"美國物價", "USNFP"}));
    user.Press(WindowKey::Escape);
  });
}

TEST_F(IndicatorSearch, ACategoryLeavesItsRows) {
  SearchEconomic([](User& user) {
    ShowAllRegions(user);
    EXPECT_TRUE(user.Select(kCategories, "物價"));
    EXPECT_EQ(user.Rows(kList), (Lines{"台灣物價", "美國物價"}));
    user.Press(WindowKey::Escape);
  });
}

TEST_F(IndicatorSearch, BothTogetherLeaveTheRowsThatHaveBoth) {
  SearchFuture([](User& user) {
    EXPECT_TRUE(user.Select(kRegions, "美國"));
    EXPECT_TRUE(user.Select(kCategories, "指數"));
    EXPECT_EQ(user.Rows(kList), Lines{"標普"});
    user.Press(WindowKey::Escape);
  });
}

TEST_F(IndicatorSearch, ACommodityIsNarrowedDownByItsCategory) {
  SearchCommodity([](User& user) {
    EXPECT_TRUE(user.Select(kCategories, "農產品"));
    EXPECT_EQ(user.Rows(kList), Lines{"玉米"});
    user.Press(WindowKey::Escape);
  });
}

TEST_F(IndicatorSearch, AChoiceThatNoRowHasLeavesNone) {
  SearchEconomic([](User& user) {
    EXPECT_TRUE(user.Select(kRegions, "台灣"));
    EXPECT_TRUE(user.Select(kCategories, "就業"));
    EXPECT_EQ(user.Rows(kList), Lines{});
    user.Press(WindowKey::Escape);
  });
}

TEST_F(IndicatorSearch, TheEntryForAllBringsTheRowsBack) {
  SearchEconomic([](User& user) {
    EXPECT_TRUE(user.Select(kRegions, "台灣"));
    EXPECT_TRUE(user.Select(kRegions, 0));
    EXPECT_EQ(user.Rows(kList), (Lines{"台灣物價", "美國物價", "出口", "USNFP"}));
    user.Press(WindowKey::Escape);
  });
}

TEST_F(IndicatorSearch, NarrowingDownTakesTheSelectionAway) {
  SearchEconomic([](User& user) {
    ShowAllRegions(user);
    EXPECT_TRUE(user.ClickRow(kList, 1));
    EXPECT_TRUE(user.Select(kRegions, "美國"));
    EXPECT_EQ(user.SelectedRows(kList), std::vector<int>{});
    user.Press(WindowKey::Escape);
  });
}

// --- The region that a search opens on -----------------------------------------------------------

TEST_F(IndicatorSearch, AnInputOpensTheRegionOfItsRow) {
  SearchFuture(
      [](User& user) {
        EXPECT_EQ(user.Rows(kList), (Lines{"標普", "輕原油"}));
        EXPECT_EQ(user.SelectedRows(kList), std::vector<int>{1});
        EXPECT_TRUE(user.DoubleClick(kList, 1));
      },
      "CL");
  EXPECT_EQ(Outputs(), "輕原油/CL/");
}

TEST_F(IndicatorSearch, AnInputWhoseRowHasNoRegionOpensAllOfThem) {
  Serve(InfoEconomicIndicators, {{"台灣", "物價", "TWCPI", "台灣物價"}, {"", "", "WGDP", "全球"}});
  SearchEconomic(
      [](User& user) {
        EXPECT_EQ(user.Rows(kList), (Lines{"台灣物價", "全球"}));
        EXPECT_EQ(user.SelectedRows(kList), std::vector<int>{1});
        user.Press(WindowKey::Escape);
      },
      "WGDP");
}

TEST_F(IndicatorSearch, ATableWithoutRegionsOpensOnAllOfThem) {
  Serve(InfoEconomicIndicators, {{"", "物價", "TWCPI", "物價"}, {"", "貿易", "TWEXP", "出口"}});
  SearchEconomic([](User& user) {
    EXPECT_EQ(user.Rows(kRegions), Lines{Text("所有地區", "所有地区")});
    EXPECT_EQ(user.Rows(kList), (Lines{"物價", "出口"}));
    user.Press(WindowKey::Escape);
  });
}

// --- Rows of one name ----------------------------------------------------------------------------

// Symptom: under all regions the list showed "失業率" twice, and the two could not be told apart.
TEST_F(IndicatorSearch, RowsOfOneNameShowTheirRegions) {
  ServeRowsOfOneName(InfoEconomicIndicators);
  SearchEconomic([](User& user) {
    ShowAllRegions(user);
    EXPECT_EQ(user.Rows(kList), (Lines{"失業率(台灣)", "出口", "失業率(美國)", "失業率"}));
    EXPECT_TRUE(user.DoubleClick(kList, 2));
  });
  EXPECT_EQ(Outputs(), "失業率/USUN/was");
}

TEST_F(IndicatorSearch, ANameThatIsShownOnceStandsAlone) {
  ServeRowsOfOneName(InfoEconomicIndicators);
  SearchEconomic([](User& user) {
    EXPECT_EQ(user.Rows(kList), (Lines{"失業率", "出口"}));
    EXPECT_TRUE(user.Select(kRegions, "美國"));
    EXPECT_EQ(user.Rows(kList), Lines{"失業率"});
    user.Press(WindowKey::Escape);
  });
}

TEST_F(IndicatorSearch, CommoditiesOfOneNameShowTheirRegionsToo) {
  ServeRowsOfOneName(kCommodities);
  SearchCommodity([](User& user) {
    EXPECT_EQ(user.Rows(kList), (Lines{"失業率(台灣)", "出口", "失業率(美國)", "失業率"}));
    EXPECT_TRUE(user.DoubleClick(kList, 0));
  });
  EXPECT_EQ(Outputs(), "失業率/TWUN/was");
}

} // namespace
