// Modal runs of dialogs that were opened from other dialogs.
#include "tests/window/WindowTest.h"

namespace {

class NestedRunTest : public WindowTest {};

TEST_F(NestedRunTest, AParentTakesNoInputUntilTheDialogEnds) {
  TestDialog outer;
  outer.onCommand = [&](int, WindowEvent) {
    TestDialog inner(101, &outer);
    EXPECT_EQ(inner.DoModal(), 1);
    outer.log.push_back("inner ended");
  };
  WhenDialogOpens([&](User& user) {
    WhenDialogOpens([&](User& inner) {
      EXPECT_FALSE(outer.IsWindowEnabled());
      EXPECT_TRUE(CWnd(outer, 801).IsWindowEnabled());
      EXPECT_FALSE(user.Click(801));
      EXPECT_FALSE(user.Press(WindowKey::Escape));
      inner.Press(WindowKey::Enter);
    });
    user.Click(801);
    EXPECT_TRUE(outer.IsWindowEnabled());
    EXPECT_TRUE(user.Click(1));
  });
  EXPECT_EQ(outer.DoModal(), 1);
  EXPECT_EQ(outer.log, (Log{"init", "801 clicked", "inner ended", "ok"}));
}

TEST_F(NestedRunTest, MessagesAndTimersOfTheOuterDialogArriveDuringTheInnerRun) {
  TestDialog outer;
  TestDialog inner(101, &outer);
  outer.onCommand = [&](int, WindowEvent) {
    outer.Post(CWnd::kFirstMessage, 1);
    outer.SetTimer(3, 1);
    inner.DoModal();
    outer.log.push_back("inner ended");
  };
  outer.onTimer = [&](unsigned) { outer.KillTimer(3); };
  WhenDialogOpens([&](User& user) {
    WhenDialogOpens([&](User& innerUser) {
      EXPECT_TRUE(innerUser.WaitFor([&] { return outer.log.back() == "timer 3"; }));
      innerUser.Press(WindowKey::Escape);
    });
    user.Click(801);
    user.Click(2);
  });
  EXPECT_EQ(outer.DoModal(), 2);
  EXPECT_EQ(outer.log,
            (Log{"init", "801 clicked", "message 0 1 0", "timer 3", "inner ended", "cancel"}));
}

TEST_F(NestedRunTest, AnOuterDialogEndedFromTheInnerOneWaitsForIt) {
  TestDialog outer;
  TestDialog inner(101, &outer);
  outer.onCommand = [&](int, WindowEvent) {
    outer.log.push_back("inner " + std::to_string(inner.DoModal()));
  };
  WhenDialogOpens([&](User& user) {
    WhenDialogOpens([&](User& innerUser) {
      outer.EndDialog(11);
      EXPECT_TRUE(innerUser.IsUp());
      inner.EndDialog(12);
    });
    user.Click(801);
  });
  EXPECT_EQ(outer.DoModal(), 11);
  EXPECT_EQ(outer.log, (Log{"init", "801 clicked", "inner 12"}));
}

TEST_F(NestedRunTest, ThreeDialogsDeep) {
  TestDialog first;
  TestDialog second(100, &first);
  TestDialog third(101, &second);
  first.onCommand = [&](int, WindowEvent) { first.EndDialog(second.DoModal() + 1); };
  second.onCommand = [&](int, WindowEvent) { second.EndDialog(third.DoModal() + 1); };
  WhenDialogOpens([&](User& user) {
    WhenDialogOpens([&](User& secondUser) {
      WhenDialogOpens([&](User&) { third.EndDialog(20); });
      secondUser.Click(801);
    });
    user.Click(801);
  });
  EXPECT_EQ(first.DoModal(), 22);
}

TEST_F(NestedRunTest, AParentThatIsGoneCountsAsNone) {
  TestDialog outer(101);
  TestDialog inner(101, &outer); // outer has no window yet: no parent
  EXPECT_EQ(RunDialog(inner, [](User& user) { user.Press(WindowKey::Enter); }), 1);
  WindowHandle gone = nullptr;
  In(outer, [&](User&) { gone = outer.GetSafeHwnd(); });
  const CWnd parent(gone);
  TestDialog orphan(101, &parent);
  EXPECT_EQ(RunDialog(orphan, [](User& user) { user.Press(WindowKey::Enter); }), 1);
}

} // namespace
