#include "tests/window/WindowTest.h"

namespace {

class TimerTest : public WindowTest {};

TEST_F(TimerTest, ATimerComesAgainUntilItIsKilled) {
  InDialog([](User& user, TestDialog& dialog) {
    dialog.onTimer = [&](unsigned id) {
      if (dialog.log.size() == 3) {
        EXPECT_TRUE(dialog.KillTimer(id));
      }
    };
    EXPECT_TRUE(dialog.SetTimer(7, 1));
    EXPECT_TRUE(user.WaitFor([&] { return dialog.log.size() == 3; }));
    EXPECT_EQ(dialog.Take(), (Log{"timer 7", "timer 7", "timer 7"}));
    EXPECT_FALSE(dialog.KillTimer(7));
    // A killed timer is not heard, another one still is.
    dialog.onTimer = nullptr;
    EXPECT_TRUE(dialog.SetTimer(8, 20));
    EXPECT_TRUE(user.WaitFor([&] { return dialog.log.size() == 2; }));
    EXPECT_EQ(dialog.Take(), (Log{"timer 8", "timer 8"}));
  });
}

TEST_F(TimerTest, MessagesComeBeforeATimerThatIsDue) {
  InDialog([](User& user, TestDialog& dialog) {
    int left = 5;
    dialog.onMessage = [&](unsigned, intptr_t, intptr_t) -> intptr_t {
      if (--left > 0)
        dialog.Post(CWnd::kFirstMessage, left);
      return 0;
    };
    dialog.SetTimer(1, 1);
    dialog.Post(CWnd::kFirstMessage, left);
    EXPECT_TRUE(user.WaitFor([&] { return dialog.log.size() == 6; }));
    EXPECT_EQ(dialog.log, (Log{"message 0 5 0", "message 0 4 0", "message 0 3 0", "message 0 2 0",
                               "message 0 1 0", "timer 1"}));
    dialog.KillTimer(1);
  });
}

TEST_F(TimerTest, AShorterTimerComesMoreOften) {
  InDialog([](User& user, TestDialog& dialog) {
    int quick = 0;
    int slow = 0;
    dialog.onTimer = [&](unsigned id) { ++(id == 1 ? quick : slow); };
    dialog.SetTimer(1, 20);
    dialog.SetTimer(2, 200);
    EXPECT_TRUE(user.WaitFor([&] { return slow == 1; }));
    EXPECT_GT(quick, slow);
    dialog.KillTimer(1);
    dialog.KillTimer(2);
  });
}

TEST_F(TimerTest, SettingARunningTimerKeepsOne) {
  InDialog([](User& user, TestDialog& dialog) {
    dialog.SetTimer(1, 100000);
    dialog.SetTimer(1, 1);
    EXPECT_TRUE(user.WaitFor([&] { return dialog.log.size() == 1; }));
    EXPECT_TRUE(dialog.KillTimer(1));
    EXPECT_FALSE(dialog.KillTimer(1));
  });
}

TEST_F(TimerTest, ZeroMillisecondsAreTakenAsOne) {
  InDialog([](User& user, TestDialog& dialog) {
    EXPECT_TRUE(dialog.SetTimer(1, 0));
    EXPECT_TRUE(user.WaitFor([&] { return !dialog.log.empty(); }));
    dialog.KillTimer(1);
  });
}

TEST_F(TimerTest, TimersAreKilledAndSetFromWithinTheirHandlers) {
  InDialog([](User& user, TestDialog& dialog) {
    dialog.onTimer = [&](unsigned id) {
      EXPECT_TRUE(dialog.KillTimer(id));
      EXPECT_FALSE(dialog.KillTimer(id));
      dialog.KillTimer(3); // due as well, but not heard
      if (id == 1) {
        dialog.SetTimer(1, 1);
        dialog.SetTimer(2, 30);
      }
      if (dialog.log.size() == 3)
        dialog.KillTimer(1);
    };
    dialog.SetTimer(1, 1);
    dialog.SetTimer(3, 2);
    EXPECT_TRUE(
        user.WaitFor([&] { return !dialog.log.empty() && dialog.log.back() == "timer 2"; }));
    for (const std::string& line : dialog.log)
      EXPECT_NE(line, "timer 3");
  });
}

TEST_F(TimerTest, OutsideOfARunThereAreNoTimers) {
  TestDialog dialog;
  EXPECT_FALSE(dialog.SetTimer(1, 1));
  EXPECT_FALSE(dialog.KillTimer(1));
}

// As a search dialog does at first: a timer shows the wait cursor and posts one message, whose
// handler does the work; the next tick stops the timer.
TEST_F(TimerTest, ATimerThatPostsAMessageOnceAndStops) {
  TestDialog dialog;
  bool posted = false;
  bool done = false;
  dialog.onInit = [&] { dialog.SetTimer(1, 10); };
  dialog.onTimer = [&](unsigned) {
    SetWindowCursor(done ? WindowCursor::Arrow : WindowCursor::Wait);
    if (done)
      dialog.KillTimer(1);
    else if (!posted)
      posted = dialog.Post(CWnd::kFirstMessage + 14);
  };
  dialog.onMessage = [&](unsigned, intptr_t, intptr_t) -> intptr_t {
    EXPECT_EQ(GetWindowCursor(), WindowCursor::Wait);
    return done = true, 0;
  };
  RunDialog(dialog, [&](User& user) {
    EXPECT_TRUE(user.WaitFor([&] { return done && GetWindowCursor() == WindowCursor::Arrow; }));
    EXPECT_FALSE(dialog.KillTimer(1));
    user.Click(2);
  });
  EXPECT_EQ(dialog.log, (Log{"init", "timer 1", "message 14 0 0", "timer 1", "cancel"}));
}

} // namespace
