// List views, tables of rows and columns, as the program uses them.
#include <climits>

#include "tests/window/ListCtrlTest.h"

namespace {

TEST_F(ListCtrlTest, ANewTableIsEmpty) {
  InDialog([](User&, TestDialog& dialog) {
    CListCtrl table(dialog, kTable);
    EXPECT_EQ(table.GetColumnCount(), 0);
    EXPECT_EQ(table.GetRowCount(), 0);
    EXPECT_EQ(table.GetCurSel(), -1);
    EXPECT_EQ(table.GetSelectedCount(), 0);
    EXPECT_EQ(table.GetStyles(), 0U);
    EXPECT_EQ(table.AddRow("x"), -1); // no rows without columns
    EXPECT_EQ(table.GetRowCount(), 0);
  });
}

TEST_F(ListCtrlTest, ColumnsHaveTitles) {
  InDialog([](User&, TestDialog& dialog) {
    CListCtrl table(dialog, kTable);
    EXPECT_EQ(table.AddColumn(TrickyText(), 50), 0);
    EXPECT_EQ(table.AddColumn("two", 0), 1);
    EXPECT_EQ(table.AddColumn(nullptr, 20), 2);
    EXPECT_EQ(table.GetColumnCount(), 3);
    EXPECT_EQ(table.GetColumnTitle(0), TrickyText());
    EXPECT_EQ(table.GetColumnTitle(1), "two");
    EXPECT_TRUE(table.GetColumnTitle(2).IsEmpty());
    EXPECT_TRUE(table.GetColumnTitle(3).IsEmpty());
    EXPECT_TRUE(table.GetColumnTitle(-1).IsEmpty());
  });
}

TEST_F(ListCtrlTest, RowsAndCells) {
  InTable([](User& user, TestDialog&, CListCtrl table) {
    EXPECT_TRUE(table.SetCellText(0, 1, "first"));
    EXPECT_TRUE(table.SetCellText(2, 1, TrickyText()));
    EXPECT_TRUE(table.SetCellText(1, 0, "b"));
    EXPECT_EQ(table.InsertRow(1, "new"), 1);
    EXPECT_EQ(table.InsertRow(4, "end"), 4);
    EXPECT_EQ(table.InsertRow(-1, nullptr), 5);
    EXPECT_EQ(user.Rows(kTable),
              (std::vector<std::string>{"A | first", "new | ", "b | ", "C | " + Utf8(TrickyText()),
                                        "end | ", " | "}));
    EXPECT_EQ(table.GetItemData(0), 10);
    EXPECT_EQ(table.GetItemData(1), 0);
    EXPECT_EQ(table.GetItemData(3), 30);
  });
}

TEST_F(ListCtrlTest, IndexOutOfRangeChangesNothing) {
  InTable([](User& user, TestDialog&, CListCtrl table) {
    table.SetCurSel(1);
    for (const int row : {-2, 4, INT_MIN, INT_MAX})
      EXPECT_EQ(table.InsertRow(row, "x"), -1) << row;
    for (const int row : {-2, 3, INT_MIN, INT_MAX})
      EXPECT_FALSE(table.SetCurSel(row)) << row;
    for (const int row : {-1, 3, INT_MIN, INT_MAX}) {
      EXPECT_FALSE(table.DeleteRow(row)) << row;
      EXPECT_FALSE(table.SetCellText(row, 0, "x")) << row;
      EXPECT_TRUE(table.GetCellText(row, 0).IsEmpty()) << row;
      EXPECT_FALSE(table.SetItemData(row, 1)) << row;
      EXPECT_EQ(table.GetItemData(row), 0) << row;
      EXPECT_FALSE(table.SelectRow(row)) << row;
      EXPECT_FALSE(table.SelectRow(row, false)) << row;
      EXPECT_FALSE(table.IsSelected(row)) << row;
      EXPECT_FALSE(table.EnsureVisible(row)) << row;
    }
    for (const int column : {-1, 2, INT_MAX}) {
      EXPECT_FALSE(table.SetCellText(0, column, "x")) << column;
      EXPECT_TRUE(table.GetCellText(0, column).IsEmpty()) << column;
    }
    EXPECT_EQ(table.GetNextSelected(7), -1);
    EXPECT_EQ(table.GetNextSelected(-2), -1);
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{1});
    EXPECT_EQ(user.Rows(kTable), (std::vector<std::string>{"A | ", "B | ", "C | "}));
  });
}

