// The caret row and the keys of lists.
#include "platform/framework/CComboBox.h"
#include "platform/framework/CListBox.h"
#include "platform/framework/CListCtrl.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr int kSingle = 781;
constexpr int kMulti = 782;
constexpr int kTable = 791;
constexpr int kCombo = 761;

class ListKeysTest : public WindowTest {
protected:
  // Each list has the rows 0 to `rows` - 1.
  void InLists(int rows, const std::function<void(User&, TestDialog&)>& script) {
    InDialog([&](User& user, TestDialog& dialog) {
      CListCtrl table(dialog, kTable);
      table.AddColumn("x", 0);
      for (int i = 0; i < rows; ++i) {
        const std::string text = std::to_string(i);
        for (const int id : {kSingle, kMulti})
          CListBox(dialog, id).AddString(text.c_str());
        CComboBox(dialog, kCombo).AddString(text.c_str());
        table.AddRow(text.c_str());
      }
      script(user, dialog);
    });
  }
  static std::string Told(int id) { return std::to_string(id) + " selection"; }
};

using Picked = std::vector<int>;

// On Windows it kept its number, so that a row was inserted in the wrong place.
TEST_F(ListKeysTest, TheCaretStaysWithItsRow) {
  InLists(5, [](User& user, TestDialog& dialog) {
    for (const int id : {kSingle, kMulti}) {
      CListBox box(dialog, id);
      EXPECT_TRUE(box.SetCaretIndex(2)) << id;
      box.InsertString(0, "front");
      EXPECT_EQ(box.GetCaretIndex(), 3) << id;
      box.InsertString(3, "there");
      EXPECT_EQ(box.GetCaretIndex(), 4) << id;
      box.InsertString(5, "behind");
      EXPECT_EQ(box.GetCaretIndex(), 4) << id;
      box.DeleteString(0);
      EXPECT_EQ(box.GetCaretIndex(), 3) << id;
      box.DeleteString(4);
      EXPECT_EQ(box.GetCaretIndex(), 3) << id;
      box.DeleteString(3); // the row behind it takes its place
      EXPECT_EQ(box.GetCaretIndex(), 3) << id;
      EXPECT_EQ(box.GetItemText(3), "3") << id;
      box.SetCaretIndex(4);
      box.DeleteString(4); // the last one
      EXPECT_EQ(box.GetCaretIndex(), 3) << id;
      EXPECT_EQ(user.SelectedRows(id), Picked()) << id;
      box.ResetContent();
      EXPECT_EQ(box.GetCaretIndex(), -1) << id;
      box.AddString("new");
      EXPECT_EQ(box.GetCaretIndex(), 0) << id;
      box.InsertString(0, "newer");
      EXPECT_EQ(box.GetCaretIndex(), 1) << id;
    }
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(ListKeysTest, TheCaretOfASelectedRowStaysWithIt) {
  InLists(5, [](User&, TestDialog& dialog) {
    for (const int id : {kSingle, kMulti}) {
      CListBox box(dialog, id);
      box.SetCurSel(2);
      box.InsertString(0, "front");
      EXPECT_EQ(box.GetCaretIndex(), 3) << id;
      box.DeleteString(1);
      EXPECT_EQ(box.GetCaretIndex(), 2) << id;
      box.SetItemText(2, "other");
      box.SetItemText(0, "other");
      EXPECT_EQ(box.GetCaretIndex(), 2) << id;
      EXPECT_EQ(box.GetCurSel(), 2) << id;
      box.SetCurSel(-1);
      EXPECT_EQ(box.GetCaretIndex(), 2) << id;
      box.SetItemText(2, "again");
      EXPECT_EQ(box.GetCaretIndex(), 2) << id;
    }
  });
}

// On Windows the program's selecting moved the caret.
TEST_F(ListKeysTest, SelectingLeavesTheCaretAndTheScrolling) {
  InLists(100, [](User& user, TestDialog& dialog) {
    CListBox box(dialog, kMulti);
    box.SetCaretIndex(2);
    EXPECT_TRUE(box.SelectRow(70));
    EXPECT_TRUE(box.SelectRow(70, false));
    EXPECT_TRUE(box.SelectRow(60));
    EXPECT_EQ(box.GetCaretIndex(), 2);
    EXPECT_TRUE(user.IsInSight(kMulti, 0));
    CListCtrl table(dialog, kTable);
    table.SetCurSel(2);
    EXPECT_TRUE(table.SelectRow(70));
    EXPECT_TRUE(user.IsInSight(kTable, 0));
    table.SetFocus();
    user.Press(Key::Down);
    EXPECT_EQ(user.SelectedRows(kTable), Picked{3});
  });
}

TEST_F(ListKeysTest, ASelectedRangeOfRows) {
  InLists(100, [](User& user, TestDialog& dialog) {
    CListBox box(dialog, kMulti);
    box.SetCaretIndex(1);
    EXPECT_TRUE(box.SelectRow(50));
    EXPECT_TRUE(box.SelectRange(4, 2));
    EXPECT_EQ(user.SelectedRows(kMulti), (Picked{2, 3, 4, 50}));
    EXPECT_TRUE(box.SelectRange(3, 60, false));
    EXPECT_EQ(user.SelectedRows(kMulti), Picked{2});
    EXPECT_TRUE(box.SelectRange(99, 99));
    EXPECT_EQ(user.SelectedRows(kMulti), (Picked{2, 99}));
    EXPECT_EQ(box.GetCaretIndex(), 1);
    EXPECT_TRUE(user.IsInSight(kMulti, 0));
    EXPECT_FALSE(box.SelectRange(0, 100));
    EXPECT_FALSE(box.SelectRange(-1, 2));
    EXPECT_FALSE(CListBox(dialog, kSingle).SelectRange(0, 2));
    EXPECT_FALSE(CListBox().SelectRange(0, 0));
    EXPECT_EQ(user.SelectedRows(kMulti), (Picked{2, 99}));
    EXPECT_EQ(user.SelectedRows(kSingle), Picked());
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(ListKeysTest, TheCaretOfASingleSelectionIsTheSelectedRow) {
  InLists(5, [](User&, TestDialog& dialog) {
    CListBox box(dialog, kSingle);
    box.SetCurSel(3);
    EXPECT_FALSE(box.SetCaretIndex(1));
    EXPECT_EQ(box.GetCaretIndex(), 3);
    EXPECT_EQ(box.GetCurSel(), 3);
  });
}

// The first Down went past the first row, depending on the kind of list and of window.
TEST_F(ListKeysTest, TheFirstArrowKeySelectsTheCaretRow) {
  for (const Key key : {Key::Up, Key::Down}) {
    InLists(3, [key](User& user, TestDialog& dialog) {
      for (const int id : {kSingle, kMulti, kTable, kCombo}) {
        CWnd(dialog, id).SetFocus();
        user.Press(key);
        EXPECT_EQ(user.SelectedRows(id), Picked{0}) << id;
        EXPECT_EQ(dialog.Take(), Log{Told(id)}) << id;
        user.Press(Key::Down);
        EXPECT_EQ(user.SelectedRows(id), Picked{1}) << id;
        dialog.Take();
      }
    });
  }
}

TEST_F(ListKeysTest, TheFirstDownAfterARefillSelectsTheFirstRow) {
  InLists(5, [](User& user, TestDialog& dialog) {
    CListBox(dialog, kSingle).SetCurSel(3);
    CListBox(dialog, kMulti).SetCurSel(3);
    CComboBox(dialog, kCombo).SetCurSel(3);
    CListCtrl table(dialog, kTable);
    table.SetCurSel(3);
    table.DeleteAllRows();
    for (const int id : {kSingle, kMulti})
      CListBox(dialog, id).ResetContent();
    CComboBox(dialog, kCombo).ResetContent();
    for (const char* text : {"A", "B", "C"}) {
      for (const int id : {kSingle, kMulti})
        CListBox(dialog, id).AddString(text);
      CComboBox(dialog, kCombo).AddString(text);
      table.AddRow(text);
    }
    for (const int id : {kSingle, kMulti, kTable, kCombo}) {
      CWnd(dialog, id).SetFocus();
      user.Press(Key::Down);
      EXPECT_EQ(user.SelectedRows(id), Picked{0}) << id;
    }
  });
}

TEST_F(ListKeysTest, DownAfterTheSelectedRowWasDeletedSelectsTheOneInItsPlace) {
  InLists(5, [](User& user, TestDialog& dialog) {
    CListCtrl table(dialog, kTable);
    table.SetCurSel(2);
    table.DeleteRow(2);
    for (const int id : {kSingle, kMulti}) {
      CListBox(dialog, id).SetCurSel(2);
      CListBox(dialog, id).DeleteString(2);
    }
    for (const int id : {kSingle, kMulti, kTable}) {
      CWnd(dialog, id).SetFocus();
      user.Press(Key::Down);
      EXPECT_EQ(user.SelectedRows(id), Picked{2}) << id;
      EXPECT_EQ(user.Rows(id)[2], "3") << id;
    }
    table.SetCurSel(3);
    table.DeleteRow(3);
    for (const int id : {kSingle, kMulti}) {
      CListBox(dialog, id).SetCurSel(3);
      CListBox(dialog, id).DeleteString(3);
    }
    for (const int id : {kSingle, kMulti, kTable}) {
      CWnd(dialog, id).SetFocus();
      user.Press(Key::Down);
      EXPECT_EQ(user.SelectedRows(id), Picked{2}) << id;
    }
  });
}

TEST_F(ListKeysTest, TheCaretOfATableStaysWithItsRow) {
  InLists(5, [](User& user, TestDialog& dialog) {
    CListCtrl table(dialog, kTable);
    table.SetFocus();
    table.InsertRow(0, "front"); // the caret was on row 0, and is on row 1
    user.Press(Key::Down);
    EXPECT_EQ(user.SelectedRows(kTable), Picked{1});
    table.SetCurSel(3);
    table.DeleteRow(0);
    table.SetCurSel(-1);
    user.Press(Key::Down);
    EXPECT_EQ(user.SelectedRows(kTable), Picked{2});
  });
}

TEST_F(ListKeysTest, SpaceSelectsTheCaretRow) {
  InLists(3, [](User& user, TestDialog& dialog) {
    for (const int id : {kSingle, kMulti, kTable}) {
      CWnd(dialog, id).SetFocus();
      user.Press(Key::Space);
      EXPECT_EQ(user.SelectedRows(id), Picked{0}) << id;
      EXPECT_EQ(dialog.Take(), Log{Told(id)}) << id;
      user.Press(Key::Space);
      EXPECT_EQ(user.SelectedRows(id), Picked{0}) << id;
      EXPECT_EQ(dialog.Take(), Log()) << id;
    }
    CListBox box(dialog, kMulti);
    box.SelectRow(1);
    box.SetCaretIndex(2);
    box.SetFocus();
    user.Press(Key::Space);
    EXPECT_EQ(user.SelectedRows(kMulti), Picked{2});
  });
}

TEST_F(ListKeysTest, ControlAndSpaceTurnTheCaretRowAround) {
  InLists(5, [](User& user, TestDialog& dialog) {
    for (const int id : {kMulti, kTable}) {
      user.ClickRow(id, 0);
      dialog.Take();
      user.Press(Key::Down, Modifier::Control);
      user.Press(Key::Down, Modifier::Control);
      EXPECT_EQ(user.SelectedRows(id), Picked{0}) << id;
      EXPECT_EQ(dialog.Take(), Log()) << id;
      user.Press(Key::Space, Modifier::Control);
      EXPECT_EQ(user.SelectedRows(id), (Picked{0, 2})) << id;
      user.Press(Key::Space, Modifier::Control);
      EXPECT_EQ(user.SelectedRows(id), Picked{0}) << id;
      EXPECT_EQ(dialog.Take(), Log(2, Told(id))) << id;
    }
    // Of one selection there is nothing to turn around.
    user.ClickRow(kSingle, 1);
    dialog.Take();
    user.Press(Key::Space, Modifier::Control);
    EXPECT_EQ(user.SelectedRows(kSingle), Picked{1});
    user.Press(Key::Down, Modifier::Control);
    EXPECT_EQ(user.SelectedRows(kSingle), Picked{2});
  });
}

TEST_F(ListKeysTest, ShiftSelectsFromTheRowThatWasSelectedWithoutIt) {
  InLists(6, [](User& user, TestDialog& dialog) {
    for (const int id : {kMulti, kTable}) {
      user.ClickRow(id, 2);
      dialog.Take();
      user.Press(Key::Down, Modifier::Shift);
      user.Press(Key::Down, Modifier::Shift);
      EXPECT_EQ(user.SelectedRows(id), (Picked{2, 3, 4})) << id;
      user.Press(Key::Home, Modifier::Shift);
      EXPECT_EQ(user.SelectedRows(id), (Picked{0, 1, 2})) << id;
      user.ClickRow(id, 4, Modifier::Shift);
      EXPECT_EQ(user.SelectedRows(id), (Picked{2, 3, 4})) << id;
      user.Press(Key::Up);
      EXPECT_EQ(user.SelectedRows(id), Picked{3}) << id;
      user.Press(Key::End, Modifier::Shift);
      EXPECT_EQ(user.SelectedRows(id), (Picked{3, 4, 5})) << id;
      dialog.Take();
      user.Press(Key::End, Modifier::Shift);
      EXPECT_EQ(dialog.Take(), Log()) << id;
    }
    user.ClickRow(kSingle, 2);
    user.Press(Key::Down, Modifier::Shift);
    EXPECT_EQ(user.SelectedRows(kSingle), Picked{3});
  });
}

TEST_F(ListKeysTest, ControlAndASelectAllRowsOfAListOfSeveral) {
  InLists(3, [](User& user, TestDialog& dialog) {
    for (const int id : {kMulti, kTable}) {
      user.ClickRow(id, 1);
      dialog.Take();
      user.PressLetter('A', Modifier::Control);
      EXPECT_EQ(user.SelectedRows(id), (Picked{0, 1, 2})) << id;
      EXPECT_EQ(dialog.Take(), Log{Told(id)}) << id;
      user.PressLetter('A', Modifier::Control);
      EXPECT_EQ(dialog.Take(), Log()) << id;
      user.Press(Key::Down);
      EXPECT_EQ(user.SelectedRows(id), Picked{2}) << id;
    }
    user.ClickRow(kSingle, 1);
    dialog.Take();
    user.PressLetter('A', Modifier::Control);
    EXPECT_EQ(user.SelectedRows(kSingle), Picked{1});
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(ListKeysTest, PagesAndEndsAreScrolledTo) {
  InLists(100, [](User& user, TestDialog& dialog) {
    for (const int id : {kSingle, kMulti, kTable}) {
      CWnd(dialog, id).SetFocus();
      user.Press(Key::Home);
      EXPECT_EQ(user.SelectedRows(id), Picked{0}) << id;
      int shown = 0;
      while (user.IsInSight(id, shown))
        ++shown;
      ASSERT_GT(shown, 2) << id;
      user.Press(Key::PageDown);
      EXPECT_EQ(user.SelectedRows(id), Picked{shown - 1}) << id;
      EXPECT_TRUE(user.IsInSight(id, 0)) << id;
      user.Press(Key::PageDown);
      EXPECT_EQ(user.SelectedRows(id), Picked{2 * shown - 2}) << id;
      EXPECT_TRUE(user.IsInSight(id, 2 * shown - 2)) << id;
      EXPECT_FALSE(user.IsInSight(id, 0)) << id;
      user.Press(Key::PageUp);
      EXPECT_EQ(user.SelectedRows(id), Picked{shown - 1}) << id;
      user.Press(Key::End);
      EXPECT_EQ(user.SelectedRows(id), Picked{99}) << id;
      EXPECT_TRUE(user.IsInSight(id, 99)) << id;
      user.Press(Key::PageDown);
      EXPECT_EQ(user.SelectedRows(id), Picked{99}) << id;
      user.Press(Key::Home);
      user.Press(Key::PageUp);
      EXPECT_EQ(user.SelectedRows(id), Picked{0}) << id;
      EXPECT_TRUE(user.IsInSight(id, 0)) << id;
    }
  });
}

TEST_F(ListKeysTest, ACaretThatIsPutSomewhereIsScrolledTo) {
  InLists(100, [](User& user, TestDialog& dialog) {
    CListBox(dialog, kSingle).SetCurSel(80);
    EXPECT_TRUE(user.IsInSight(kSingle, 80));
    CListBox box(dialog, kMulti);
    box.SetCaretIndex(80);
    EXPECT_TRUE(user.IsInSight(kMulti, 80));
    box.EnsureVisible(10);
    EXPECT_TRUE(user.IsInSight(kMulti, 10));
    EXPECT_TRUE(user.IsInSight(kMulti, 11)); // as little as needed: row 10 is the first
    EXPECT_FALSE(user.IsInSight(kMulti, 9));
    box.EnsureVisible(11);
    EXPECT_TRUE(user.IsInSight(kMulti, 10));
    CListCtrl table(dialog, kTable);
    table.SetCurSel(80);
    EXPECT_TRUE(user.IsInSight(kTable, 80));
    EXPECT_FALSE(user.IsInSight(kTable, 10));
    EXPECT_FALSE(user.IsInSight(kTable, 100));
  });
}

TEST_F(ListKeysTest, InsertingInFrontOfAnUnseenCaretScrollsNothing) {
  InLists(100, [](User& user, TestDialog& dialog) {
    CListBox box(dialog, kMulti);
    box.SetCaretIndex(90);
    box.EnsureVisible(0);
    box.InsertString(50, "new");
    EXPECT_TRUE(user.IsInSight(kMulti, 0));
    box.DeleteString(50);
    EXPECT_TRUE(user.IsInSight(kMulti, 0));
    box.SetItemText(50, "changed");
    EXPECT_TRUE(user.IsInSight(kMulti, 0));
    EXPECT_EQ(box.GetCaretIndex(), 90);
  });
}

// With the mouse: Shift selects from there, also when rows came in front.
TEST_F(ListKeysTest, TheRowThatShiftSelectsFromStaysTheSame) {
  InLists(6, [](User& user, TestDialog& dialog) {
    CListCtrl table(dialog, kTable);
    user.ClickRow(kMulti, 3);
    CListBox(dialog, kMulti).InsertString(0, "front");
    user.ClickRow(kTable, 3);
    table.InsertRow(0, "front");
    for (const int id : {kMulti, kTable}) {
      user.ClickRow(id, 6, Modifier::Shift);
      EXPECT_EQ(user.SelectedRows(id), (Picked{4, 5, 6})) << id;
    }
  });
}

// A double-click on the empty part of a list box was told as one on a row.
TEST_F(ListKeysTest, BesideTheRowsOfAListBoxThereIsNothing) {
  InLists(3, [](User& user, TestDialog& dialog) {
    for (const int id : {kSingle, kMulti}) {
      CListBox(dialog, id).SetCurSel(1);
      EXPECT_TRUE(user.ClickRow(id, -1)) << id;
      EXPECT_TRUE(user.HasFocus(id)) << id;
      EXPECT_TRUE(user.DoubleClick(id, -1)) << id;
      EXPECT_EQ(user.SelectedRows(id), Picked{1}) << id;
    }
    EXPECT_EQ(dialog.log, Log());
    for (int i = 0; i < 100; ++i)
      CListBox(dialog, kSingle).AddString("x");
    EXPECT_FALSE(user.ClickRow(kSingle, -1));
  });
}

TEST_F(ListKeysTest, AComboBoxKnowsPagesAndNoSpace) {
  InLists(30, [](User& user, TestDialog& dialog) {
    CComboBox combo(dialog, kCombo);
    combo.SetFocus();
    user.Press(Key::Space);
    EXPECT_EQ(combo.GetCurSel(), -1);
    user.Press(Key::PageDown);
    const int page = combo.GetCurSel();
    EXPECT_GT(page, 1);
    user.Press(Key::PageDown);
    EXPECT_EQ(combo.GetCurSel(), 2 * page);
    user.Press(Key::PageUp);
    EXPECT_EQ(combo.GetCurSel(), page);
    user.Press(Key::End);
    EXPECT_EQ(combo.GetCurSel(), 29);
    dialog.Take();
    user.Press(Key::Down);
    user.Press(Key::PageDown);
    EXPECT_EQ(dialog.log, Log()); // there was nothing further to choose
    combo.DeleteString(29);
    user.Press(Key::Down);
    EXPECT_EQ(combo.GetCurSel(), 0);
  });
}

} // namespace
