// Only for windows in memory.
#include "platform/headless/user/UserInput.h"
#include "tests/window/WindowTest.h"

namespace {

class HeadlessTest : public WindowTest {
protected:
  HeadlessTest() { tq::SetModalHandler(nullptr); }
};

TEST_F(HeadlessTest, ADialogThatNobodyCanEndIsCancelled) {
  TestDialog dialog;
  EXPECT_EQ(dialog.DoModal(), CDialog::Cancelled);
  EXPECT_EQ(dialog.log, (Log{"init", "cancel"}));
}

TEST_F(HeadlessTest, OnCancelMayChooseAnotherCode) {
  TestDialog dialog;
  dialog.onCancel = [&] { dialog.EndDialog(30); };
  EXPECT_EQ(dialog.DoModal(), 30);
}

TEST_F(HeadlessTest, ADialogThatRefusesToBeCancelledEndsAllTheSame) {
  TestDialog dialog;
  dialog.onCancel = [] {};
  EXPECT_EQ(dialog.DoModal(), CDialog::Cancelled);
  EXPECT_EQ(dialog.log, (Log{"init", "cancel"}));
}

TEST_F(HeadlessTest, MessagesAndTimersComeBeforeGivingUp) {
  TestDialog dialog;
  dialog.onInit = [&] {
    dialog.Post(CWnd::kFirstMessage);
    dialog.SetTimer(1, 3600 * 1000);
    dialog.SetTimer(2, 24 * 3600 * 1000);
  };
  dialog.onTimer = [&](unsigned id) { dialog.KillTimer(id); };
  EXPECT_EQ(dialog.DoModal(), CDialog::Cancelled);
  EXPECT_EQ(dialog.log, (Log{"init", "message 0 0 0", "timer 1", "timer 2", "cancel"}));
}

TEST_F(HeadlessTest, TimersThatAreDueTogetherComeInTheOrderOfSetting) {
  TestDialog dialog;
  dialog.onInit = [&] {
    for (const unsigned id : {3U, 1U, 2U})
      dialog.SetTimer(id, 50);
  };
  dialog.onTimer = [&](unsigned) {
    if (dialog.log.size() == 7)
      dialog.EndDialog(1);
  };
  EXPECT_EQ(dialog.DoModal(), 1);
  EXPECT_EQ(dialog.log,
            (Log{"init", "timer 3", "timer 1", "timer 2", "timer 3", "timer 1", "timer 2"}));
}

TEST_F(HeadlessTest, NestedDialogsAreGivenUpFromTheInnermost) {
  TestDialog outer;
  TestDialog inner(101, &outer);
  outer.onMessage = [&](unsigned, intptr_t, intptr_t) -> intptr_t { return inner.DoModal(); };
  outer.onInit = [&] { outer.Post(CWnd::kFirstMessage); };
  EXPECT_EQ(outer.DoModal(), CDialog::Cancelled);
  EXPECT_EQ(inner.log, (Log{"init", "cancel"}));
  EXPECT_EQ(outer.log, (Log{"init", "message 0 0 0", "cancel"}));
  EXPECT_EQ(tq::headless::WindowCount(), 0U);
}

TEST_F(HeadlessTest, HandlesAreNeverGivenOutTwice) {
  WindowHandle first = nullptr;
  TestDialog dialog;
  dialog.onInit = [&] { first = CWnd(dialog, 801).GetSafeHwnd(); };
  dialog.DoModal();
  WindowHandle second = nullptr;
  dialog.onInit = [&] { second = CWnd(dialog, 801).GetSafeHwnd(); };
  dialog.DoModal();
  EXPECT_NE(first, second);
}

} // namespace
