// The selection: its sources, what they show, and what it opens on.
#include "tests/interface/SelectionSourcesText.h"

namespace {

// --- What is shown -------------------------------------------------------------------------------

TEST_F(SelectionText, HasItsTitleInTheTerminalsLanguage) {
  StartWithAllSources();
  Choose([](User& user) {
    EXPECT_EQ(user.Title(), Text("設定商品組合", "设定商品组合"));
    user.Click(kCancel);
  });
}

TEST_F(SelectionText, ItsButtonsHaveTheirLabels) {
  StartWithAllSources();
  Choose([](User& user) {
    EXPECT_EQ(user.Text(kNew), "新增(&A)");
    EXPECT_EQ(user.Text(kEdit), "修改(&E)");
    EXPECT_EQ(user.Text(kDelete), Text("刪除(&D)", "删除(&D)"));
    EXPECT_EQ(user.Text(kOk), Text("確定(&K)", "确定(&K)"));
    EXPECT_EQ(user.Text(kCancel), "取消(&C)");
    user.Click(kCancel);
  });
}

TEST_F(SelectionText, OffersAllSymbolsTheUsersListsAndGroups) {
  StartWithAllSources();
  Choose([](User& user) {
    const Lines sources = user.Rows(kSources);
    for (const std::string& source :
         {AllSymbols(), MyLists(), std::string("上市"), Text("上櫃", "上柜"), std::string("基金")})
      EXPECT_TRUE(Has(sources, source)) << source;
    user.Click(kCancel);
  });
}

TEST_F(SelectionText, WithHoldingsItOffersThem) {
  StartWithAllSources();
  Choose(
      [](User& user) {
        EXPECT_TRUE(Has(user.Rows(kSources), Holdings()));
        user.Click(kCancel);
      },
      true);
}

TEST_F(SelectionText, WithHoldingsItOffersGroupsOfKind3) {
  StartWithAllSources();
  Choose(
      [](User& user) {
        EXPECT_TRUE(Has(user.Rows(kSources), Text("三類", "三类")));
        user.Click(kCancel);
      },
      true);
}

TEST_F(SelectionText, WithoutHoldingsItOffersNoGroupsOfKind3) {
  StartWithAllSources();
  Choose([](User& user) {
    EXPECT_FALSE(Has(user.Rows(kSources), Text("三類", "三类")));
    user.Click(kCancel);
  });
}

TEST_F(SelectionText, OffersNoGroupsOfOtherKinds) {
  StartWithAllSources();
  Choose(
      [](User& user) {
        EXPECT_FALSE(Has(user.Rows(kSources), Text("臺灣概念", "台湾概念")));
        EXPECT_FALSE(Has(user.Rows(kSources), Text("臺指選", "台指选")));
        user.Click(kCancel);
      },
      true);
}

TEST_F(SelectionText, GroupsStandInTheOrderOfTheirKinds) {
  StartWithAllSources();
  Choose(
      [](User& user) {
        EXPECT_LT(PlaceOf(user, MyLists()), PlaceOf(user, "上市"));
        EXPECT_LT(PlaceOf(user, "上市"), PlaceOf(user, "基金"));
        EXPECT_LT(PlaceOf(user, "基金"), PlaceOf(user, Text("三類", "三类")));
        EXPECT_LT(PlaceOf(user, Text("三類", "三类")), PlaceOf(user, Text("百類", "百类")));
        EXPECT_LT(PlaceOf(user, Text("百類", "百类")), PlaceOf(user, Text("推薦", "推荐")));
        user.Click(kCancel);
      },
      true);
}

TEST_F(SelectionText, AllSymbolsAreOneRowWhichIsSelected) {
  StartWithAllSources();
  Choose([](User& user) {
    EXPECT_TRUE(user.Select(kSources, MyLists()));
    EXPECT_TRUE(user.Select(kSources, AllSymbols()));
    EXPECT_EQ(user.Rows(kLists), Lines{Text("全部商品", "全部商品")});
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{0});
    user.Click(kCancel);
  });
}

TEST_F(SelectionText, TheUsersListsAreShownInTheirOrder) {
  StartWithAllSources();
  Choose([](User& user) {
    EXPECT_TRUE(user.Select(kSources, MyLists()));
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "two"}));
    user.Click(kCancel);
  });
}

TEST_F(SelectionText, HoldingsAreTheListsFromTradingAccounts) {
  StartWithAllSources();
  Choose(
      [](User& user) {
        EXPECT_TRUE(user.Select(kSources, Holdings()));
        EXPECT_EQ(user.Rows(kLists), (Lines{Text("全部庫存股", "全部库存股"), "9801-*"}));
        user.Click(kCancel);
      },
      true);
}

TEST_F(SelectionText, TheCloudListsAreASource) {
  StartWithAllSources();
  Choose([](User& user) {
    EXPECT_TRUE(SelectShowing(user, CloudRows()));
    user.Click(kCancel);
  });
}

TEST_F(SelectionText, AGroupShowsItsItems) {
  StartWithAllSources();
  Choose([](User& user) {
    EXPECT_TRUE(user.Select(kSources, "上市"));
    EXPECT_EQ(user.Rows(kLists), (Lines{Text("半導體", "半导体"), "水泥"}));
    EXPECT_TRUE(user.Select(kSources, Text("上櫃", "上柜")));
    EXPECT_EQ(user.Rows(kLists), Lines{Text("矽晶圓", "硅晶圆")});
    user.Click(kCancel);
  });
}

// --- What was selected before --------------------------------------------------------------------

TEST_F(SelectionText, OpensOnTheUsersListThatWasSelectedBefore) {
  StartWithAllSources();
  kind = 1;
  text = "B";
  Choose([](User& user) {
    EXPECT_EQ(user.Text(kSources), MyLists());
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kOk);
  });
  EXPECT_EQ(Answer(), "1/B");
}

TEST_F(SelectionText, OpensOnTheItemOfAGroupThatWasSelectedBefore) {
  StartWithAllSources();
  kind = 2;
  text = standin::ToAnsi("上市,水泥").c_str();
  Choose([](User& user) {
    EXPECT_EQ(user.Text(kSources), "上市");
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kOk);
  });
  EXPECT_EQ(Answer(), "2/上市,水泥");
}

TEST_F(SelectionText, OpensOnAllSymbolsWhenTheyWereSelectedBefore) {
  StartWithAllSources();
  kind = 4;
  text = standin::ToAnsi("全部商品").c_str();
  Choose([](User& user) {
    EXPECT_EQ(user.Text(kSources), AllSymbols());
    user.Click(kOk);
  });
  EXPECT_EQ(Answer(), "4/全部商品");
}

TEST_F(SelectionText, OpensOnTheHoldingsThatWereSelectedBefore) {
  StartWithAllSources();
  kind = 6;
  text = "ALLMYSTOCKLISTS";
  Choose(
      [](User& user) {
        EXPECT_EQ(user.Text(kSources), Holdings());
        EXPECT_EQ(user.SelectedRows(kLists), Numbers{0});
        user.Click(kOk);
      },
      true);
  EXPECT_EQ(Answer(), "6/ALLMYSTOCKLISTS");
}

TEST_F(SelectionText, OpensOnTheCloudListThatWasSelectedBefore) {
  StartWithAllSources();
  kind = 8;
  text = "C2";
  Choose([](User& user) {
    EXPECT_EQ(user.Rows(kLists), CloudRows());
    EXPECT_EQ(user.SelectedRows(kLists), Numbers{1});
    user.Click(kOk);
  });
  EXPECT_EQ(Answer(), "8/C2");
}

} // namespace
