// The focus: controls that keep it, controls that lose it, and the Tab key.
#include "platform/framework/window/CEdit.h"
#include "platform/framework/window/CListCtrl.h"
#include "tests/window/WindowTest.h"

namespace {

class FocusTest : public WindowTest {
protected:
  // Edit 741 has the focus, and takes it back whenever it loses it while `keeps` is true.
  void InKeepingEdit(const std::function<void(User&, TestDialog&, bool& keeps)>& script) {
    InDialog([&](User& user, TestDialog& dialog) {
      bool keeps = true;
      CListBox(dialog, 781).AddString("A");
      CListBox(dialog, 782).AddString("A");
      CListCtrl table(dialog, 791);
      table.AddColumn("x", 0);
      table.AddRow("A");
      CEdit(dialog, 741).SetFocus();
      dialog.onCommand = [&](int id, WindowEvent event) {
        if (keeps && id == 741 && event == WindowEvent::FocusLost)
          CEdit(dialog, 741).SetFocus();
      };
      script(user, dialog, keeps);
    });
  }
};

// Symptom: on Windows the button was clicked all the same, and the row was selected.
TEST_F(FocusTest, AClickThatAnEditorTakesTheFocusBackFromHasNoEffect) {
  InKeepingEdit([](User& user, TestDialog& dialog, bool& keeps) {
    EXPECT_TRUE(user.Click(801));
    EXPECT_EQ(dialog.Take(), Log{"741 left"});
    EXPECT_TRUE(user.HasFocus(741));
    for (const int list : {781, 782, 791}) {
      EXPECT_TRUE(user.ClickRow(list, 0));
      EXPECT_EQ(dialog.Take(), Log{"741 left"}) << list;
      EXPECT_EQ(user.SelectedRows(list), std::vector<int>()) << list;
    }
    EXPECT_TRUE(user.Click(742));
    EXPECT_TRUE(user.HasFocus(741));
    EXPECT_EQ(dialog.Take(), Log{"741 left"});
    keeps = false;
    EXPECT_TRUE(user.Click(801));
    EXPECT_EQ(dialog.Take(), (Log{"741 left", "801 clicked"}));
  });
}

TEST_F(FocusTest, ADoubleClickThatAnEditorTakesTheFocusBackFromHasNoEffect) {
  InKeepingEdit([](User& user, TestDialog& dialog, bool&) {
    for (const int list : {781, 791}) {
      EXPECT_TRUE(user.DoubleClick(list, 0));
      EXPECT_EQ(dialog.Take(), (Log{"741 left", "741 left"})) << list;
    }
  });
}

TEST_F(FocusTest, TabAndLettersThatAnEditorTakesTheFocusBackFromHaveNoEffect) {
  InKeepingEdit([](User& user, TestDialog& dialog, bool&) {
    user.Press(WindowKey::Tab);
    EXPECT_TRUE(user.HasFocus(741));
    EXPECT_EQ(dialog.Take(), Log{"741 left"});
    user.PressLetter('A');
    EXPECT_TRUE(user.HasFocus(741));
    EXPECT_EQ(dialog.Take(), Log{"741 left"});
  });
}

TEST_F(FocusTest, AHandlerThatMovesTheFocusElsewhereTakesTheClicksEffect) {
  InDialog([](User& user, TestDialog& dialog) {
    CEdit(dialog, 741).SetFocus();
    dialog.onCommand = [&](int, WindowEvent event) {
      if (event == WindowEvent::FocusLost)
        CEdit(dialog, 742).SetFocus();
    };
    EXPECT_TRUE(user.Click(801));
    EXPECT_TRUE(user.HasFocus(742));
    EXPECT_EQ(dialog.log, Log{"741 left"});
  });
}

TEST_F(FocusTest, AHandlerThatEndsTheDialogTakesTheClicksEffect) {
  TestDialog dialog;
  dialog.onCommand = [&](int, WindowEvent event) {
    if (event == WindowEvent::FocusLost)
      dialog.EndDialog(9);
  };
  EXPECT_EQ(RunDialog(dialog,
                      [&](User& user) {
                        CEdit(dialog, 741).SetFocus();
                        user.Click(1);
                      }),
            9);
  EXPECT_EQ(dialog.log, (Log{"init", "741 left"}));
}

// Symptom: a disabled control kept the focus, and keys had no effect.
TEST_F(FocusTest, AControlThatIsDisabledOrHiddenPassesTheFocusOn) {
  InDialog([](User& user, TestDialog& dialog) {
    CEdit(dialog, 742).SetText("abc");
    CEdit(dialog, 741).SetFocus();
    CWnd(dialog, 741).EnableWindow(false);
    EXPECT_TRUE(user.HasFocus(742));
    EXPECT_TRUE(CEdit(dialog, 742).IsAllSelected());
    CWnd(dialog, 742).Show(false);
    EXPECT_TRUE(user.HasFocus(781));
    CWnd(dialog, 2).SetFocus();
    CWnd(dialog, 2).Show(false);
    EXPECT_TRUE(user.HasFocus(761));
    CWnd(dialog, 741).EnableWindow();
    EXPECT_TRUE(user.HasFocus(761));
    CWnd(dialog, 801).EnableWindow(false); // did not have it
    EXPECT_TRUE(user.HasFocus(761));
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(FocusTest, AButtonThatDisablesItselfPassesTheFocusOn) {
  InDialog([](User& user, TestDialog& dialog) {
    dialog.onCommand = [&](int id, WindowEvent) { CWnd(dialog, id).EnableWindow(false); };
    EXPECT_TRUE(user.Click(801));
    EXPECT_TRUE(user.HasFocus(802));
    user.Press(WindowKey::Enter);
    EXPECT_EQ(dialog.log, (Log{"801 clicked", "802 clicked"}));
    EXPECT_TRUE(user.HasFocus(804));
  });
}

TEST_F(FocusTest, WhenNoControlCanTakeItNoneHasTheFocus) {
  TestDialog dialog(102);
  dialog.onCancel = [] {};
  In(dialog, [&](User& user) {
    CWnd(dialog, 2).EnableWindow();
    EXPECT_TRUE(CWnd(dialog, 2).SetFocus());
    CWnd(dialog, 2).EnableWindow(false);
    EXPECT_FALSE(user.HasFocus(2));
    EXPECT_TRUE(user.Press(WindowKey::Space));
    EXPECT_EQ(dialog.Take(), Log());
    CWnd(dialog, 2).EnableWindow();
    EXPECT_TRUE(user.Press(WindowKey::Tab));
    EXPECT_TRUE(user.HasFocus(2));
    EXPECT_TRUE(user.Press(WindowKey::Space));
    EXPECT_EQ(dialog.Take(), Log{"cancel"});
  });
}

// A focus that is set while the dialog is behind another one is there when that one has ended.
TEST_F(FocusTest, TheFocusOfAnOuterDialogIsChangedBehindTheInnerOne) {
  InDialog([](User& user, TestDialog& dialog) {
    TestDialog inner(101, &dialog);
    bool disables = false;
    dialog.onCommand = [&](int, WindowEvent) {
      WhenDialogOpens([&](User& innerUser) {
        if (disables)
          CWnd(dialog, 801).EnableWindow(false);
        else
          EXPECT_TRUE(CWnd(dialog, 741).SetFocus());
        actions::Settle();
        EXPECT_TRUE(innerUser.HasFocus(761));
        EXPECT_TRUE(innerUser.Press(WindowKey::Escape));
      });
      inner.DoModal();
    };
    EXPECT_TRUE(user.Click(801));
    EXPECT_TRUE(user.HasFocus(741));
    disables = true;
    EXPECT_TRUE(CWnd(dialog, 802).SetFocus());
    dialog.onCommand = [&, before = dialog.onCommand](int id, WindowEvent event) {
      if (id == 801)
        before(id, event);
    };
    EXPECT_TRUE(user.Click(801));
    EXPECT_TRUE(user.HasFocus(802));
    EXPECT_EQ(dialog.Take(), (Log{"801 clicked", "801 clicked"}));
    EXPECT_EQ(user.Press(WindowKey::Enter), true);
    EXPECT_EQ(dialog.log, Log{"802 clicked"});
  });
}

TEST_F(FocusTest, TabPassesOverWhatIsDisabledOrHiddenInBothDirections) {
  InDialog([](User& user, TestDialog& dialog) {
    CWnd(dialog, 742).EnableWindow(false);
    CWnd(dialog, 782).Show(false);
    for (const int id : {741, 781, 783, 791}) {
      user.Press(WindowKey::Tab);
      EXPECT_TRUE(user.HasFocus(id)) << id;
    }
    for (const int id : {783, 781, 741, 761, 2, 1}) {
      user.Press(WindowKey::Tab, Modifier::Shift);
      EXPECT_TRUE(user.HasFocus(id)) << id;
    }
  });
}

// Symptom: Enter clicked the button that was clicked last.
TEST_F(FocusTest, TheDefaultButtonIsTheTemplatesAgainWhenTheFocusLeavesAButton) {
  InDialog([](User& user, TestDialog& dialog) {
    EXPECT_TRUE(user.Click(801));
    EXPECT_TRUE(user.Click(741));
    dialog.Take();
    user.Press(WindowKey::Enter);
    EXPECT_EQ(dialog.Take(), Log{"802 clicked"});
    EXPECT_TRUE(user.Click(801));
    CWnd(dialog, 801).EnableWindow(false);
    CWnd(dialog, 742).SetFocus();
    dialog.Take();
    user.Press(WindowKey::Enter);
    EXPECT_EQ(dialog.Take(), Log{"802 clicked"});
    CWnd(dialog, 802).Show(false);
    user.Press(WindowKey::Enter);
    EXPECT_EQ(dialog.Take(), Log{"802 clicked"}); // still the default although it is hidden
  });
}

// Symptom: a control given as the parent was disabled in place of its dialog.
TEST_F(FocusTest, AControlAsTheParentStandsForItsDialog) {
  InDialog([](User& user, TestDialog& dialog) {
    const CWnd button(dialog, 801);
    TestDialog inner(101, &button);
    dialog.onCommand = [&](int, WindowEvent) {
      WhenDialogOpens([&](User& innerUser) {
        EXPECT_FALSE(dialog.IsWindowEnabled());
        EXPECT_TRUE(button.IsWindowEnabled());
        EXPECT_FALSE(user.Click(802));
        innerUser.Press(WindowKey::Escape);
      });
      inner.DoModal();
    };
    EXPECT_TRUE(user.Click(801));
    EXPECT_TRUE(dialog.IsWindowEnabled());
    EXPECT_TRUE(user.HasFocus(801));
  });
}

} // namespace
