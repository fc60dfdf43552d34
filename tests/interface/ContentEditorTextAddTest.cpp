// The editors of one list's contents: a symbol that was typed or picked is added.
#include "symboltable/SymbolTableMgr.h"
#include "tests/interface/ContentEditorText.h"

namespace {

class ContentAddText : public ContentEditorsText {
protected:
  void SetUp() override { Start({"A/one/2330.TW,2317.TW"}); }
  // Of the group market's first group: 2330 and 2454.
  static void ShowChips(User& user) {
    ShowGroup(user, 0, 0);
    EXPECT_EQ(FoundNames(user), NamesOf({"2330.TW", "2454.TW"}));
  }
  static void ShowWafers(User& user) {
    ShowGroup(user, 1, 0);
    EXPECT_EQ(FoundNames(user), NamesOf({"6488.TE", "5483.TE"}));
  }
  static void ExpectUnchanged(const User& user) {
    EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2317.TW"}));
  }
};
class UserContentAddText : public ContentEditorText {};

INSTANTIATE_TEST_SUITE_P(Of, ContentAddText,
                         testing::Values(EditorOf::UserList, EditorOf::CloudList), NameOfEditor);

// --- Refusals ------------------------------------------------------------------------------------

TEST_P(ContentAddText, WithoutATextTheUserIsTold) {
  In([this](User& user) {
    Submit(user, "");
    EXPECT_EQ(Shown(), "48004/0");
    ExpectUnchanged(user);
    EXPECT_TRUE(user.HasFocus(kCode));
  });
}

TEST_P(ContentAddText, ATextThatIsNoSymbolIsRefused) {
  In([this](User& user) {
    Submit(user, "XYZ");
    EXPECT_EQ(Shown(), "48018/0");
    ExpectUnchanged(user);
    EXPECT_TRUE(user.HasFocus(kCode));
  });
}

TEST_P(ContentAddText, AnIdOfAnExchangeThatDoesNotListItIsRefused) {
  In([this](User& user) {
    Submit(user, "2330.TE");
    EXPECT_EQ(Shown(), "48018/0");
    ExpectUnchanged(user);
  });
}

TEST_P(ContentAddText, ABareCodeOfNoDefaultExchangeIsRefused) {
  In([this](User& user) {
    Submit(user, "AAPL");
    EXPECT_EQ(Shown(), "48018/0");
    ExpectUnchanged(user);
  });
}

TEST_P(ContentAddText, WithoutSymbolTablesNothingIsFound) {
  In([this](User& user) {
    manager.GetSymbolTableMgr()->CleanALL();
    Submit(user, "2881");
    EXPECT_EQ(Shown(), "48018/0");
    ExpectUnchanged(user);
  });
}

TEST_P(ContentAddText, APartOfANameIsNoSymbol) {
  In([this](User& user) {
    Submit(user, Text("環球", "环球"));
    EXPECT_EQ(Shown(), "48018/0");
    ExpectUnchanged(user);
  });
}

TEST_P(ContentAddText, ACodeOfTwoDefaultExchangesIsNotUnique) {
  In([this](User& user) {
    Submit(user, "7777");
    EXPECT_EQ(Shown(), "48020/0");
    ExpectUnchanged(user);
  });
}

TEST_P(ContentAddText, TheSimilarSymbolsOfACodeThatIsNotUniqueAreListed) {
  In([](User& user) {
    Submit(user, "7777");
    EXPECT_EQ(FoundNames(user), NamesOf({"7777.TW", "7777.TE"}));
  });
}

TEST_P(ContentAddText, OneOfTheSimilarSymbolsCanBePicked) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              Submit(user, "7777");
              user.ClickRow(kFound, 1);
              user.Click(kAdd);
            }),
            "2330.TW,2317.TW,7777.TE");
}

// --- One match -----------------------------------------------------------------------------------

TEST_P(ContentAddText, ASymbolIsAddedAtTheEndWhenNothingIsSelected) {
  EXPECT_EQ(After([](User& user) {
              SelectNothing(user);
              Submit(user, "2881");
              EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2317.TW", "2881.TW"}));
            }),
            "2330.TW,2317.TW,2881.TW");
}

