// Tables that ask their dialog for cells.
#include <climits>

#include "platform/framework/window/CListCtrl.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr int kPlain = 792;
constexpr int kMillion = 1000000;

class VirtualListTest : public WindowTest {
protected:
  void InTable(const std::function<void(User&, TestDialog&, CListCtrl)>& script) {
    TestDialog dialog(105);
    In(dialog, [&](User& user) {
      CListCtrl table(dialog, kTable);
      dialog.onCellText = [](int id, int row, int column) {
        return CString(
            (std::to_string(id) + ":" + std::to_string(row) + "," + std::to_string(column))
                .c_str());
      };
      table.AddColumn("a", 60);
      table.AddColumn("b", 0);
      script(user, dialog, table);
    });
  }
};

TEST_F(VirtualListTest, ItsCellsAreTheDialogs) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    EXPECT_EQ(table.GetRowCount(), 0);
    EXPECT_TRUE(table.SetVirtualRows(2));
    EXPECT_EQ(user.Rows(kTable),
              (std::vector<std::string>{"791:0,0 | 791:0,1", "791:1,0 | 791:1,1"}));
    EXPECT_TRUE(table.GetCellText(2, 0).IsEmpty());
    EXPECT_TRUE(table.GetCellText(-1, 0).IsEmpty());
    EXPECT_TRUE(table.GetCellText(0, 2).IsEmpty());
    dialog.onCellText = [](int, int, int) { return TrickyText(); };
    EXPECT_EQ(table.GetCellText(1, 1), TrickyText());
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(VirtualListTest, AMillionRowsAtOnce) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    int asked = 0;
    dialog.onCellText = [&](int, int row, int) {
      ++asked;
      return CString(std::to_string(row).c_str());
    };
    EXPECT_TRUE(table.SetVirtualRows(kMillion));
    actions::Settle();
    EXPECT_LT(asked, 10000);
    EXPECT_EQ(table.GetRowCount(), kMillion);
    EXPECT_EQ(table.GetCellText(kMillion - 1, 0), "999999");
    EXPECT_TRUE(user.DoubleClick(kTable, 765432));
    EXPECT_EQ(dialog.Take(), (Log{"791 selection", "791 double 765432"}));
    EXPECT_EQ(table.GetCurSel(), 765432);
    user.Press(WindowKey::End);
    EXPECT_EQ(table.GetCurSel(), kMillion - 1);
    EXPECT_TRUE(user.IsInSight(kTable, kMillion - 1));
    EXPECT_TRUE(table.SetCurSel(3));
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{3});
    EXPECT_LT(asked, 10000);
  });
}

TEST_F(VirtualListTest, AllOfItsRowsAreSelectedAtOnce) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    table.SetVirtualRows(10000);
    table.SetFocus();
    user.PressLetter('A', Modifier::Control);
    EXPECT_EQ(table.GetSelectedCount(), 10000);
    EXPECT_EQ(dialog.Take(), Log{"791 selection"});
    EXPECT_TRUE(table.SetCurSel(-1));
    EXPECT_EQ(table.GetSelectedCount(), 0);
    actions::Settle();
    EXPECT_EQ(dialog.Take(), Log());
  });
}

TEST_F(VirtualListTest, AnotherNumberOfRowsStartsAnew) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    table.SetVirtualRows(1000);
    table.SetCurSel(500);
    table.SelectRow(600);
    EXPECT_TRUE(table.SetVirtualRows(900));
    EXPECT_EQ(table.GetSelectedCount(), 0);
    EXPECT_TRUE(user.IsInSight(kTable, 0));
    table.SetFocus();
    user.Press(WindowKey::Down);
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{0});
    EXPECT_TRUE(table.SetVirtualRows(900)); // also resets with the same number
    EXPECT_EQ(table.GetSelectedCount(), 0);
    table.DeleteAllRows();
    EXPECT_EQ(table.GetRowCount(), 0);
    EXPECT_TRUE(table.SetVirtualRows(0));
    EXPECT_FALSE(table.SetVirtualRows(-1));
    actions::Settle();
    EXPECT_EQ(dialog.Take(), Log{"791 selection"});
  });
}

TEST_F(VirtualListTest, SeveralRowsAreSelectedAsInOthers) {
  InTable([](User& user, TestDialog& dialog, CListCtrl table) {
    table.SetVirtualRows(8);
    EXPECT_TRUE(user.ClickRow(kTable, 1));
    EXPECT_EQ(dialog.Take(), Log{"791 selection"});
    EXPECT_TRUE(user.ClickRow(kTable, 3, Modifier::Shift));
    EXPECT_EQ(user.SelectedRows(kTable), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(dialog.Take(), Log{"791 selection"});
    EXPECT_TRUE(user.ClickRow(kTable, 2, Modifier::Control));
    EXPECT_EQ(user.SelectedRows(kTable), (std::vector<int>{1, 3}));
    EXPECT_TRUE(table.IsSelected(3));
    EXPECT_FALSE(table.IsSelected(2));
    EXPECT_EQ(dialog.Take(), Log{"791 selection"});
    EXPECT_TRUE(user.ClickRow(kTable, 5));
    EXPECT_EQ(user.SelectedRows(kTable), std::vector<int>{5});
    EXPECT_EQ(dialog.Take(), Log{"791 selection"});
    user.Press(WindowKey::Down, Modifier::Shift);
    EXPECT_EQ(user.SelectedRows(kTable), (std::vector<int>{5, 6}));
    EXPECT_EQ(dialog.Take(), Log{"791 selection"});
  });
}

TEST_F(VirtualListTest, ItHasNoRowsOfItsOwn) {
  InTable([](User&, TestDialog& dialog, CListCtrl table) {
    table.SetVirtualRows(3);
    EXPECT_EQ(table.AddRow("x"), -1);
    EXPECT_EQ(table.InsertRow(0, "x"), -1);
    EXPECT_FALSE(table.DeleteRow(0));
    EXPECT_FALSE(table.SetCellText(0, 0, "x"));
    EXPECT_FALSE(table.SetItemData(0, 7));
    EXPECT_EQ(table.GetItemData(0), 0);
    EXPECT_EQ(table.GetRowCount(), 3);
    for (const int row : {-1, 3, INT_MAX})
      EXPECT_FALSE(table.SelectRow(row)) << row;
    CListCtrl plain(dialog, kPlain);
    plain.AddColumn("x", 0);
    EXPECT_FALSE(plain.SetVirtualRows(3));
    EXPECT_EQ(plain.AddRow("x"), 0);
    EXPECT_FALSE(CListCtrl().SetVirtualRows(1));
  });
}

TEST_F(VirtualListTest, WithoutColumnsThereAreNoRows) {
  TestDialog dialog(105);
  In(dialog, [&](User&) {
    CListCtrl table(dialog, kTable);
    EXPECT_FALSE(table.SetVirtualRows(1));
    EXPECT_EQ(table.GetRowCount(), 0);
  });
}

} // namespace
