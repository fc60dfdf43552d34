// Common to all windows: texts, enabling, showing, focus and keys, tooltips, the cursor.
#include "platform/framework/CWinApp.h"
#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CListBox.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/CWaitCursor.h"
#include "tests/window/WindowTest.h"

namespace {

class WndTest : public WindowTest {};

TEST_F(WndTest, ControlsAreFoundByTheirId) {
  InDialog([](User&, TestDialog& dialog) {
    EXPECT_TRUE(dialog.IsWindow());
    EXPECT_EQ(dialog.GetDlgCtrlID(), 0);
    EXPECT_TRUE(CWnd(dialog, 741).IsWindow());
    EXPECT_EQ(CWnd(dialog, 741).GetDlgCtrlID(), 741);
    EXPECT_FALSE(CWnd(dialog, 4711).IsWindow());
    EXPECT_FALSE(CWnd(dialog, 0).IsWindow()); // labels without an id
    EXPECT_EQ(CWnd(CWnd(dialog, 741), 741).GetSafeHwnd(), nullptr);
  });
}

TEST_F(WndTest, WithoutAWindowNothingHappens) {
  CWnd none;
  none.SetText("x");
  EXPECT_TRUE(none.GetText().IsEmpty());
  none.EnableWindow();
  EXPECT_FALSE(none.IsWindowEnabled());
  none.Show();
  EXPECT_FALSE(none.IsWindowVisible());
  EXPECT_FALSE(none.SetFocus());
  EXPECT_FALSE(none.HasFocus());
  none.SetRedraw(false);
  none.SetRedraw(true);
  EXPECT_FALSE(none.IsWindow());
  EXPECT_EQ(none.GetDlgCtrlID(), 0);
}

TEST_F(WndTest, ADialogKnowsNothingOutsideOfARun) {
  TestDialog dialog;
  EXPECT_FALSE(dialog.IsRunning());
  EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
  EXPECT_FALSE(CWnd(dialog, 741).IsWindow());
  dialog.SetToolTip(801, "x");
  EXPECT_TRUE(dialog.GetToolTip(801).IsEmpty());
}

TEST_F(WndTest, TitleAndLabel) {
  InDialog([](User& user, TestDialog& dialog) {
    dialog.SetText(TrickyText());
    EXPECT_EQ(dialog.GetText(), TrickyText());
    CWnd(dialog, 701).SetText("label");
    EXPECT_EQ(user.Text(701), "label");
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(WndTest, TheStateOfATemplate) {
  InDialog([](User& user, TestDialog&) {
    EXPECT_TRUE(user.IsEnabled(741));
    EXPECT_TRUE(user.IsVisible(741));
    EXPECT_FALSE(user.IsEnabled(743));
    EXPECT_TRUE(user.IsVisible(743));
    EXPECT_TRUE(user.IsEnabled(744));
    EXPECT_FALSE(user.IsVisible(744));
  });
}

TEST_F(WndTest, SuspendingDrawingShowsAndHidesNothing) {
  InDialog([](User& user, TestDialog& dialog) {
    for (const int id : {701, 741, 744, 761, 781, 783, 791, 801, 805}) {
      const bool visible = user.IsVisible(id);
      {
        const CRedrawLock lock(CWnd(dialog, id));
        EXPECT_EQ(user.IsVisible(id), visible) << id;
      }
      EXPECT_EQ(user.IsVisible(id), visible) << id;
      CWnd(dialog, id).SetRedraw(true); // without an earlier false
      EXPECT_EQ(user.IsVisible(id), visible) << id;
    }
    {
      const CRedrawLock lock(dialog);
      EXPECT_TRUE(dialog.IsWindowVisible());
    }
    EXPECT_TRUE(dialog.IsWindowVisible());
    CWnd button(dialog, 801);
    button.SetRedraw(false);
    button.Show(false);
    button.SetRedraw(true);
    EXPECT_FALSE(button.IsWindowVisible());
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(WndTest, TheFirstControlGetsTheFocus) {
  InDialog([](User& user, TestDialog&) { EXPECT_TRUE(user.HasFocus(761)); });
}

TEST_F(WndTest, OnInitDialogMayPutTheFocusElsewhere) {
  TestDialog dialog;
  dialog.focusFirst = false;
  dialog.onInit = [&] { EXPECT_TRUE(CWnd(dialog, 801).SetFocus()); };
  RunDialog(dialog, [&](User& user) {
    EXPECT_TRUE(user.HasFocus(801));
    EXPECT_EQ(dialog.log, Log{"init"});
    user.Press(WindowKey::Escape);
  });
}

TEST_F(WndTest, SomeControlsTakeNoFocus) {
  InDialog([](User& user, TestDialog& dialog) {
    for (const int id : {701, 743, 744, 803, 805})
      EXPECT_FALSE(CWnd(dialog, id).SetFocus()) << id;
    EXPECT_TRUE(user.HasFocus(761));
    for (const int id : {741, 742, 781, 791, 801})
      EXPECT_TRUE(CWnd(dialog, id).SetFocus()) << id;
    EXPECT_TRUE(user.HasFocus(801));
    EXPECT_FALSE(user.HasFocus(761));
  });
}

TEST_F(WndTest, TabGoesThroughTheControlsInOrder) {
  InDialog([](User& user, TestDialog& dialog) {
    for (const int id : {741, 742, 781, 782, 783, 791, 801, 802, 804, 1, 2, 761}) {
      user.Press(WindowKey::Tab);
      EXPECT_TRUE(user.HasFocus(id)) << id;
    }
    EXPECT_EQ(dialog.log, (Log{"741 focus", "741 left", "742 focus", "742 left"}));
  });
}

// While nothing is selected. In lists of several selections the caret is the system's own.
TEST_F(WndTest, TheFirstArrowKeyInAListSelectsTheFirstRow) {
  for (const WindowKey key : {WindowKey::Down, WindowKey::Up}) {
    InDialog([key](User& user, TestDialog& dialog) {
      for (const char* text : {"A", "B", "C"}) {
        CListBox(dialog, 781).AddString(text);
        CComboBox(dialog, 761).AddString(text);
      }
      for (const int id : {761, 781}) {
        CWnd(dialog, id).SetFocus();
        user.Press(key);
        EXPECT_EQ(user.SelectedRows(id), std::vector<int>{0}) << id << " " << static_cast<int>(key);
      }
    });
  }
}

TEST_F(WndTest, ArrowKeysAtTheEndsKeepTheSelection) {
  InDialog([](User& user, TestDialog& dialog) {
    CListCtrl table(dialog, 791);
    table.AddColumn("x", 0);
    table.SetCurSel(table.AddRow("A"));
    CListBox(dialog, 781).SetCurSel(CListBox(dialog, 781).AddString("A"));
    CComboBox(dialog, 761).SetCurSel(CComboBox(dialog, 761).AddString("A"));
    for (const int id : {761, 781, 791}) {
      CWnd(dialog, id).SetFocus();
      user.Press(WindowKey::Down);
      user.Press(WindowKey::Up);
      EXPECT_EQ(user.SelectedRows(id), std::vector<int>{0}) << id;
    }
    for (const std::string& line : dialog.log)
      EXPECT_NE(line, "791 selection");
  });
}

TEST_F(WndTest, KeysInAnEmptyListDoNothing) {
  InDialog([](User& user, TestDialog& dialog) {
    for (const int id : {761, 781, 782, 791}) {
      CWnd(dialog, id).SetFocus();
      for (const WindowKey key : {WindowKey::Down, WindowKey::Up, WindowKey::Home, WindowKey::End,
                                  WindowKey::Space, WindowKey::Delete})
        user.Press(key);
      EXPECT_EQ(user.SelectedRows(id), std::vector<int>()) << id;
    }
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(WndTest, TheDialogSeesKeysFirst) {
  InDialog([](User& user, TestDialog& dialog) {
    bool take = true;
    dialog.onKey = [&](int, WindowKey, WindowHeldKeys) { return take; };
    EXPECT_TRUE(user.Press(WindowKey::Enter));
    EXPECT_TRUE(user.Press(WindowKey::Escape));
    EXPECT_TRUE(user.Press(WindowKey::Tab));
    EXPECT_EQ(dialog.Take(), (Log{"key 761 0", "key 761 1", "key 761 2"}));
    EXPECT_TRUE(user.HasFocus(761));
    take = false;
    EXPECT_TRUE(user.Press(WindowKey::Enter));
    EXPECT_EQ(dialog.Take(), (Log{"key 761 0", "802 clicked"}));
  });
}

TEST_F(WndTest, KeysOfADialogWithoutFocus) {
  TestDialog dialog(103);
  dialog.onKey = [](int, WindowKey, WindowHeldKeys) { return false; };
  EXPECT_EQ(RunDialog(dialog, [](User& user) { user.Press(WindowKey::Escape); }), 2);
  EXPECT_EQ(dialog.log, (Log{"init", "key 0 1", "cancel"}));
}

// As an editor over a row does: Enter takes over the text, Escape discards it, and the dialog stays
// open.
TEST_F(WndTest, EnterAndEscapeOfOneEditOnly) {
  InDialog([](User& user, TestDialog& dialog) {
    dialog.onKey = [](int id, WindowKey key, WindowHeldKeys) {
      return id == 742 && (key == WindowKey::Enter || key == WindowKey::Escape);
    };
    CWnd(dialog, 742).SetFocus();
    user.Press(WindowKey::Escape);
    user.Press(WindowKey::Enter);
    EXPECT_TRUE(user.IsUp());
    EXPECT_EQ(dialog.Take(), (Log{"key 742 1", "key 742 0"}));
  });
}

TEST_F(WndTest, AKeyThatEndsTheDialog) {
  TestDialog dialog;
  dialog.onKey = [&](int, WindowKey, WindowHeldKeys) { return dialog.EndDialog(6), false; };
  EXPECT_EQ(RunDialog(dialog, [](User& user) { user.Press(WindowKey::Enter); }), 6);
  EXPECT_EQ(dialog.log, (Log{"init", "key 761 0"}));
}

TEST_F(WndTest, ToolTips) {
  InDialog([](User& user, TestDialog& dialog) {
    EXPECT_EQ(user.ToolTip(804), "");
    dialog.SetToolTip(804, TrickyText());
    dialog.SetToolTip(801, "one");
    dialog.SetToolTip(801, "two");
    EXPECT_EQ(dialog.GetToolTip(804), TrickyText());
    EXPECT_EQ(user.ToolTip(801), "two");
    dialog.SetToolTip(801, nullptr);
    EXPECT_EQ(user.ToolTip(801), "");
    dialog.SetToolTip(4711, "nobody");
    EXPECT_EQ(user.ToolTip(4711), "");
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(WndTest, TheWaitCursor) {
  EXPECT_EQ(GetWindowCursor(), WindowCursor::Arrow);
  {
    const CWaitCursor wait;
    EXPECT_EQ(GetWindowCursor(), WindowCursor::Wait);
    const CWaitCursor nested;
    EXPECT_EQ(GetWindowCursor(), WindowCursor::Wait);
  }
  EXPECT_EQ(GetWindowCursor(), WindowCursor::Arrow);
}

struct CountingApp : CWinApp {
  static int alive;
  bool InitInstance() override {
    ++alive;
    return alive == 1;
  }
  int ExitInstance() override { return --alive; }
};
int CountingApp::alive = 0;

TEST_F(WndTest, AnApplicationIsStartedAndEndedOnce) {
  {
    const tq::LibraryApp<CountingApp> app;
    EXPECT_EQ(CountingApp::alive, 1);
    EXPECT_TRUE(app.IsUsable());
    const tq::LibraryApp<CountingApp> second;
    EXPECT_FALSE(second.IsUsable());
  }
  EXPECT_EQ(CountingApp::alive, 0);
}

} // namespace