TEST_P(ContentAddText, ASymbolIsAddedAtTheEndWhenTheEmptyRowIsSelected) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              Submit(user, "2881");
            }),
            "2330.TW,2317.TW,2881.TW");
}

TEST_P(ContentAddText, ASymbolIsAddedBeforeTheSelectedRow) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              Submit(user, "2881");
              EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2881.TW", "2317.TW"}));
            }),
            "2330.TW,2881.TW,2317.TW");
}

TEST_P(ContentAddText, TheFirstSymbolOfAListIsAdded) {
  Start({"B/two/"});
  EXPECT_TRUE(Edit("B", [](User& user) {
    Submit(user, "2881");
    EXPECT_EQ(user.Rows(kRows), RowsOf({"2881.TW"}));
    user.Click(kDone);
  }));
  EXPECT_EQ(Symbols("B"), "2881.TW");
}

TEST_P(ContentAddText, AFullIdIsAdded) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              Submit(user, "7777.TE");
            }),
            "2330.TW,2317.TW,7777.TE");
  EXPECT_EQ(Shown(), "");
}

TEST_P(ContentAddText, AnIdInSmallLettersIsAddedAsTheSymbolIsSpelled) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              Submit(user, "aapl.nasd");
            }),
            "2330.TW,2317.TW,AAPL.NASD");
}

TEST_P(ContentAddText, ANameIsAdded) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              Submit(user, Text("環球晶", "环球晶"));
            }),
            "2330.TW,2317.TW,6488.TE");
  EXPECT_EQ(Shown(), "");
}

TEST_P(ContentAddText, ANameWhoseBytesLookLikeBackslashesIsAdded) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              Submit(user, Text("許功蓋", "许功盖"));
            }),
            "2330.TW,2317.TW,1436.TW");
}

TEST_P(ContentAddText, TheFieldIsEmptyAfterASymbolWasAdded) {
  In([this](User& user) {
    Submit(user, "2881");
    EXPECT_EQ(user.Text(kCode), "");
    EXPECT_EQ(Shown(), "");
  });
}

TEST_P(ContentAddText, EnterInTheFieldAdds) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              user.Fill(kCode, "2881");
              user.Press(WindowKey::Enter);
              EXPECT_TRUE(user.IsUp());
            }),
            "2330.TW,2317.TW,2881.TW");
}

// --- Already in the list -------------------------------------------------------------------------

TEST_P(ContentAddText, ASymbolThatTheListHoldsIsNotAddedAgain) {
  In([this](User& user) {
    Submit(user, "2317");
    EXPECT_EQ(Shown(), "48019/0");
    ExpectUnchanged(user);
  });
}

TEST_P(ContentAddText, TheRowOfASymbolThatTheListHoldsIsSelectedAlone) {
  In([](User& user) {
    user.ClickRow(kRows, 0);
    user.ClickRow(kRows, 2, Modifier::Control);
    Submit(user, "2317");
    EXPECT_EQ(user.SelectedRows(kRows), std::vector<int>{1});
  });
}

TEST_P(ContentAddText, TheRowOfASymbolThatALongListHoldsIsInSight) {
  standin::Market market = standin::CurrentMarket();
  std::string symbols;
  for (int code = 3000; code < 3200; ++code) {
    standin::Instrument instrument = market.instruments.front();
    instrument.code = std::to_string(code);
    market.instruments.push_back(instrument);
    symbols += (symbols.empty() ? "" : ",") + instrument.code + ".TW";
  }
  standin::SetMarket(market);
  Start({"L/long/" + symbols});
  EXPECT_FALSE(Edit("L", [](User& user) {
    user.ClickRow(kRows, 0);
    Submit(user, "3150");
    EXPECT_EQ(user.SelectedRows(kRows), std::vector<int>{150});
    EXPECT_TRUE(user.IsInSight(kRows, 150));
    user.Click(kCancel);
  }));
}

TEST_P(ContentAddText, TheFieldIsEmptyAfterASymbolThatTheListHolds) {
  In([](User& user) {
    Submit(user, "2317");
    EXPECT_EQ(user.Text(kCode), "");
  });
}

TEST_P(ContentAddText, ANameOfASymbolThatTheListHoldsIsNotAddedAgain) {
  In([this](User& user) {
    Submit(user, Text("鴻海", "鸿海"));
    EXPECT_EQ(Shown(), "48019/0");
    ExpectUnchanged(user);
  });
}

