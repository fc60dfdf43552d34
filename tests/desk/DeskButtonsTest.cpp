// A session of each button: its dialog opens, and what was done is on the page and in the log.
#include "tests/desk/DeskTest.h"

namespace {

using desk::DeskDialog;
using namespace standin::controls;

enum Sources { kUserLists, kCloudLists, kHoldings, kAllSymbols };

class DeskButtons : public DeskTest {
protected:
  static Texts Page(const User& user) {
    Texts codes;
    for (const std::string& row : user.Rows(DeskDialog::kPage))
      codes.push_back(row.substr(0, row.find(" | ")));
    return codes;
  }
  static void Rename(User& user) {
    user.ClickRow(kLists, 0);
    user.Click(kRename);
    user.Type("renamed");
    user.Press(WindowKey::Enter);
    user.Click(kListsDone);
  }
  // In the editor of a list.
  static void Enter(User& user, const char* code) {
    user.Fill(kCode, code);
    user.Press(WindowKey::Enter);
  }
  static void Cancel(User& user) { user.Click(kCancel); }
};

TEST_F(DeskButtons, TheUsersListsAreEdited) {
  InDesk([&](User& user) {
    NewLines(user);
    Open(user, DeskDialog::kEditLists, Rename);
    EXPECT_EQ(user.Rows(DeskDialog::kList)[0], "renamed");
    EXPECT_EQ(LastOf(NewLines(user)), "通知 | 40 | ListNameChange");
  });
}

TEST_F(DeskButtons, AMessageOfADialogIsInTheLogWithItsText) {
  InDesk([&](User& user) {
    NewLines(user);
    Open(user, DeskDialog::kEditLists, [](User& lists) {
      lists.ClickRow(kLists, 0);
      lists.Click(kRename);
      lists.Type("two");
      lists.Press(WindowKey::Enter);
      lists.Press(WindowKey::Escape);
      lists.Click(kListsDone);
    });
    EXPECT_EQ(NewLines(user), Texts{Said("訊息 | 48011 | 命名重複，請重新命名",
                                         "消息 | 48011 | 命名重复，请重新命名")});
  });
}

TEST_F(DeskButtons, TheCloudListsAreEdited) {
  InDesk([&](User& user) {
    user.Select(DeskDialog::kSource, kCloudLists);
    NewLines(user);
    Open(user, DeskDialog::kEditCloudLists, Rename);
    EXPECT_EQ(user.Rows(DeskDialog::kList)[0], "renamed");
    EXPECT_NE(LineWith(NewLines(user), "41 | ListNameChange"), "");
  });
}

TEST_F(DeskButtons, CloudGroupsFollowTheCloudLists) {
  InDesk([&](User& user) {
    user.Select(DeskDialog::kSource, 9);
    Open(user, DeskDialog::kEditCloudLists, Rename);
    EXPECT_EQ(user.Rows(DeskDialog::kList)[0], "renamed");
  });
}

TEST_F(DeskButtons, TheListOnThePageIsEdited) {
  InDesk([&](User& user) {
    NewLines(user);
    Open(user, DeskDialog::kEditShown, [](User& editor) {
      Enter(editor, "2317");
      editor.Click(kDone);
    });
    EXPECT_EQ(Page(user), (Texts{"2330", "■ Tag", "2454", "2317"}));
    EXPECT_EQ(NewLines(user), Texts()); // the library says nothing: the terminal knows
  });
}

TEST_F(DeskButtons, TheCloudListOnThePageIsEdited) {
  InDesk([&](User& user) {
    user.Select(DeskDialog::kSource, kCloudLists);
    NewLines(user);
    Open(user, DeskDialog::kEditShown, [](User& editor) {
      Enter(editor, "2454");
      editor.Click(kDone);
    });
    EXPECT_EQ(Page(user), (Texts{"2330", "2317", "0050", "6488", "2454"}));
    EXPECT_EQ(LineWith(NewLines(user), "41 | "), "");
  });
}

TEST_F(DeskButtons, WhatIsNoListCannotBeEdited) {
  InDesk([](User& user) {
    EXPECT_TRUE(user.IsEnabled(DeskDialog::kEditShown));
    user.Select(DeskDialog::kSource, kHoldings);
    EXPECT_FALSE(user.IsEnabled(DeskDialog::kEditShown));
    user.Select(DeskDialog::kSource, kAllSymbols);
    EXPECT_FALSE(user.IsEnabled(DeskDialog::kEditShown));
  });
}

TEST_F(DeskButtons, ANewListIsShownAndSaved) {
  InDesk([&](User& user) {
    Open(user, DeskDialog::kNewList, [](User& editor) {
      editor.Fill(kName, "fresh");
      Enter(editor, "2317");
      editor.Click(kDone);
    });
    EXPECT_EQ(user.Text(DeskDialog::kList), "fresh");
    EXPECT_EQ(Page(user), Texts{"2317"});
  });
  EXPECT_NE(directory.Read("SymbolList.xml").find("fresh"), std::string::npos);
}

TEST_F(DeskButtons, ANewListMayBeEmpty) {
  InDesk([&](User& user) {
    Open(user, DeskDialog::kNewList, [](User& editor) {
      editor.Fill(kName, "empty");
      editor.Click(kDone);
    });
    EXPECT_EQ(user.Text(DeskDialog::kList), "empty");
    EXPECT_EQ(Page(user), Texts());
  });
}

TEST_F(DeskButtons, ANewCloudListIsShown) {
  InDesk([&](User& user) {
    NewLines(user);
    Open(user, DeskDialog::kNewCloudList, [](User& editor) {
      editor.Fill(kName, "fresh");
      Enter(editor, "2317");
      editor.Click(kDone);
    });
    EXPECT_EQ(user.Text(DeskDialog::kList), "fresh");
    EXPECT_EQ(Page(user), Texts{"2317"});
    EXPECT_NE(LineWith(NewLines(user), "4 | ListNameChange"), "");
  });
}

TEST_F(DeskButtons, AListThatIsNotMadeIsNotThere) {
  InDesk([&](User& user) {
    const Texts before = user.Rows(DeskDialog::kList);
    Open(user, DeskDialog::kNewList, Cancel);
    Open(user, DeskDialog::kNewCloudList, Cancel);
    Open(user, DeskDialog::kEditShown, Cancel);
    EXPECT_EQ(user.Rows(DeskDialog::kList), before);
  });
}

TEST_F(DeskButtons, TheSelectionOpensOnWhatIsShownAndChoosesAnother) {
  InDesk([&](User& user) {
    Open(user, DeskDialog::kSelect, [](User& selection) {
      EXPECT_EQ(selection.SelectedRows(kItems), std::vector<int>{0});
      selection.Select(kSource, "上市");
      selection.Select(kItems, "水泥");
      selection.Click(kDone);
    });
    EXPECT_EQ(user.Text(DeskDialog::kSource), "上市");
    EXPECT_EQ(user.Text(DeskDialog::kList), "水泥");
    EXPECT_EQ(Page(user), Texts{"1101"});
  });
}

TEST_F(DeskButtons, ASelectionThatIsCancelledChangesNothing) {
  InDesk([&](User& user) {
    Open(user, DeskDialog::kSelect, Cancel);
    EXPECT_EQ(user.Text(DeskDialog::kList), "one");
  });
}

TEST_F(DeskButtons, OneSymbolGoesToAList) {
  InDesk([&](User& user) {
    EXPECT_FALSE(user.IsEnabled(DeskDialog::kAddOne));
    user.ClickRow(DeskDialog::kPage, 2);
    NewLines(user);
    Open(user, DeskDialog::kAddOne, [](User& dialog) {
      dialog.Select(kLists, "two");
      dialog.Click(kAddSymbol);
      dialog.Click(kDone);
    });
    EXPECT_EQ(LastOf(NewLines(user)), "通知 | 40 | ");
    EXPECT_EQ(user.SelectedRows(DeskDialog::kPage), std::vector<int>{2}); // still
    EXPECT_TRUE(user.HasFocus(DeskDialog::kAddOne));
    user.Select(DeskDialog::kList, "two");
    EXPECT_EQ(Page(user), (Texts{"1101", "2454"}));
  });
}

TEST_F(DeskButtons, SeveralSymbolsGoToOneList) {
  InDesk([&](User& user) {
    EXPECT_FALSE(user.IsEnabled(DeskDialog::kAddSelected));
    user.ClickRow(DeskDialog::kPage, 0);
    user.ClickRow(DeskDialog::kPage, 2, Modifier::Shift);
    EXPECT_FALSE(user.IsEnabled(DeskDialog::kAddOne));
    NewLines(user);
    Open(user, DeskDialog::kAddSelected, [](User& dialog) {
      EXPECT_EQ(dialog.SelectedRows(kLists), std::vector<int>{0}); // that of the page
      dialog.Select(kLists, "two");
      dialog.Click(kAddSymbol);
    });
    const Texts lines = NewLines(user);
    ASSERT_GE(lines.size(), 2U);
    EXPECT_EQ(Texts(lines.end() - 2, lines.end()), (Texts{"通知 | 4 | ", "通知 | 40 | "}));
    EXPECT_EQ(user.SelectedRows(DeskDialog::kPage), (std::vector<int>{0, 2}));
    user.Select(DeskDialog::kList, "two");
    EXPECT_EQ(Page(user), (Texts{"1101", "2330", "2454"}));
  });
}

TEST_F(DeskButtons, OnAPageOfAnotherKindTheDefaultListIsProposed) {
  manager.SetDefaultIndex(1);
  InDesk([&](User& user) {
    user.Select(DeskDialog::kSource, "上市");
    user.ClickRow(DeskDialog::kPage, 0);
    Open(user, DeskDialog::kAddSelected, [](User& dialog) {
      EXPECT_EQ(dialog.SelectedRows(kLists), std::vector<int>{1});
      dialog.Click(kDone);
    });
  });
}

TEST_F(DeskButtons, ATextThatMeansOneSymbolSelectsIt) {
  InDesk([](User& user) {
    user.Fill(DeskDialog::kInput, "2454");
    WhenDialogOpens([](User& search) { search.WaitFor([] { return false; }); }); // it ends itself
    user.Press(WindowKey::Enter);
    EXPECT_EQ(user.SelectedRows(DeskDialog::kPage), std::vector<int>{2});
    EXPECT_TRUE(user.HasFocus(DeskDialog::kPage));
    EXPECT_TRUE(user.IsEnabled(DeskDialog::kAddOne));
  });
}

TEST_F(DeskButtons, ASymbolThatIsNotOnThePageIsShownAmongAll) {
  InDesk([&](User& user) {
    user.ClickRow(DeskDialog::kPage, 0);
    user.Fill(DeskDialog::kInput, "23");
    Open(user, DeskDialog::kFind, [](User& search) {
      search.WaitFor([&search] { return !search.Rows(kFound).empty(); });
      search.DoubleClick(kFound, 1);
    });
    EXPECT_EQ(user.Text(DeskDialog::kSource), "所有商品");
    ASSERT_EQ(user.SelectedRows(DeskDialog::kPage).size(), 1U);
    const auto row = static_cast<size_t>(user.SelectedRows(DeskDialog::kPage)[0]);
    EXPECT_EQ(Page(user)[row], "2317");
  });
}

TEST_F(DeskButtons, TheSearchOpensWithTheGroupOnThePage) {
  InDesk([&](User& user) {
    user.Select(DeskDialog::kSource, "上市");
    user.Select(DeskDialog::kList, "水泥");
    Open(user, DeskDialog::kFind, [](User& search) {
      EXPECT_EQ(search.Text(kMarket), "上市");
      EXPECT_EQ(search.Text(kGroup), "水泥");
      search.CloseByTitleBar();
    });
    EXPECT_EQ(Page(user), Texts{"1101"});
  });
}

TEST_F(DeskButtons, AHeadingIsNoSymbol) {
  InDesk([](User& user) {
    user.ClickRow(DeskDialog::kPage, 1);
    EXPECT_FALSE(user.IsEnabled(DeskDialog::kAddOne));
    EXPECT_FALSE(user.IsEnabled(DeskDialog::kAddSelected));
    user.ClickRow(DeskDialog::kPage, 2);
    EXPECT_TRUE(user.IsEnabled(DeskDialog::kAddOne));
  });
}

struct SeriesButton {
  int button;
  const char* chosen[2]; // Traditional, Simplified
};

TEST_F(DeskButtons, ASeriesThatIsChosenIsNoted) {
  const SeriesButton buttons[] = {
      {DeskDialog::kEconomic, {"FEDFUNDS 聯邦基金利率", "FEDFUNDS 联邦基金利率"}},
      {DeskDialog::kCommodities, {"WTI 西德州原油", "WTI 西德州原油"}},
      {DeskDialog::kFutures, {"ES 小型標普 CME", "ES 小型标普 CME"}}};
  InDesk([&](User& user) {
    for (const SeriesButton& each : buttons) {
      NewLines(user);
      Open(user, each.button, [](User& search) { search.DoubleClick(kSeries, 0); });
      EXPECT_EQ(LastOf(NewLines(user)),
                Said("終端", "终端") + " |  | " + Said(each.chosen[0], each.chosen[1]));
      Open(user, each.button, [](User& search) { search.CloseByTitleBar(); });
      EXPECT_EQ(NewLines(user), Texts());
    }
  });
}

TEST_F(DeskButtons, ADialogThatCannotOpenIsNoted) {
  InDesk([&](User& user) {
    standin::FailAlways("tqDoModal");
    for (const int button :
         {DeskDialog::kEditLists, DeskDialog::kEditCloudLists, DeskDialog::kSelect}) {
      NewLines(user);
      EXPECT_TRUE(user.Click(button));
      EXPECT_EQ(LastOf(NewLines(user)), Said("終端 |  | 視窗無法開啟", "终端 |  | 窗口无法打开"));
    }
  });
}

} // namespace
