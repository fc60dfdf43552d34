// The editors of one list's contents: rows that are moved, removed and sorted.
#include "tests/interface/ContentEditorText.h"

namespace {

class ContentRowsText : public ContentEditorsText {
protected:
  void SetUp() override { Start({"A/one/2330.TW,2317.TW,2454.TW,1101.TW"}); }
};
class UserContentRowsText : public ContentEditorText {};

INSTANTIATE_TEST_SUITE_P(Of, ContentRowsText,
                         testing::Values(EditorOf::UserList, EditorOf::CloudList), NameOfEditor);

// --- Up and down ---------------------------------------------------------------------------------

TEST_P(ContentRowsText, UpMovesTheSelectedRowPastTheOneAbove) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 2);
              EXPECT_TRUE(user.Click(kUp));
            }),
            "2330.TW,2454.TW,2317.TW,1101.TW");
}

TEST_P(ContentRowsText, DownMovesTheSelectedRowPastTheOneBelow) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 0);
              EXPECT_TRUE(user.Click(kDown));
            }),
            "2317.TW,2330.TW,2454.TW,1101.TW");
}

TEST_P(ContentRowsText, WhatWasMovedIsSeenAtOnceAndStaysSelected) {
  In([](User& user) {
    user.ClickRow(kRows, 1);
    user.Click(kDown);
    EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2454.TW", "2317.TW", "1101.TW"}));
    EXPECT_EQ(user.SelectedRows(kRows), std::vector<int>{2});
  });
}

TEST_P(ContentRowsText, ARowIsMovedAsOftenAsTheButtonIsClicked) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 3);
              user.Click(kUp);
              user.Click(kUp);
              user.Click(kUp);
            }),
            "1101.TW,2330.TW,2317.TW,2454.TW");
}

TEST_P(ContentRowsText, SeveralSelectedRowsMoveTogether) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              user.ClickRow(kRows, 2, Modifier::Shift);
              user.Click(kUp);
            }),
            "2317.TW,2454.TW,2330.TW,1101.TW");
}

TEST_P(ContentRowsText, TheFirstRowCannotGoUp) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 0);
              user.Click(kUp);
              EXPECT_EQ(user.Rows(kRows).size(), 5U);
            }),
            "2330.TW,2317.TW,2454.TW,1101.TW");
}

TEST_P(ContentRowsText, TheLastSymbolCannotGoBelowTheEmptyRow) {
  In([](User& user) {
    user.ClickRow(kRows, 3);
    user.Click(kDown);
    EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2317.TW", "2454.TW", "1101.TW"}));
  });
}

TEST_P(ContentRowsText, TheEmptyRowCannotGoUp) {
  In([](User& user) {
    user.ClickRow(kRows, 4);
    user.Click(kUp);
    EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2317.TW", "2454.TW", "1101.TW"}));
  });
}

TEST_P(ContentRowsText, WithoutASelectedRowNothingMoves) {
  In([](User& user) {
    SelectNothing(user);
    user.Click(kUp);
    user.Click(kDown);
    EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2317.TW", "2454.TW", "1101.TW"}));
  });
}

TEST_P(ContentRowsText, AltAndTheArrowsMoveRows) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              user.Press(WindowKey::Down, Modifier::Alt);
              user.Press(WindowKey::Down, Modifier::Alt);
              user.ClickRow(kRows, 1);
              user.Press(WindowKey::Up, Modifier::Alt);
            }),
            "2454.TW,2330.TW,1101.TW,2317.TW");
}

TEST_F(UserContentRowsText, ASubTitleMovesLikeASymbol) {
  Start({"A/one/2330.TW,Chips:,2454.TW"});
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              user.Click(kUp);
            }),
            "Chips:,2330.TW,2454.TW");
}

// --- Removing ------------------------------------------------------------------------------------

TEST_P(ContentRowsText, RemovingTakesTheSelectedRow) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              EXPECT_TRUE(user.Click(kRemove));
              EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2454.TW", "1101.TW"}));
            }),
            "2330.TW,2454.TW,1101.TW");
}

TEST_P(ContentRowsText, RemovingTakesAllSelectedRows) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 0);
              user.ClickRow(kRows, 2, Modifier::Control);
              user.ClickRow(kRows, 3, Modifier::Control);
              user.Click(kRemove);
            }),
            "2317.TW");
}

TEST_P(ContentRowsText, RemovingDoesNotAsk) {
  In([](User& user) {
    user.ClickRow(kRows, 0);
    user.Click(kRemove);
    EXPECT_EQ(user.Rows(kRows).size(), 4U);
  });
  EXPECT_EQ(Shown(), "");
}