TEST_F(ListCtrlTest, SelectingOneAndSeveral) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    EXPECT_TRUE(table.SetCurSel(1));
    EXPECT_EQ(table.GetCurSel(), 1);
    EXPECT_TRUE(table.SelectRow(2));
    EXPECT_EQ(user.SelectedRows(kTable), (std::vector<int>{1, 2}));
    EXPECT_EQ(table.GetSelectedCount(), 2);
    EXPECT_TRUE(table.SelectRow(1, false));
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{2});
    EXPECT_TRUE(table.SetCurSel(0));
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{0});
    EXPECT_TRUE(table.SetCurSel(-1));
    EXPECT_EQ(table.GetSelectedCount(), 0);
    actions::Settle();
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(ListCtrlTest, TheSelectionStaysWithItsRows) {
  InTable([](User& user, TestDialog&, CListCtrl table) {
    table.SelectRow(0);
    table.SelectRow(2);
    table.InsertRow(1, "new");
    EXPECT_EQ(user.SelectedRows(kTable), (std::vector<int>{0, 3}));
    table.DeleteRow(0);
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{2});
    EXPECT_EQ(table.GetItemData(2), 30);
    table.DeleteRow(2);
    EXPECT_EQ(table.GetSelectedCount(), 0);
  });
}

TEST_F(ListCtrlTest, ClearingKeepsTheColumns) {
  InTable([](User&, TestDialog&, CListCtrl table) {
    table.SetCurSel(2);
    table.DeleteAllRows();
    EXPECT_EQ(table.GetRowCount(), 0);
    EXPECT_EQ(table.GetCurSel(), -1);
    EXPECT_EQ(table.GetColumnCount(), 2);
    EXPECT_EQ(table.AddRow("again"), 0);
    EXPECT_EQ(table.GetCurSel(), -1);
  });
}

TEST_F(ListCtrlTest, DuplicateTextsAreRowsOfTheirOwn) {
  InTable([](User&, TestDialog&, CListCtrl table) {
    table.SetItemData(table.AddRow("A"), 40);
    EXPECT_EQ(table.GetRowCount(), 4);
    table.DeleteRow(0);
    EXPECT_EQ(table.GetItemData(2), 40);
  });
}

TEST_F(ListCtrlTest, SettingDoesNotNotify) {
  InTable([](User&, TestDialog& dialog, CListCtrl table) {
    table.SetCurSel(1);
    table.SelectRow(0);
    table.SetCellText(0, 0, "x");
    table.SetFocus();
    table.DeleteRow(0);
    table.SetStyles(CListCtrl::FullRowSelect | CListCtrl::GridLines | CListCtrl::HoverSelect);
    table.DeleteAllRows();
    actions::Settle();
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(ListCtrlTest, StylesAreKept) {
  InTable([](User&, TestDialog&, CListCtrl table) {
    for (const unsigned styles : {1U, 2U, 4U, 7U, 0U, 3U}) {
      table.SetStyles(styles);
      EXPECT_EQ(table.GetStyles(), styles);
    }
    table.SetHoverTime(10);
    EXPECT_EQ(table.GetHoverTime(), 10U);
  });
}

TEST_F(ListCtrlTest, ALongText) {
  InTable([](User&, TestDialog&, CListCtrl table) {
    const CString text('x', 1500);
    EXPECT_TRUE(table.SetCellText(1, 1, text));
    EXPECT_EQ(table.GetCellText(1, 1), text);
    for (const int length : {254, 255, 256, 257, 511, 512}) {
      table.SetCellText(0, 0, CString('y', length));
      EXPECT_EQ(table.GetCellText(0, 0).GetLength(), length);
    }
  });
}

TEST_F(ListCtrlTest, WithoutAWindowItIsAnEmptyTable) {
  CListCtrl table;
  EXPECT_EQ(table.AddColumn("x", 1), -1);
  EXPECT_EQ(table.AddRow("x"), -1);
  EXPECT_EQ(table.GetRowCount(), 0);
  EXPECT_EQ(table.GetColumnCount(), 0);
  EXPECT_EQ(table.GetCurSel(), -1);
  EXPECT_FALSE(table.SetCurSel(-1));
  EXPECT_EQ(table.GetSelectedCount(), 0);
  EXPECT_FALSE(table.DeleteRow(0));
  table.DeleteAllRows();
}

} // namespace
