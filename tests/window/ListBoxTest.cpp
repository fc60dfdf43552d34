// List boxes of a single selection, as the program uses them.
#include <climits>

#include "tests/window/ListBoxTest.h"

namespace {

TEST_F(ListBoxTest, ANewBoxIsEmpty) {
  InDialog([](User& user, TestDialog& dialog) {
    const CListBox box(dialog, kBox);
    EXPECT_EQ(box.GetCount(), 0);
    EXPECT_EQ(box.GetCurSel(), -1);
    EXPECT_EQ(box.GetSelCount(), 0);
    EXPECT_EQ(box.GetCaretIndex(), -1);
    EXPECT_EQ(box.GetNextSelected(-1), -1);
    EXPECT_EQ(user.Rows(kBox), std::vector<std::string>());
  });
}

TEST_F(ListBoxTest, AddingAppendsWithoutSorting) {
  InDialog([](User& user, TestDialog& dialog) {
    CListBox box(dialog, kBox);
    EXPECT_EQ(box.AddString("z"), 0);
    EXPECT_EQ(box.AddString("a"), 1);
    EXPECT_EQ(box.InsertString(0, "m"), 0);
    EXPECT_EQ(box.InsertString(3, "end"), 3);
    EXPECT_EQ(box.InsertString(-1, ""), 4);
    EXPECT_EQ(user.Rows(kBox), (std::vector<std::string>{"m", "z", "a", "end", ""}));
    EXPECT_EQ(box.GetCurSel(), -1);
    EXPECT_EQ(box.GetItemData(4), 0);
    EXPECT_EQ(box.AddString(nullptr), 5);
    EXPECT_TRUE(box.GetItemText(5).IsEmpty());
  });
}

TEST_F(ListBoxTest, IndexOutOfRangeChangesNothing) {
  InBox([](User& user, TestDialog&, CListBox box) {
    box.SetCurSel(1);
    for (const int row : {-2, 3, 1000000, INT_MIN, INT_MAX}) {
      if (row != 3) {
        EXPECT_EQ(box.InsertString(row, "x"), -1) << row;
      }
      EXPECT_FALSE(box.SetCurSel(row)) << row;
      EXPECT_FALSE(box.SelectRow(row)) << row;
    }
    for (const int row : {-1, 3, INT_MIN, INT_MAX}) {
      EXPECT_FALSE(box.DeleteString(row)) << row;
      EXPECT_FALSE(box.SetItemText(row, "x")) << row;
      EXPECT_FALSE(box.SetItemData(row, 1)) << row;
      EXPECT_EQ(box.GetItemData(row), 0) << row;
      EXPECT_TRUE(box.GetItemText(row).IsEmpty()) << row;
      EXPECT_FALSE(box.IsSelected(row)) << row;
      EXPECT_FALSE(box.EnsureVisible(row)) << row;
      EXPECT_FALSE(box.SetCaretIndex(row)) << row;
    }
    EXPECT_EQ(box.GetNextSelected(5), -1);
    EXPECT_EQ(box.GetNextSelected(-2), -1);
    EXPECT_EQ(box.GetCurSel(), 1);
    EXPECT_EQ(user.Rows(kBox), (std::vector<std::string>{"A", "B", "C"}));
  });
}

TEST_F(ListBoxTest, SelectingAndClearing) {
  InBox([](User& user, TestDialog&, CListBox box) {
    EXPECT_TRUE(box.SetCurSel(2));
    EXPECT_EQ(box.GetCurSel(), 2);
    EXPECT_EQ(box.GetSelCount(), 1);
    EXPECT_EQ(box.GetCaretIndex(), 2);
    EXPECT_TRUE(box.SetCurSel(0));
    EXPECT_EQ(user.SelectedRows(kBox), std::vector<int>{0});
    EXPECT_TRUE(box.SetCurSel(-1));
    EXPECT_EQ(box.GetCurSel(), -1);
    EXPECT_EQ(box.GetSelCount(), 0);
    EXPECT_TRUE(box.SelectRow(1));
    EXPECT_TRUE(box.SelectRow(0, false)); // was not selected, so nothing changes
    EXPECT_EQ(box.GetCurSel(), 1);
    EXPECT_TRUE(box.SelectRow(1, false));
    EXPECT_EQ(box.GetCurSel(), -1);
  });
}

TEST_F(ListBoxTest, TheSelectionStaysWithItsRow) {
  InBox([](User&, TestDialog&, CListBox box) {
    box.SetCurSel(1);
    box.InsertString(0, "front");
    EXPECT_EQ(box.GetCurSel(), 2);
    box.InsertString(3, "behind");
    EXPECT_EQ(box.GetCurSel(), 2);
    box.DeleteString(0);
    EXPECT_EQ(box.GetCurSel(), 1);
    box.DeleteString(2);
    EXPECT_EQ(box.GetCurSel(), 1);
    box.DeleteString(1);
    EXPECT_EQ(box.GetCurSel(), -1);
    EXPECT_EQ(box.GetCount(), 2);
  });
}

TEST_F(ListBoxTest, ChangingATextKeepsDataAndSelection) {
  InBox([](User& user, TestDialog&, CListBox box) {
    box.SetCurSel(1);
    EXPECT_TRUE(box.SetItemText(1, "new"));
    EXPECT_TRUE(box.SetItemText(0, "first"));
    EXPECT_TRUE(box.SetItemText(2, "last"));
    EXPECT_EQ(user.Rows(kBox), (std::vector<std::string>{"first", "new", "last"}));
    EXPECT_EQ(box.GetCurSel(), 1);
    EXPECT_EQ(box.GetItemData(0), 10);
    EXPECT_EQ(box.GetItemData(1), 20);
    EXPECT_EQ(box.GetItemData(2), 30);
  });
}

TEST_F(ListBoxTest, ItemDataHoldsAPointer) {
  InBox([](User&, TestDialog&, CListBox box) {
    EXPECT_TRUE(box.SetItemData(1, INTPTR_MIN));
    EXPECT_EQ(box.GetItemData(1), INTPTR_MIN);
    EXPECT_TRUE(box.SetItemData(1, -1));
    EXPECT_EQ(box.GetItemData(1), -1);
    box.DeleteString(0);
    EXPECT_EQ(box.GetItemData(0), -1);
  });
}

TEST_F(ListBoxTest, ClearingEmptiesAll) {
  InBox([](User&, TestDialog&, CListBox box) {
    box.SetCurSel(1);
    box.ResetContent();
    EXPECT_EQ(box.GetCount(), 0);
    EXPECT_EQ(box.GetCurSel(), -1);
    box.ResetContent();
    EXPECT_EQ(box.AddString("again"), 0);
    EXPECT_EQ(box.GetItemData(0), 0);
    EXPECT_EQ(box.GetCurSel(), -1);
  });
}

TEST_F(ListBoxTest, DuplicateTextsAreRowsOfTheirOwn) {
  InDialog([](User&, TestDialog& dialog) {
    CListBox box(dialog, kBox);
    for (int i = 0; i < 3; ++i)
      box.SetItemData(box.AddString("same"), i + 1);
    EXPECT_EQ(box.GetCount(), 3);
    box.SetCurSel(2);
    box.DeleteString(1);
    EXPECT_EQ(box.GetItemData(0), 1);
    EXPECT_EQ(box.GetItemData(1), 3);
    EXPECT_EQ(box.GetCurSel(), 1);
  });
}

TEST_F(ListBoxTest, SettingDoesNotNotify) {
  InBox([](User&, TestDialog& dialog, CListBox box) {
    box.SetCurSel(1);
    box.SelectRow(2);
    box.SetCaretIndex(0);
    box.SetItemText(1, "x");
    box.DeleteString(1);
    box.EnsureVisible(0);
    box.ResetContent();
    box.SetFocus();
    actions::Settle();
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(ListBoxTest, DoubleByteText) {
  InBox([](User& user, TestDialog&, CListBox box) {
    const CString tricky = TrickyText();
    EXPECT_EQ(box.AddString(tricky), 3);
    EXPECT_EQ(box.GetItemText(3), tricky);
    box.SetItemText(0, tricky);
    EXPECT_EQ(box.GetItemText(0), tricky);
    EXPECT_EQ(user.Rows(kBox).back(), Utf8(tricky));
  });
}

TEST_F(ListBoxTest, ALongText) {
  InBox([](User&, TestDialog&, CListBox box) {
    const CString text('x', 5000);
    box.AddString(text);
    EXPECT_EQ(box.GetItemText(3), text);
  });
}

TEST_F(ListBoxTest, RowsThatAreWiderThanTheBoxHaveTips) {
  InBox([](User&, TestDialog& dialog, CListBox box) {
    const CString wide = CString('x', 60) + TrickyText();
    box.AddString(wide);
    EXPECT_TRUE(box.GetRowTip(3).IsEmpty()); // off
    box.SetRowTips(true);
    EXPECT_EQ(box.GetRowTip(3), wide);
    for (const int row : {-1, 0, 4})
      EXPECT_TRUE(box.GetRowTip(row).IsEmpty()) << row;
    box.SetItemText(3, "short");
    EXPECT_TRUE(box.GetRowTip(3).IsEmpty());
    box.SetItemText(3, wide);
    box.SetRowTips(true);
    EXPECT_EQ(box.GetRowTip(3), wide);
    box.SetRowTips(false);
    EXPECT_TRUE(box.GetRowTip(3).IsEmpty());
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(ListBoxTest, WithoutAWindowItIsAnEmptyBox) {
  for (CListBox box : {CListBox(), CListBox(CWnd(), kBox)}) {
    EXPECT_EQ(box.AddString("x"), -1);
    EXPECT_EQ(box.InsertString(0, "x"), -1);
    EXPECT_FALSE(box.DeleteString(0));
    box.ResetContent();
    EXPECT_EQ(box.GetCount(), 0);
    EXPECT_EQ(box.GetCurSel(), -1);
    EXPECT_FALSE(box.SetCurSel(-1));
    EXPECT_EQ(box.GetSelCount(), 0);
    EXPECT_EQ(box.GetCaretIndex(), -1);
    EXPECT_TRUE(box.GetItemText(0).IsEmpty());
    EXPECT_EQ(box.GetItemData(0), 0);
    box.RedrawItems();
    box.SetRowTips(true);
    EXPECT_TRUE(box.GetRowTip(0).IsEmpty());
  }
}

} // namespace
