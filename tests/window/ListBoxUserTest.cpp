// List boxes of a single selection, as the user uses them.
#include "tests/window/ListBoxTest.h"

namespace {

TEST_F(ListBoxTest, AClickSelectsAndTells) {
  InBox([](User& user, TestDialog& dialog, CListBox box) {
    int seen = -1;
    dialog.onCommand = [&](int, WindowEvent) { seen = box.GetCurSel(); };
    EXPECT_TRUE(user.ClickRow(kBox, 1));
    EXPECT_EQ(dialog.Take(), Log{"781 selection"});
    EXPECT_EQ(seen, 1);
    EXPECT_TRUE(box.HasFocus());
    EXPECT_TRUE(user.ClickRow(kBox, 1)); // a click on the selected row notifies again
    EXPECT_EQ(dialog.Take(), Log{"781 selection"});
    EXPECT_FALSE(user.ClickRow(kBox, 3));
    EXPECT_EQ(dialog.Take(), Log());
  });
}

TEST_F(ListBoxTest, ADoubleClickTellsItAfterTheSelection) {
  InBox([](User& user, TestDialog& dialog, CListBox box) {
    EXPECT_TRUE(user.DoubleClick(kBox, 2));
    EXPECT_EQ(dialog.Take(), (Log{"781 selection", "781 double"}));
    EXPECT_EQ(box.GetCurSel(), 2);
  });
}

TEST_F(ListBoxTest, KeysMoveTheSelection) {
  InBox([](User& user, TestDialog& dialog, CListBox box) {
    box.SetCurSel(0);
    box.SetFocus();
    user.Press(WindowKey::Down);
    EXPECT_EQ(box.GetCurSel(), 1);
    user.Press(WindowKey::End);
    EXPECT_EQ(box.GetCurSel(), 2);
    user.Press(WindowKey::Up);
    EXPECT_EQ(box.GetCurSel(), 1);
    user.Press(WindowKey::Home);
    EXPECT_EQ(box.GetCurSel(), 0);
    EXPECT_EQ(dialog.log.size(), 4U);
    EXPECT_EQ(dialog.log.front(), "781 selection");
  });
}

TEST_F(ListBoxTest, ADisabledBoxTakesNoClick) {
  InBox([](User& user, TestDialog& dialog, CListBox box) {
    box.EnableWindow(false);
    EXPECT_FALSE(user.ClickRow(kBox, 1));
    EXPECT_FALSE(user.DoubleClick(kBox, 1));
    EXPECT_EQ(box.GetCurSel(), -1);
    EXPECT_EQ(dialog.log, Log());
    EXPECT_TRUE(box.SetCurSel(1)); // the program may select
    EXPECT_EQ(box.GetCurSel(), 1);
  });
}

TEST_F(ListBoxTest, TenThousandRows) {
  InDialog([](User& user, TestDialog& dialog) {
    CListBox box(dialog, kBox);
    {
      const CRedrawLock lock(box);
      for (int i = 0; i < 10000; ++i)
        box.SetItemData(box.AddString(std::to_string(i).c_str()), i);
    }
    EXPECT_EQ(box.GetCount(), 10000);
    EXPECT_EQ(box.GetItemText(9999), "9999");
    EXPECT_TRUE(user.ClickRow(kBox, 9999));
    EXPECT_EQ(box.GetItemData(box.GetCurSel()), 9999);
    box.ResetContent();
    EXPECT_EQ(box.GetCount(), 0);
  });
}

} // namespace
