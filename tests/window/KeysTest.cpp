// Keys with Shift, Control and Alt, access keys of buttons and labels, and the keys that the dialog
// hears first.
#include "platform/framework/window/CEdit.h"
#include "platform/framework/window/CListBox.h"
#include "tests/window/WindowTest.h"

namespace {

class KeysTest : public WindowTest {
protected:
  void InLetters(const std::function<void(User&, TestDialog&)>& script) {
    TestDialog dialog(106);
    In(dialog, [&](User& user) { script(user, dialog); });
  }
};

TEST_F(KeysTest, AltAndItsLetterClickAButton) {
  InLetters([](User& user, TestDialog& dialog) {
    EXPECT_TRUE(user.HasFocus(742));
    dialog.Take();
    EXPECT_TRUE(user.PressLetter('A'));
    EXPECT_EQ(dialog.Take(), (Log{"742 left", "801 clicked"}));
    EXPECT_TRUE(user.HasFocus(801));
    user.PressLetter('a');
    EXPECT_EQ(dialog.Take(), Log{"801 clicked"});
    user.PressLetter('1'); // a double ampersand is a shown one and marks no letter
    EXPECT_EQ(dialog.Take(), Log{"804 clicked"});
    CListBox(dialog, 781).SetFocus();
    user.PressLetter('A');
    EXPECT_EQ(dialog.Take(), Log{"801 clicked"});
    EXPECT_EQ(user.Text(742), "");
  });
}

TEST_F(KeysTest, TheLetterOfADisabledOrHiddenButtonDoesNothing) {
  InLetters([](User& user, TestDialog& dialog) {
    for (const char letter : {'D', 'M', 'X'}) {
      user.PressLetter(letter);
      EXPECT_EQ(dialog.log, Log()) << letter;
      EXPECT_TRUE(user.HasFocus(742)) << letter;
    }
    CWnd(dialog, 802).EnableWindow();
    user.PressLetter('D');
    EXPECT_EQ(dialog.Take(), (Log{"742 left", "802 clicked"}));
    CWnd(dialog, 802).EnableWindow(false); // its focus goes to 804, which has another letter
    user.PressLetter('D');
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(KeysTest, TheLetterOfALabelGoesToTheNextControl) {
  InLetters([](User& user, TestDialog& dialog) {
    CWnd(dialog, 742).SetText("text");
    CWnd(dialog, 801).SetFocus();
    user.PressLetter('N');
    EXPECT_TRUE(user.HasFocus(742)); // 741 is disabled
    EXPECT_TRUE(CEdit(dialog, 742).IsAllSelected());
    EXPECT_EQ(dialog.Take(), Log{"742 focus"});
    CWnd(dialog, 741).EnableWindow();
    user.PressLetter('N');
    EXPECT_TRUE(user.HasFocus(741));
  });
}

TEST_F(KeysTest, TheLettersOfOkAndCancel) {
  TestDialog ok(106);
  EXPECT_EQ(RunDialog(ok, [](User& user) { user.PressLetter('K'); }), 1);
  EXPECT_EQ(ok.log, (Log{"init", "742 left", "ok"}));
  TestDialog cancel(106);
  EXPECT_EQ(RunDialog(cancel, [](User& user) { user.PressLetter('C'); }), 2);
  EXPECT_EQ(cancel.log, (Log{"init", "742 left", "cancel"}));
}

TEST_F(KeysTest, WhereAButtonHasTheFocusTheLetterAloneIsEnough) {
  InLetters([](User& user, TestDialog& dialog) {
    CWnd(dialog, 804).SetFocus();
    EXPECT_TRUE(user.PressLetter('a', Modifier::None));
    EXPECT_EQ(dialog.Take(), Log{"801 clicked"});
    EXPECT_TRUE(user.PressLetter('d', Modifier::None));
    EXPECT_EQ(dialog.Take(), Log());
    CWnd(dialog, 742).SetFocus();
    EXPECT_TRUE(user.PressLetter('a', Modifier::None));
    EXPECT_EQ(dialog.Take(), Log{"742 text"});
    EXPECT_EQ(user.Text(742), "a");
    CWnd(dialog, 781).SetFocus();
    EXPECT_FALSE(user.PressLetter('a', Modifier::None));
  });
}

// As the editor of a list uses them: keys that rename, delete, select all, and move rows.
TEST_F(KeysTest, TheDialogHearsKeysAndWhatIsHeld) {
  InDialog([](User& user, TestDialog& dialog) {
    CListBox box(dialog, 782);
    for (const char* text : {"A", "B", "C"})
      box.AddString(text);
    box.SetCurSel(1);
    box.SetFocus();
    dialog.onKey = [](int, WindowKey, WindowHeldKeys) { return true; };
    const auto heard = [](WindowKey key, const char* with) {
      return Log{"key 782 " + std::to_string(static_cast<int>(key)) + with};
    };
    user.Press(WindowKey::F2);
    EXPECT_EQ(dialog.Take(), heard(WindowKey::F2, ""));
    user.Press(WindowKey::Delete);
    EXPECT_EQ(dialog.Take(), heard(WindowKey::Delete, ""));
    user.PressLetter('A', Modifier::Control);
    EXPECT_EQ(dialog.Take(), heard(WindowKey::A, " control"));
    user.PressLetter('Z', Modifier::Control);
    EXPECT_EQ(dialog.Take(), heard(WindowKey::Z, " control"));
    user.Press(WindowKey::Y, Modifier::Control);
    EXPECT_EQ(dialog.Take(), heard(WindowKey::Y, " control"));
    user.Press(WindowKey::Up, Modifier::Alt);
    EXPECT_EQ(dialog.Take(), heard(WindowKey::Up, " alt"));
    user.Press(WindowKey::Down, Modifier::Alt);
    EXPECT_EQ(dialog.Take(), heard(WindowKey::Down, " alt"));
    user.Press(WindowKey::PageDown, Modifier::Shift);
    EXPECT_EQ(dialog.Take(), heard(WindowKey::PageDown, " shift"));
    EXPECT_EQ(user.SelectedRows(782), std::vector<int>{1});
  });
}

TEST_F(KeysTest, LettersAloneAreNoKeys) {
  InDialog([](User& user, TestDialog& dialog) {
    CListBox(dialog, 782).SetFocus();
    dialog.onKey = [](int, WindowKey, WindowHeldKeys) { return true; };
    for (const WindowKey key : {WindowKey::A, WindowKey::Y, WindowKey::Z}) {
      user.Press(key);
      user.Press(key, Modifier::Shift);
    }
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(KeysTest, KeysThatTheDialogDoesNotTake) {
  InDialog([](User& user, TestDialog& dialog) {
    CListBox box(dialog, 782);
    for (const char* text : {"A", "B", "C"})
      box.AddString(text);
    box.SetCurSel(1);
    box.SetFocus();
    for (const WindowKey key : {WindowKey::Up, WindowKey::Down})
      user.Press(key, Modifier::Alt);
    user.Press(WindowKey::F2);
    user.Press(WindowKey::Delete);
    EXPECT_EQ(user.SelectedRows(782), std::vector<int>{1});
    EXPECT_EQ(user.Rows(782).size(), 3U);
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(KeysTest, EnterInAnEditIsTheDialogsFirst) {
  InLetters([](User& user, TestDialog& dialog) {
    dialog.onKey = [](int id, WindowKey key, WindowHeldKeys) {
      return id == 742 && key == WindowKey::Enter;
    };
    user.Press(WindowKey::Enter);
    EXPECT_EQ(dialog.Take(), Log{"key 742 0"});
    EXPECT_TRUE(user.IsUp());
  });
}

TEST_F(KeysTest, AKeyThatEndsTheDialogMovesNothing) {
  TestDialog dialog;
  dialog.onKey = [&](int, WindowKey, WindowHeldKeys) { return dialog.EndDialog(6), false; };
  EXPECT_EQ(RunDialog(dialog,
                      [&](User& user) {
                        CListBox box(dialog, 781);
                        box.AddString("A");
                        box.SetFocus();
                        user.Press(WindowKey::Down);
                        EXPECT_EQ(box.GetCurSel(), -1);
                      }),
            6);
}

TEST_F(KeysTest, ControlAndASelectAllOfAnEdit) {
  InDialog([](User& user, TestDialog& dialog) {
    CEdit edit(dialog, 741);
    edit.SetFocus();
    edit.SetText("abc");
    user.PressLetter('A', Modifier::Control);
    EXPECT_TRUE(edit.IsAllSelected());
    EXPECT_EQ(dialog.Take(), Log());
    user.Type("x");
    EXPECT_EQ(user.Text(741), "x");
    user.Type("yz");
    user.Press(WindowKey::Home, Modifier::Shift);
    EXPECT_TRUE(edit.IsAllSelected());
    user.Press(WindowKey::Home);
    EXPECT_FALSE(edit.IsAllSelected());
    user.Press(WindowKey::End, Modifier::Shift);
    EXPECT_TRUE(edit.IsAllSelected());
    user.Press(WindowKey::Delete);
    EXPECT_EQ(user.Text(741), "");
  });
}

TEST_F(KeysTest, SettingATextTakesTheSelectionAway) {
  InDialog([](User& user, TestDialog& dialog) {
    CEdit edit(dialog, 741);
    edit.SetText("abc");
    edit.SetFocus();
    edit.SetText("abcd");
    EXPECT_FALSE(edit.IsAllSelected());
    user.Type("x");
    EXPECT_EQ(user.Text(741), "xabcd");
    edit.SelectAll();
    edit.SetText("ef"); // the same as without the focus
    EXPECT_FALSE(edit.IsAllSelected());
    user.Press(WindowKey::Delete);
    EXPECT_EQ(user.Text(741), "f");
  });
}

} // namespace
