// The caret row of lists, scrolling, and selecting by the program.
#include "tests/window/ListsTest.h"

namespace {

class CaretTest : public ListsTest {};

// Symptom: on Windows the caret kept its number, so that a row was inserted in the wrong place.
TEST_F(CaretTest, TheCaretStaysWithItsRow) {
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

TEST_F(CaretTest, TheCaretOfASelectedRowStaysWithIt) {
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

// Symptom: on Windows selecting by the program moved the caret.
TEST_F(CaretTest, SelectingLeavesTheCaretAndTheScrolling) {
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
    user.Press(WindowKey::Down);
    EXPECT_EQ(user.SelectedRows(kTable), Picked{3});
  });
}

TEST_F(CaretTest, ASelectedRangeOfRows) {
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

TEST_F(CaretTest, TheCaretOfASingleSelectionIsTheSelectedRow) {
  InLists(5, [](User&, TestDialog& dialog) {
    CListBox box(dialog, kSingle);
    box.SetCurSel(3);
    EXPECT_FALSE(box.SetCaretIndex(1));
    EXPECT_EQ(box.GetCaretIndex(), 3);
    EXPECT_EQ(box.GetCurSel(), 3);
  });
}

TEST_F(CaretTest, TheCaretOfATableStaysWithItsRow) {
  InLists(5, [](User& user, TestDialog& dialog) {
    CListCtrl table(dialog, kTable);
    table.SetFocus();
    table.InsertRow(0, "front"); // the caret moves from row 0 to row 1
    user.Press(WindowKey::Down);
    EXPECT_EQ(user.SelectedRows(kTable), Picked{1});
    table.SetCurSel(3);
    table.DeleteRow(0);
    table.SetCurSel(-1);
    user.Press(WindowKey::Down);
    EXPECT_EQ(user.SelectedRows(kTable), Picked{2});
  });
}

TEST_F(CaretTest, ACaretThatIsPutSomewhereIsScrolledTo) {
  InLists(100, [](User& user, TestDialog& dialog) {
    CListBox(dialog, kSingle).SetCurSel(80);
    EXPECT_TRUE(user.IsInSight(kSingle, 80));
    CListBox box(dialog, kMulti);
    box.SetCaretIndex(80);
    EXPECT_TRUE(user.IsInSight(kMulti, 80));
    box.EnsureVisible(10);
    EXPECT_TRUE(user.IsInSight(kMulti, 10));
    EXPECT_TRUE(user.IsInSight(kMulti, 11)); // scrolls as little as needed: row 10 is the first
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

TEST_F(CaretTest, InsertingInFrontOfAnUnseenCaretScrollsNothing) {
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

// With the mouse: Shift selects from the caret, also when rows were inserted in front.
TEST_F(CaretTest, TheRowThatShiftSelectsFromStaysTheSame) {
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

} // namespace
