// List boxes of several selections, and owner-drawn ones.
#include "platform/framework/window/CListBox.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr int kMulti = 782;
constexpr int kDrawn = 783;

class MultiListBoxTest : public WindowTest {
protected:
  // A box with rows A to E.
  void InBox(const std::function<void(User&, TestDialog&, CListBox)>& script) {
    InDialog([&](User& user, TestDialog& dialog) {
      CListBox box(dialog, kMulti);
      for (const char* text : {"A", "B", "C", "D", "E"})
        box.AddString(text);
      script(user, dialog, box);
    });
  }
};

TEST_F(MultiListBoxTest, SelectingSeveralRows) {
  InBox([](User& user, TestDialog& dialog, CListBox box) {
    EXPECT_EQ(box.GetCurSel(), -1);
    EXPECT_EQ(box.GetSelCount(), 0);
    EXPECT_EQ(box.GetCaretIndex(), 0);
    EXPECT_TRUE(box.SelectRow(3));
    EXPECT_TRUE(box.SelectRow(1));
    EXPECT_EQ(user.SelectedRows(kMulti), (std::vector<int>{1, 3}));
    EXPECT_EQ(box.GetCurSel(), 1);
    EXPECT_EQ(box.GetSelCount(), 2);
    EXPECT_TRUE(box.IsSelected(3));
    EXPECT_FALSE(box.IsSelected(2));
    EXPECT_TRUE(box.SelectRow(1, false));
    EXPECT_EQ(user.SelectedRows(kMulti), std::vector<int>{3});
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(MultiListBoxTest, SetCurSelSelectsThatRowAlone) {
  InBox([](User& user, TestDialog& dialog, CListBox box) {
    box.SelectRow(0);
    box.SelectRow(4);
    EXPECT_TRUE(box.SetCurSel(2));
    EXPECT_EQ(user.SelectedRows(kMulti), std::vector<int>{2});
    EXPECT_EQ(box.GetCaretIndex(), 2);
    EXPECT_FALSE(box.SetCurSel(5));
    EXPECT_EQ(user.SelectedRows(kMulti), std::vector<int>{2});
    EXPECT_TRUE(box.SetCurSel(-1));
    EXPECT_EQ(box.GetSelCount(), 0);
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(MultiListBoxTest, TheSelectionStaysWithItsRows) {
  InBox([](User& user, TestDialog&, CListBox box) {
    box.SelectRow(1);
    box.SelectRow(3);
    box.InsertString(0, "front");
    EXPECT_EQ(user.SelectedRows(kMulti), (std::vector<int>{2, 4}));
    box.InsertString(3, "between");
    EXPECT_EQ(user.SelectedRows(kMulti), (std::vector<int>{2, 5}));
    box.DeleteString(2);
    EXPECT_EQ(user.SelectedRows(kMulti), std::vector<int>{4});
    box.SetItemText(4, "changed");
    EXPECT_EQ(user.SelectedRows(kMulti), std::vector<int>{4});
    box.SetItemText(0, "other");
    EXPECT_EQ(user.SelectedRows(kMulti), std::vector<int>{4});
    EXPECT_EQ(user.Rows(kMulti),
              (std::vector<std::string>{"other", "A", "between", "C", "changed", "E"}));
  });
}

TEST_F(MultiListBoxTest, TheCaretIsNotASelection) {
  InBox([](User&, TestDialog&, CListBox box) {
    box.SetCurSel(1);
    EXPECT_TRUE(box.SetCaretIndex(3));
    EXPECT_EQ(box.GetCaretIndex(), 3);
    EXPECT_EQ(box.GetCurSel(), 1);
    EXPECT_FALSE(box.SetCaretIndex(5));
    EXPECT_EQ(box.GetCaretIndex(), 3);
    box.SetItemText(0, "x");
    EXPECT_EQ(box.GetCaretIndex(), 3);
  });
}

TEST_F(MultiListBoxTest, ClicksWithControlAndShift) {
  InBox([](User& user, TestDialog& dialog, CListBox box) {
    user.ClickRow(kMulti, 1);
    EXPECT_EQ(user.SelectedRows(kMulti), std::vector<int>{1});
    user.ClickRow(kMulti, 3, Modifier::Control);
    EXPECT_EQ(user.SelectedRows(kMulti), (std::vector<int>{1, 3}));
    EXPECT_EQ(box.GetCaretIndex(), 3);
    user.ClickRow(kMulti, 1, Modifier::Control);
    EXPECT_EQ(user.SelectedRows(kMulti), std::vector<int>{3});
    user.ClickRow(kMulti, 0);
    user.ClickRow(kMulti, 2, Modifier::Shift);
    EXPECT_EQ(user.SelectedRows(kMulti), (std::vector<int>{0, 1, 2}));
    user.ClickRow(kMulti, 4);
    EXPECT_EQ(user.SelectedRows(kMulti), std::vector<int>{4});
    EXPECT_EQ(dialog.log, Log(6, "782 selection"));
  });
}

TEST_F(MultiListBoxTest, ADisabledBoxTakesNoClick) {
  InDialog([](User& user, TestDialog& dialog) {
    CListBox box(dialog, 784);
    box.AddString("x");
    EXPECT_FALSE(user.ClickRow(784, 0));
    EXPECT_EQ(box.GetSelCount(), 0);
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(MultiListBoxTest, AThousandSelectedOfTenThousandRows) {
  InDialog([](User&, TestDialog& dialog) {
    CListBox box(dialog, kMulti);
    const CRedrawLock lock(box);
    for (int i = 0; i < 10000; ++i) {
      box.AddString("x");
      if (i % 10 == 0)
        box.SelectRow(i);
    }
    EXPECT_EQ(box.GetSelCount(), 1000);
    int seen = 0;
    for (int row = box.GetNextSelected(-1); row != -1; row = box.GetNextSelected(row))
      ++seen;
    EXPECT_EQ(seen, 1000);
  });
}

TEST_F(MultiListBoxTest, AnOwnerDrawnBoxHoldsItsTexts) {
  InDialog([](User& user, TestDialog& dialog) {
    CListBox box(dialog, kDrawn);
    dialog.onItemLook = [](int id, int row, WindowItemLook& look) {
      look.bold = id == kDrawn && row == 1;
      look.marked = look.bold;
    };
    box.SetItemData(box.AddString("plain"), 5);
    box.AddString(TrickyText());
    box.SetCurSel(0);
    EXPECT_EQ(box.GetItemText(1), TrickyText());
    EXPECT_EQ(box.GetItemData(0), 5);
    box.RedrawItems();
    const std::string screen = user.Screen();
    EXPECT_NE(screen.find("  > plain\n    (*) (bold) " + Utf8(TrickyText()) + "\n"),
              std::string::npos)
        << screen;
    EXPECT_TRUE(user.ClickRow(kDrawn, 1));
    EXPECT_EQ(box.GetCurSel(), 1);
    EXPECT_EQ(dialog.log, Log{"783 selection"});
  });
}

} // namespace
