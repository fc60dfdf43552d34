// tqUI's controls in a dialog that is up.
#include <functional>

#include "dialogs/resources/DialogTable.h"
#include "platform/framework/window/ResourceContext.h"
#include "platform/services/tqUI.h"
#include "tests/support/StandInTest.h"

namespace {

constexpr unsigned kControlsTemplate = 1001;
constexpr int kTextButton = 805;
constexpr int kIconButton = 806;
constexpr int kEdit = 742;
constexpr int kNone = 4711;

class Shown : public CDialog {
public:
  explicit Shown(std::function<void(CDialog&)> inside)
      : CDialog(kControlsTemplate), inside_(std::move(inside)) {}

protected:
  bool OnInitDialog() override {
    inside_(*this);
    EndDialog(Accepted);
    return true;
  }

private:
  std::function<void(CDialog&)> inside_;
};

class TerminalControls : public StandInTest {
protected:
  static void InDialog(std::function<void(CDialog&)> inside) {
    const tq::ResourceContext context(tq::LibraryResources());
    EXPECT_EQ(Shown(std::move(inside)).DoModal(), CDialog::Accepted);
  }
};

TEST_F(TerminalControls, AnIconButtonGetsItsPicture) {
  InDialog([](CDialog& dialog) {
    EXPECT_EQ(CTQIconButton(dialog, kIconButton, WindowButtonIcon::Left).GetIcon(),
              WindowButtonIcon::Left);
    EXPECT_EQ(CButton(dialog, kIconButton).GetIcon(), WindowButtonIcon::Left);
  });
}

TEST_F(TerminalControls, WhatIsNoIconButtonGetsNoPicture) {
  InDialog([](CDialog& dialog) {
    EXPECT_EQ(CTQIconButton(dialog, kTextButton, WindowButtonIcon::Up).GetIcon(),
              WindowButtonIcon::None);
    EXPECT_EQ(CTQIconButton(dialog, kNone, WindowButtonIcon::Up).GetSafeHwnd(), nullptr);
  });
}

TEST_F(TerminalControls, ATipIsThatOfItsControl) {
  InDialog([](CDialog& dialog) {
    CTQToolTip tips(dialog);
    EXPECT_NE(tips.AddTool(kIconButton, "add"), 0);
    EXPECT_STREQ(dialog.GetToolTip(kIconButton), "add");
    EXPECT_STREQ(dialog.GetToolTip(kTextButton), "");
    EXPECT_NE(tips.AddTool(kIconButton, "other"), 0);
    EXPECT_STREQ(dialog.GetToolTip(kIconButton), "other");
    EXPECT_NE(tips.AddTool(kIconButton, nullptr), 0);
    EXPECT_STREQ(dialog.GetToolTip(kIconButton), "");
  });
}

TEST_F(TerminalControls, ATipNeedsAControl) {
  InDialog([](CDialog& dialog) {
    EXPECT_EQ(CTQToolTip(dialog).AddTool(kNone, "add"), 0);
    EXPECT_STREQ(dialog.GetToolTip(kNone), "");
  });
  Shown closed([](CDialog&) {});
  EXPECT_EQ(CTQToolTip(closed).AddTool(kIconButton, "add"), 0);
}

TEST_F(TerminalControls, AnEditHasItsLimit) {
  InDialog([](CDialog& dialog) {
    EXPECT_EQ(CCharEdit(dialog, kEdit, 64).GetLimitText(), 64);
    EXPECT_EQ(CEdit(dialog, kEdit).GetLimitText(), 64);
  });
}

TEST_F(TerminalControls, AnEditsInputHasNoBlanksAtItsEnds) {
  InDialog([](CDialog& dialog) {
    CCharEdit edit(dialog, kEdit, 0);
    edit.SetText(standin::ToAnsi(" \t我的 list  ").c_str());
    EXPECT_STREQ(edit.GetInput(), standin::ToAnsi("我的 list").c_str());
    edit.SetText("  ");
    EXPECT_STREQ(edit.GetInput(), "");
    EXPECT_STREQ(CCharEdit(dialog, kNone, 0).GetInput(), "");
  });
}

} // namespace