TEST_P(ContentRowsText, TheEmptyRowCannotBeRemoved) {
  In([](User& user) {
    user.ClickRow(kRows, 4);
    user.Click(kRemove);
    EXPECT_EQ(user.Rows(kRows), RowsOf({"2330.TW", "2317.TW", "2454.TW", "1101.TW"}));
  });
}

TEST_P(ContentRowsText, TheEmptyRowStaysWhenAllRowsAreRemoved) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 0);
              user.ClickRow(kRows, 4, Modifier::Shift);
              user.Click(kRemove);
              EXPECT_EQ(user.Rows(kRows), Lines{""});
            }),
            "");
}

TEST_P(ContentRowsText, WithoutASelectedRowNothingIsRemoved) {
  In([](User& user) {
    SelectNothing(user);
    user.Click(kRemove);
    EXPECT_EQ(user.Rows(kRows).size(), 5U);
  });
}

TEST_P(ContentRowsText, TheKeyDeleteRemovesTheSelectedRows) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              user.ClickRow(kRows, 2, Modifier::Shift);
              user.Press(WindowKey::Delete);
            }),
            "2330.TW,1101.TW");
}

TEST_P(ContentRowsText, TheKeyDeleteInAFieldRemovesNoRow) {
  In([](User& user) {
    user.ClickRow(kRows, 1);
    user.Fill(kCode, "2881");
    user.Press(WindowKey::Home);
    user.Press(WindowKey::Delete);
    EXPECT_EQ(user.Text(kCode), "881");
    EXPECT_EQ(user.Rows(kRows).size(), 5U);
  });
}

TEST_P(ContentRowsText, ControlAAndDeleteEmptyTheList) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 0);
              user.PressLetter('A', Modifier::Control);
              user.Press(WindowKey::Delete);
              EXPECT_EQ(user.Rows(kRows), Lines{""});
            }),
            "");
}

TEST_P(ContentRowsText, WhatWasRemovedCanBeAddedAgain) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 0);
              user.Click(kRemove);
              user.ClickRow(kRows, 3); // the empty one
              Submit(user, "2330");
            }),
            "2317.TW,2454.TW,1101.TW,2330.TW");
  EXPECT_EQ(Shown(), "");
}

TEST_F(UserContentRowsText, ASubTitleIsRemovedLikeASymbol) {
  Start({"A/one/2330.TW,Chips:,2454.TW"});
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              user.Click(kRemove);
            }),
            "2330.TW,2454.TW");
}

// --- Sorting -------------------------------------------------------------------------------------

TEST_P(ContentRowsText, SortingOrdersTheListByCode) {
  EXPECT_EQ(After([](User& user) {
              EXPECT_TRUE(user.Click(kSort));
              EXPECT_EQ(user.Rows(kRows), RowsOf({"1101.TW", "2317.TW", "2330.TW", "2454.TW"}));
            }),
            "1101.TW,2317.TW,2330.TW,2454.TW");
}

TEST_P(ContentRowsText, SortingAnEmptyListLeavesTheEmptyRow) {
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 0);
              user.ClickRow(kRows, 3, Modifier::Shift);
              user.Click(kRemove);
              user.Click(kSort);
              EXPECT_EQ(user.Rows(kRows), Lines{""});
            }),
            "");
}

TEST_F(UserContentRowsText, SortingLosesNoSubTitle) {
  Start({"A/one/Chips:,2454.TW,2330.TW"});
  EXPECT_EQ(After([](User& user) { user.Click(kSort); }), "Chips:,2330.TW,2454.TW");
}

TEST_F(UserContentRowsText, AMoveLosesNoSymbolThatTheServiceDoesNotKnow) {
  Start({"A/one/2330.TW,GONE.TW,2454.TW"});
  const std::string after = After([](User& user) {
    user.ClickRow(kRows, 1);
    user.Click(kUp);
  });
  EXPECT_NE(after.find("GONE.TW"), std::string::npos) << after;
  EXPECT_LT(after.find("2454.TW"), after.find("2330.TW")) << after;
}

TEST_F(UserContentRowsText, ARemovalLosesNoSymbolThatTheServiceDoesNotKnow) {
  Start({"A/one/2330.TW,GONE.TW,2454.TW"});
  EXPECT_EQ(After([](User& user) {
              user.ClickRow(kRows, 1);
              user.Click(kRemove);
            }),
            "2330.TW,GONE.TW");
}

} // namespace
