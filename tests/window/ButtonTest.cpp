#include "platform/framework/window/CButton.h"
#include "tests/window/WindowTest.h"

namespace {

class ButtonTest : public WindowTest {};

TEST_F(ButtonTest, AClickTellsAndTakesTheFocus) {
  InDialog([](User& user, TestDialog& dialog) {
    EXPECT_TRUE(user.Click(801));
    EXPECT_EQ(dialog.Take(), Log{"801 clicked"});
    EXPECT_TRUE(user.HasFocus(801));
  });
}

TEST_F(ButtonTest, ADisabledButtonTakesNoClick) {
  InDialog([](User& user, TestDialog& dialog) {
    EXPECT_FALSE(user.IsEnabled(803));
    EXPECT_FALSE(user.Click(803));
    EXPECT_EQ(dialog.log, Log());
    CButton(dialog, 803).EnableWindow();
    EXPECT_TRUE(user.Click(803));
    EXPECT_EQ(dialog.Take(), Log{"803 clicked"});
    CButton(dialog, 803).EnableWindow(false);
    EXPECT_FALSE(user.Click(803));
    EXPECT_EQ(dialog.Take(), Log());
  });
}

TEST_F(ButtonTest, AHiddenButtonTakesNoClick) {
  InDialog([](User& user, TestDialog& dialog) {
    EXPECT_FALSE(user.IsVisible(805));
    EXPECT_FALSE(user.Click(805));
    CButton(dialog, 805).Show();
    EXPECT_TRUE(user.Click(805));
    EXPECT_EQ(dialog.log, Log{"805 clicked"});
  });
}

TEST_F(ButtonTest, AButtonDisabledByItsOwnClick) {
  InDialog([](User& user, TestDialog& dialog) {
    dialog.onCommand = [&](int id, WindowEvent) { CButton(dialog, id).EnableWindow(false); };
    EXPECT_TRUE(user.Click(801));
    EXPECT_FALSE(user.Click(801));
    EXPECT_EQ(dialog.log, Log{"801 clicked"});
  });
}

TEST_F(ButtonTest, TheLabelCanBeChanged) {
  InDialog([](User& user, TestDialog& dialog) {
    CButton button(dialog, 801);
    button.SetText(TrickyText());
    EXPECT_EQ(button.GetText(), TrickyText());
    button.SetText(nullptr);
    EXPECT_EQ(user.Text(801), "");
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(ButtonTest, IconsAreForIconButtons) {
  InDialog([](User& user, TestDialog& dialog) {
    CButton icon(dialog, 804);
    EXPECT_EQ(icon.GetIcon(), WindowButtonIcon::None);
    for (const WindowButtonIcon each :
         {WindowButtonIcon::Up, WindowButtonIcon::Down, WindowButtonIcon::Left,
          WindowButtonIcon::Remove, WindowButtonIcon::Search, WindowButtonIcon::None}) {
      EXPECT_TRUE(icon.SetIcon(each));
      EXPECT_EQ(icon.GetIcon(), each);
    }
    EXPECT_FALSE(CButton(dialog, 801).SetIcon(WindowButtonIcon::Up));
    EXPECT_EQ(CButton(dialog, 801).GetIcon(), WindowButtonIcon::None);
    EXPECT_FALSE(CButton().SetIcon(WindowButtonIcon::Up));
    EXPECT_TRUE(user.Click(804));
    EXPECT_EQ(dialog.log, Log{"804 clicked"});
  });
}

TEST_F(ButtonTest, EnterClicksTheDefaultButton) {
  InDialog([](User& user, TestDialog& dialog) {
    CWnd(dialog, 741).SetFocus();
    user.Press(WindowKey::Enter);
    EXPECT_EQ(dialog.Take(), Log{"802 clicked"});
    EXPECT_TRUE(user.HasFocus(741));
    CButton(dialog, 802).EnableWindow(false);
    user.Press(WindowKey::Enter);
    EXPECT_EQ(dialog.Take(), Log());
  });
}

TEST_F(ButtonTest, EnterClicksTheButtonThatHasTheFocus) {
  InDialog([](User& user, TestDialog& dialog) {
    CWnd(dialog, 801).SetFocus();
    user.Press(WindowKey::Enter);
    EXPECT_EQ(dialog.Take(), Log{"801 clicked"});
  });
}

TEST_F(ButtonTest, SpaceClicksTheButtonThatHasTheFocus) {
  InDialog([](User& user, TestDialog& dialog) {
    CWnd(dialog, 801).SetFocus();
    user.Press(WindowKey::Space);
    EXPECT_EQ(dialog.Take(), Log{"801 clicked"});
  });
}

} // namespace
