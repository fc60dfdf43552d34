#include "platform/framework/window/CEdit.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr int kEdit = 741;

class EditTest : public WindowTest {
protected:
  void InEdit(const std::function<void(User&, TestDialog&, CEdit)>& script) {
    InDialog([&](User& user, TestDialog& dialog) {
      CEdit edit(dialog, kEdit);
      CWnd(dialog, 801).SetFocus();
      script(user, dialog, edit);
    });
  }
};

TEST_F(EditTest, ANewEditIsEmptyAndUnlimited) {
  InEdit([](User&, TestDialog&, CEdit edit) {
    EXPECT_TRUE(edit.GetText().IsEmpty());
    EXPECT_EQ(edit.GetLimitText(), 0);
    EXPECT_FALSE(edit.IsAllSelected());
    EXPECT_FALSE(edit.IsReadOnly());
  });
}

TEST_F(EditTest, SettingDoesNotNotify) {
  InEdit([](User&, TestDialog& dialog, CEdit edit) {
    edit.SetText("abc");
    edit.SelectAll();
    edit.SetLimitText(2);
    edit.SetReadOnly();
    edit.SetReadOnly(false);
    edit.SetText(nullptr);
    edit.SetFocus();
    CWnd(dialog, 801).SetFocus();
    edit.EnableWindow(false);
    actions::Settle();
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(EditTest, TypingTellsOfEachCharacter) {
  InEdit([](User& user, TestDialog& dialog, CEdit edit) {
    edit.SetFocus();
    EXPECT_TRUE(user.Type("ab"));
    EXPECT_EQ(user.Text(kEdit), "ab");
    EXPECT_EQ(dialog.Take(), (Log{"741 text", "741 text"}));
    EXPECT_TRUE(user.Type("\b"));
    EXPECT_EQ(user.Text(kEdit), "a");
    EXPECT_EQ(dialog.Take(), Log{"741 text"});
  });
}

TEST_F(EditTest, TakingBackFromAnEmptyEditTellsNothing) {
  InEdit([](User& user, TestDialog& dialog, CEdit edit) {
    edit.SetFocus();
    user.Type("\b");
    user.Press(WindowKey::Delete);
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(EditTest, TypingReplacesWhatIsSelected) {
  InEdit([](User& user, TestDialog&, CEdit edit) {
    edit.SetText("old text");
    edit.SetFocus();
    EXPECT_TRUE(edit.IsAllSelected());
    user.Type("n");
    EXPECT_EQ(user.Text(kEdit), "n");
    EXPECT_FALSE(edit.IsAllSelected());
    edit.SelectAll();
    EXPECT_TRUE(edit.IsAllSelected());
    user.Press(WindowKey::Delete);
    EXPECT_EQ(user.Text(kEdit), "");
  });
}

TEST_F(EditTest, SetTextPutsTheCaretAtTheStart) {
  InEdit([](User& user, TestDialog&, CEdit edit) {
    edit.SetFocus();
    edit.SetText("bc");
    EXPECT_FALSE(edit.IsAllSelected());
    user.Type("a");
    EXPECT_EQ(user.Text(kEdit), "abc");
    user.Press(WindowKey::End);
    user.Type("d");
    user.Press(WindowKey::Home);
    user.Press(WindowKey::Delete);
    EXPECT_EQ(user.Text(kEdit), "bcd");
  });
}

TEST_F(EditTest, ADoubleByteCharacterIsOneCharacter) {
  InEdit([](User& user, TestDialog& dialog, CEdit edit) {
    const std::string tricky = Utf8(TrickyText());
    edit.SetFocus();
    EXPECT_TRUE(user.Type(tricky));
    EXPECT_EQ(edit.GetText(), TrickyText());
    EXPECT_EQ(dialog.Take().size(), 3U);
    user.Type("\b");
    EXPECT_EQ(edit.GetText(), TrickyText().Left(4));
    user.Press(WindowKey::Home);
    user.Press(WindowKey::Delete);
    EXPECT_EQ(edit.GetText(), TrickyText().Mid(2, 2));
    edit.SetText(TrickyText());
    EXPECT_EQ(edit.GetText(), TrickyText());
  });
}

TEST_F(EditTest, TheLimitIsInBytes) {
  InEdit([](User& user, TestDialog& dialog, CEdit edit) {
    edit.SetLimitText(5);
    EXPECT_EQ(edit.GetLimitText(), 5);
    edit.SetFocus();
    user.Type(Utf8(TrickyText()));
    EXPECT_EQ(edit.GetText(), TrickyText().Left(4));
    EXPECT_EQ(dialog.Take().size(), 2U); // refused input is no change
    user.Type("xy");
    EXPECT_EQ(edit.GetText(), TrickyText().Left(4) + "x");
  });
}

TEST_F(EditTest, SixtyFourLettersAndNoMore) {
  InEdit([](User& user, TestDialog&, CEdit edit) {
    edit.SetLimitText(64);
    edit.SetFocus();
    user.Type(std::string(70, 'a'));
    EXPECT_EQ(edit.GetText().GetLength(), 64);
    edit.SelectAll();
    user.Type("b"); // replacing the selection makes room again
    EXPECT_EQ(user.Text(kEdit), "b");
  });
}

TEST_F(EditTest, SetTextHeedsNoLimit) {
  InEdit([](User& user, TestDialog&, CEdit edit) {
    edit.SetLimitText(3);
    edit.SetText("abcdef");
    EXPECT_EQ(user.Text(kEdit), "abcdef");
    edit.SetFocus();
    user.Press(WindowKey::End);
    user.Type("g");
    EXPECT_EQ(user.Text(kEdit), "abcdef");
    user.Type("\b");
    EXPECT_EQ(user.Text(kEdit), "abcde");
    edit.SetLimitText(0);
    user.Type("fgh");
    EXPECT_EQ(user.Text(kEdit), "abcdefgh");
    edit.SetLimitText(-4);
    EXPECT_EQ(edit.GetLimitText(), 0);
  });
}

TEST_F(EditTest, AReadOnlyEditIsNotChanged) {
  InDialog([](User& user, TestDialog& dialog) {
    CEdit edit(dialog, 742);
    EXPECT_TRUE(edit.IsReadOnly());
    edit.SetText("shown");
    EXPECT_TRUE(edit.SetFocus());
    user.Type("x");
    user.Press(WindowKey::Delete);
    EXPECT_EQ(user.Text(742), "shown");
    EXPECT_EQ(dialog.log, Log());
    edit.SetReadOnly(false);
    EXPECT_FALSE(edit.IsReadOnly());
    user.Type("x");
    EXPECT_NE(user.Text(742), "shown");
  });
}

TEST_F(EditTest, ADisabledOrHiddenEditTakesNoTyping) {
  InDialog([](User& user, TestDialog& dialog) {
    for (const int id : {743, 744}) {
      EXPECT_FALSE(CEdit(dialog, id).SetFocus()) << id;
      EXPECT_FALSE(user.Click(id)) << id;
      EXPECT_FALSE(user.Fill(id, "x")) << id;
      EXPECT_EQ(user.Text(id), "") << id;
    }
  });
}

TEST_F(EditTest, TypingNeedsTheFocus) {
  InEdit([](User& user, TestDialog&, CEdit) {
    EXPECT_FALSE(user.Type("x")); // a button has the focus
    EXPECT_EQ(user.Text(kEdit), "");
  });
}

TEST_F(EditTest, TheFocusTellsOnlyWhenTheUserMovesIt) {
  InEdit([](User& user, TestDialog& dialog, CEdit) {
    EXPECT_TRUE(user.Click(kEdit));
    EXPECT_EQ(dialog.Take(), Log{"741 focus"});
    EXPECT_TRUE(user.Click(801));
    EXPECT_EQ(dialog.Take(), (Log{"741 left", "801 clicked"}));
  });
}

TEST_F(EditTest, TheFocusIsNotLostToAnotherDialog) {
  InEdit([](User& user, TestDialog& dialog, CEdit edit) {
    TestDialog inner(101, &dialog);
    edit.SetFocus();
    dialog.onCommand = [&](int, WindowEvent) {
      if (!inner.IsRunning())
        inner.DoModal();
    };
    WhenDialogOpens([](User& innerUser) { innerUser.Press(WindowKey::Escape); });
    user.Type("a");
    dialog.onCommand = nullptr;
    EXPECT_EQ(dialog.Take(), Log{"741 text"});
    EXPECT_TRUE(edit.HasFocus());
  });
}

TEST_F(EditTest, TheSpaceKeyTypesABlank) {
  InEdit([](User& user, TestDialog& dialog, CEdit edit) {
    edit.SetFocus();
    user.Type("a");
    user.Press(WindowKey::Space);
    user.Type("b");
    EXPECT_EQ(user.Text(kEdit), "a b");
    EXPECT_EQ(dialog.log, Log(3, "741 text"));
  });
}

TEST_F(EditTest, FillReplacesTheText) {
  InEdit([](User& user, TestDialog&, CEdit edit) {
    edit.SetText("before");
    EXPECT_TRUE(user.Fill(kEdit, "after"));
    EXPECT_EQ(user.Text(kEdit), "after");
    EXPECT_TRUE(user.Fill(kEdit, ""));
    EXPECT_EQ(user.Text(kEdit), "");
  });
}

TEST_F(EditTest, LaidOverARow) {
  InDialog([](User& user, TestDialog& dialog) {
    CEdit edit(dialog, 744);
    CListBox box(dialog, 781);
    EXPECT_FALSE(edit.PlaceOverRow(box, 0));
    EXPECT_FALSE(user.IsVisible(744));
    for (int i = 0; i < 100; ++i)
      box.AddString("row");
    EXPECT_FALSE(edit.PlaceOverRow(box, 100));
    EXPECT_FALSE(edit.PlaceOverRow(box, -1));
    EXPECT_FALSE(edit.PlaceOverRow(CListBox(), 0));
    EXPECT_TRUE(edit.PlaceOverRow(box, 99));
    EXPECT_TRUE(user.IsVisible(744));
    edit.SetText("row");
    EXPECT_TRUE(edit.SetFocus());
    EXPECT_TRUE(user.Type("renamed"));
    EXPECT_EQ(user.Text(744), "renamed");
    edit.Show(false);
    EXPECT_FALSE(user.IsVisible(744));
  });
}

} // namespace
