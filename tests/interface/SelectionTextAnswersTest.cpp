// The selection: what it answers, and when it refuses to.
#include "tests/interface/SelectionSourcesText.h"

namespace {

// --- Answers -------------------------------------------------------------------------------------

TEST_F(SelectionText, AllSymbolsAreKind4WithTheTextOfTheRow) {
  StartWithAllSources();
  EXPECT_EQ(Choose([](User& user) {
              EXPECT_TRUE(user.Select(kSources, AllSymbols()));
              EXPECT_TRUE(user.Click(kOk));
            }),
            1);
  EXPECT_EQ(Answer(), "4/" + Text("全部商品", "全部商品"));
}

TEST_F(SelectionText, AUsersListIsKind1WithItsIdentifier) {
  StartWithAllSources();
  Choose([](User& user) { Pick(user, MyLists(), 1); });
  EXPECT_EQ(Answer(), "1/B");
}

TEST_F(SelectionText, HoldingsAreKind6WithTheListsIdentifier) {
  StartWithAllSources();
  Choose([](User& user) { Pick(user, Holdings(), 0); }, true);
  EXPECT_EQ(Answer(), "6/ALLMYSTOCKLISTS");
}

TEST_F(SelectionText, ACloudListIsKind8WithItsIdentifier) {
  StartWithAllSources();
  Choose([](User& user) {
    EXPECT_TRUE(SelectShowing(user, CloudRows()));
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kOk));
  });
  EXPECT_EQ(Answer(), "8/C2");
}

TEST_F(SelectionText, AGroupOfKind1IsKind2WithBothNames) {
  StartWithAllSources();
  Choose([](User& user) { Pick(user, "上市", 1); });
  EXPECT_EQ(Answer(), "2/上市,水泥");
}

TEST_F(SelectionText, AGroupOfTheSameKindFurtherDownIsKind2Too) {
  StartWithAllSources();
  Choose([](User& user) { Pick(user, Text("上櫃", "上柜"), 0); });
  EXPECT_EQ(Answer(), Text("2/上櫃,矽晶圓", "2/上柜,硅晶圆"));
}

TEST_F(SelectionText, AGroupOfKind3IsKind3) {
  StartWithAllSources();
  Choose([](User& user) { Pick(user, Text("三類", "三类"), 0); }, true);
  EXPECT_EQ(Answer(), Text("3/三類,三之一", "3/三类,三之一"));
}

TEST_F(SelectionText, AGroupOfKind101IsKind7) {
  StartWithAllSources();
  Choose([](User& user) { Pick(user, Text("百類", "百类"), 0); });
  EXPECT_EQ(Answer(), Text("7/百類,百之一", "7/百类,百之一"));
}

TEST_F(SelectionText, AGroupOfKind101IsKind7BesideGroupsOfKind3) {
  StartWithAllSources();
  Choose([](User& user) { Pick(user, Text("百類", "百类"), 0); }, true);
  EXPECT_EQ(Answer(), Text("7/百類,百之一", "7/百类,百之一"));
}

TEST_F(SelectionText, AGroupOfKind201IsKind8) {
  StartWithAllSources();
  Choose([](User& user) {
    EXPECT_TRUE(SelectShowing(
        user, {Text("雲端1", "云端1"), Text("雲端2", "云端2"), Text("雲端3", "云端3")}));
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kOk));
  });
  EXPECT_EQ(Answer(), Text("8/雲自選,雲端2", "8/云自选,云端2"));
}

// --- Without a selected row ----------------------------------------------------------------------

TEST_F(SelectionText, WithoutASelectedListOkIsRefused) {
  StartWithAllSources();
  Choose([this](User& user) {
    EXPECT_TRUE(user.Select(kSources, MyLists()));
    ASSERT_EQ(user.SelectedRows(kLists), Numbers{});
    user.Click(kOk);
    EXPECT_EQ(Shown(), "48004/0");
    EXPECT_TRUE(user.IsUp());
    user.Click(kCancel);
  });
  EXPECT_EQ(Answer(), untouched);
}

TEST_F(SelectionText, WithoutASelectedItemOfAGroupOkIsRefused) {
  StartWithAllSources();
  Choose([this](User& user) {
    EXPECT_TRUE(user.Select(kSources, "上市"));
    ASSERT_EQ(user.SelectedRows(kLists), Numbers{});
    user.Click(kOk);
    EXPECT_EQ(Shown(), "48004/0");
    EXPECT_TRUE(user.IsUp());
    user.Click(kCancel);
  });
}

TEST_F(SelectionText, AfterTheMessageARowCanBeChosen) {
  StartWithAllSources();
  EXPECT_EQ(Choose([](User& user) {
              EXPECT_TRUE(user.Select(kSources, MyLists()));
              user.Click(kOk);
              EXPECT_TRUE(user.Select(kLists, 0));
              EXPECT_TRUE(user.Click(kOk));
            }),
            1);
  EXPECT_EQ(Answer(), "1/A");
}

TEST_F(SelectionText, WithoutRowsOkIsNotRefused) {
  Start({});
  EXPECT_EQ(Choose([](User& user) {
              EXPECT_TRUE(user.Select(kSources, MyLists()));
              EXPECT_TRUE(user.Click(kOk));
            }),
            1);
  EXPECT_EQ(Shown(), "");
}

TEST_F(SelectionText, AGroupWithoutItemsIsNotRefused) {
  StartWithAllSources();
  EXPECT_EQ(Choose([](User& user) {
              EXPECT_TRUE(user.Select(kSources, "基金"));
              EXPECT_EQ(user.Rows(kLists), Lines{});
              EXPECT_TRUE(user.Click(kOk));
            }),
            1);
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(kind, 2);
}

TEST_F(SelectionText, WithoutASelectedListOfHoldingsOkIsRefused) {
  StartWithAllSources();
  Choose(
      [this](User& user) {
        EXPECT_TRUE(user.Select(kSources, Holdings()));
        ASSERT_EQ(user.SelectedRows(kLists), Numbers{});
        user.Click(kOk);
        EXPECT_EQ(Shown(), "48004/0");
        EXPECT_TRUE(user.IsUp());
        user.Click(kCancel);
      },
      true);
}

TEST_F(SelectionText, TheButtonsDoNothingToHoldings) {
  StartWithAllSources();
  standin::AnswerMessages(kYes);
  Choose(
      [this](User& user) {
        EXPECT_TRUE(user.Select(kSources, Holdings()));
        EXPECT_TRUE(user.Select(kLists, 1));
        for (const int id : {kNew, kEdit, kDelete})
          user.Click(id);
        EXPECT_EQ(Shown(), "");
        EXPECT_EQ(user.Rows(kLists).size(), 2u);
        user.Click(kCancel);
      },
      true);
  EXPECT_EQ(manager.GetSymbolListCount(6), 2);
  EXPECT_EQ(Happened(), "not saved");
}

} // namespace
