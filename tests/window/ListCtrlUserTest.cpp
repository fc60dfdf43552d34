// List views as the user uses them.
#include "tests/window/ListCtrlTest.h"

namespace {

TEST_F(ListCtrlTest, AClickTellsOnceOfAChangedSelection) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    EXPECT_TRUE(user.ClickRow(kTable, 1));
    EXPECT_EQ(dialog.Take(), Log{"791 selection"});
    EXPECT_TRUE(user.ClickRow(kTable, 2)); // two rows change, one event
    EXPECT_EQ(dialog.Take(), Log{"791 selection"});
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{2});
    EXPECT_TRUE(user.ClickRow(kTable, 2)); // nothing changes
    EXPECT_EQ(dialog.Take(), Log());
    EXPECT_TRUE(table.HasFocus());
    EXPECT_FALSE(user.ClickRow(kTable, 3));
  });
}

TEST_F(ListCtrlTest, ADoubleClickNamesItsRow) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    table.SetStyles(CListCtrl::FullRowSelect);
    EXPECT_TRUE(user.DoubleClick(kTable, 1));
    EXPECT_EQ(dialog.Take(), (Log{"791 selection", "791 double 1"}));
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{1});
    EXPECT_TRUE(user.DoubleClick(kTable, 1));
    EXPECT_EQ(dialog.Take(), Log{"791 double 1"});
  });
}

TEST_F(ListCtrlTest, ADoubleClickBesideTheRows) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    table.SetCurSel(1);
    EXPECT_TRUE(user.DoubleClick(kTable, -1));
    EXPECT_EQ(dialog.Take(), (Log{"791 selection", "791 double -1"}));
    EXPECT_EQ(table.GetSelectedCount(), 0);
  });
}

TEST_F(ListCtrlTest, ADoubleClickThatEndsTheDialog) {
  TestDialog dialog(101);
  dialog.onNotify = [&](int, const WindowListNotice& notice) {
    if (notice.kind == WindowListNotice::Kind::DoubleClicked)
      dialog.EndDialog(1);
  };
  const int code = RunDialog(dialog, [&](User& user) {
    CListCtrl table(dialog, kTable);
    table.AddColumn("x", 0);
    table.AddRow("x");
    user.DoubleClick(kTable, 0);
  });
  EXPECT_EQ(code, 1);
}

TEST_F(ListCtrlTest, ClicksWithControlAndShift) {
  InTable([](User& user, TestDialog&, CListCtrl table) {
    table.AddRow("D");
    user.ClickRow(kTable, 1);
    user.ClickRow(kTable, 3, Modifier::Control);
    EXPECT_EQ(user.SelectedRows(kTable), (std::vector<int>{1, 3}));
    user.ClickRow(kTable, 1, Modifier::Control);
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{3});
    user.ClickRow(kTable, 0);
    user.ClickRow(kTable, 2, Modifier::Shift);
    EXPECT_EQ(user.SelectedRows(kTable), (std::vector<int>{0, 1, 2}));
  });
}

TEST_F(ListCtrlTest, ADoubleClickWithControlLeavesSeveralSelected) {
  InTable([](User& user, TestDialog& dialog, CListCtrl) {
    user.ClickRow(kTable, 0);
    dialog.Take();
    EXPECT_TRUE(user.DoubleClick(kTable, 2, Modifier::Control));
    EXPECT_EQ(dialog.log.back(), "791 double 2");
    EXPECT_EQ(user.SelectedRows(kTable), (std::vector<int>{0, 2}));
  });
}

TEST_F(ListCtrlTest, KeysMoveTheSelection) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    table.SetCurSel(0);
    table.SetFocus();
    user.Press(WindowKey::Down);
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{1});
    user.Press(WindowKey::End);
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{2});
    user.Press(WindowKey::Home);
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{0});
    EXPECT_EQ(dialog.log, Log(3, "791 selection"));
  });
}

TEST_F(ListCtrlTest, HoveringSelectsWhereItIsOn) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    EXPECT_FALSE(user.Hover(kTable, 1));
    EXPECT_EQ(table.GetCurSel(), -1);
    table.SetStyles(CListCtrl::HoverSelect | CListCtrl::FullRowSelect);
    table.SetHoverTime(10);
    EXPECT_TRUE(user.Hover(kTable, 1));
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{1});
    EXPECT_TRUE(user.Hover(kTable, 2));
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{2});
    EXPECT_EQ(dialog.log, Log(2, "791 selection"));
  });
}

TEST_F(ListCtrlTest, TheMouseRestsForTheHoverTime) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    EXPECT_EQ(table.GetHoverTime(), 0U);
    table.SetStyles(CListCtrl::HoverSelect | CListCtrl::FullRowSelect);
    table.SetHoverTime(300);
    dialog.SetTimer(1, 100);
    EXPECT_TRUE(user.Hover(kTable, 1));
    ASSERT_GE(dialog.log.size(), 2U);
    EXPECT_EQ(dialog.log.front(), "timer 1"); // time passed before the selection
    EXPECT_EQ(dialog.log.back(), "791 selection");
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{1});
    dialog.KillTimer(1);
    table.SetHoverTime(0);
    EXPECT_EQ(table.GetHoverTime(), 0U);
  });
}

TEST_F(ListCtrlTest, ADisabledTableTakesNoClick) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    table.EnableWindow(false);
    EXPECT_FALSE(user.ClickRow(kTable, 1));
    EXPECT_FALSE(user.DoubleClick(kTable, 1));
    EXPECT_FALSE(user.Hover(kTable, 1));
    EXPECT_EQ(dialog.log, Log());
    EXPECT_EQ(table.GetCurSel(), -1);
  });
}

TEST_F(ListCtrlTest, TenThousandRows) {
  InTable([](User& user, TestDialog&, CListCtrl table) {
    table.DeleteAllRows();
    {
      const CRedrawLock lock(table);
      for (int i = 0; i < 10000; ++i) {
        const int row = table.AddRow(std::to_string(i).c_str());
        table.SetItemData(row, i);
        table.SetCellText(row, 1, "name");
      }
    }
    EXPECT_EQ(table.GetRowCount(), 10000);
    EXPECT_EQ(table.GetCellText(9999, 0), "9999");
    EXPECT_TRUE(user.ClickRow(kTable, 9999));
    EXPECT_EQ(table.GetItemData(table.GetCurSel()), 9999);
    table.DeleteAllRows();
    EXPECT_EQ(table.GetRowCount(), 0);
  });
}

} // namespace