TEST_P(ContentAddText, ASymbolThatWasJustAddedIsNotAddedAgain) {
  In([this](User& user) {
    Submit(user, "2881");
    Submit(user, "2881.TW");
    EXPECT_EQ(Shown(), "48019/0");
    EXPECT_EQ(user.Rows(kRows).size(), 4U);
  });
}

// --- Picked --------------------------------------------------------------------------------------

TEST_P(ContentAddText, APickedSymbolIsInsertedAtTheCaretRow) {
  EXPECT_EQ(After([](User& user) {
              ShowWafers(user);
              user.ClickRow(kRows, 1);
              user.ClickRow(kFound, 1);
              user.Click(kAdd);
              EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "5483.TE", "2317.TW"}));
            }),
            "2330.TW,5483.TE,2317.TW");
}

TEST_P(ContentAddText, TheCaretRowCountsAndNotTheSelectedOne) {
  EXPECT_EQ(After([](User& user) {
              ShowWafers(user);
              user.ClickRow(kRows, 0);
              user.Press(WindowKey::Down, Modifier::Control);
              user.ClickRow(kFound, 0);
              user.Click(kAdd);
            }),
            "2330.TW,6488.TE,2317.TW");
}

TEST_P(ContentAddText, PickedSymbolsGoToTheEndWhenTheCaretIsOnTheEmptyRow) {
  EXPECT_EQ(After([](User& user) {
              ShowWafers(user);
              user.ClickRow(kRows, 2);
              user.ClickRow(kFound, 0);
              user.ClickRow(kFound, 1, Modifier::Control);
              user.Click(kAdd);
            }),
            "2330.TW,2317.TW,6488.TE,5483.TE");
}

TEST_P(ContentAddText, PickedSymbolsCountAndNotTheTypedText) {
  EXPECT_EQ(After([](User& user) {
              ShowWafers(user);
              user.ClickRow(kRows, 2);
              user.Fill(kCode, "XYZ");
              user.ClickRow(kFound, 0);
              user.Click(kAdd);
            }),
            "2330.TW,2317.TW,6488.TE");
  EXPECT_EQ(Shown(), "");
}

TEST_P(ContentAddText, APickedSymbolThatTheListHoldsIsNotAddedAgain) {
  EXPECT_EQ(After([](User& user) {
              ShowChips(user);
              user.ClickRow(kRows, 2);
              user.ClickRow(kFound, 0);
              user.ClickRow(kFound, 1, Modifier::Control);
              user.Click(kAdd);
            }),
            "2330.TW,2317.TW,2454.TW");
}

TEST_P(ContentAddText, ADoubleClickOnAResultAddsIt) {
  EXPECT_EQ(After([](User& user) {
              ShowWafers(user);
              user.ClickRow(kRows, 2);
              user.DoubleClick(kFound, 1);
              EXPECT_TRUE(user.IsUp());
            }),
            "2330.TW,2317.TW,5483.TE");
}

TEST_P(ContentAddText, ADoubleClickOnAResultThatTheListHoldsAddsNothing) {
  In([](User& user) {
    ShowChips(user);
    user.DoubleClick(kFound, 0);
    ExpectUnchanged(user);
  });
}

TEST_P(ContentAddText, ADoubleClickBesideTheResultsAddsNothing) {
  In([this](User& user) {
    ShowWafers(user);
    EXPECT_TRUE(user.DoubleClick(kFound, -1));
    EXPECT_EQ(Shown(), "");
    ExpectUnchanged(user);
  });
}

// --- What the list does not show -----------------------------------------------------------------

TEST_F(UserContentAddText, AddingLosesNoSymbolThatTheServiceDoesNotKnow) {
  Start({"A/one/GONE.TW,2330.TW"});
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              Submit(user, "2881");
            }),
            "GONE.TW,2330.TW,2881.TW");
}

TEST_F(UserContentAddText, AddingLosesNoSubTitle) {
  Start({"A/one/Chips:,2330.TW"});
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              Submit(user, "2881");
            }),
            "Chips:,2881.TW,2330.TW");
}

} // namespace
