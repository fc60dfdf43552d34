// The selection: its sources, what they show, and the answers.
#include "tests/interface/EditorText.h"

namespace {

class SelectionText : public SelectionTextTest {
protected:
  // User lists, holdings, and groups of all four kinds that are sources. Groups of kind 101 are
  // there with or without the broker's edition that is asked for elsewhere.
  void StartWithAllSources() {
    AddGroups({{3, "", "G3", "三類", "三类", {}},
               {3, "G3", "G31", "三之一", "三之一", {"2330.TW"}},
               {101, "", "G101", "百類", "百类", {}},
               {101, "G101", "G1011", "百之一", "百之一", {"2317.TW"}}});
    AddTradingSystem();
    WriteWorking("<Result><SymbolList DefaultIdx='0'><List ID='A' Name='one' Value='2330.TW'/>"
                 "<List ID='B' Name='two' Value='2317.TW'/></SymbolList></Result>");
    ASSERT_EQ(manager.Init(directory.Path().c_str(), 0, 1, 0, nullptr, 0, 1), 1);
    manager.AddExtraTQInfo("OTV01");
    manager.UpdateTSLogin("T1");
    manager.AddCloudSymbolList("C1", "cloud one", "2330.TW", 0);
    manager.AddCloudSymbolList("C2", "cloud two", "2317.TW", 0);
    Mark();
  }
  // A source of that name, and a row of what it shows; then OK.
  static void Pick(User& user, const std::string& source, int row) {
    EXPECT_TRUE(user.Select(kSources, source));
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(kOk));
  }
  static Lines CloudRows() { return {"cloud one", "cloud two"}; }
  static bool Has(const Lines& rows, const std::string& row) {
    return std::find(rows.begin(), rows.end(), row) != rows.end();
  }
  static std::ptrdiff_t PlaceOf(const User& user, const std::string& source) {
    const Lines rows = user.Rows(kSources);
    return std::find(rows.begin(), rows.end(), source) - rows.begin();
  }

private:
  static void AddGroups(const std::vector<standin::Group>& groups) {
    standin::Market market = standin::CurrentMarket();
    market.groups.insert(market.groups.end(), groups.begin(), groups.end());
    standin::SetMarket(market);
  }
  static void AddTradingSystem() {
    standin::Market market = standin::CurrentMarket();
    market.tradingSystems = {
        {"T1", "甲證券", "甲证券", true, {{1, "9801", "9801-*", "2330.TW,2317.TW"}}}};
    standin::SetMarket(market);
  }
};

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
