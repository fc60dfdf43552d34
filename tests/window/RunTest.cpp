// Modal runs: how they begin, in what order things happen, and how they end.
#include "tests/window/TestModule.h"
#include "tests/window/WindowTest.h"

namespace {

class RunTest : public WindowTest {};

TEST_F(RunTest, ADialogEndsWithTheCodeItWasGiven) {
  for (const int code : {1, 2, 0, -1, 77, -2147483647}) {
    TestDialog dialog;
    EXPECT_EQ(RunDialog(dialog, [&](User&) { dialog.EndDialog(code); }), code);
    EXPECT_EQ(dialog.log, Log{"init"});
  }
}

TEST_F(RunTest, OkAndCancelButtonsEndWithOneAndTwo) {
  TestDialog ok;
  EXPECT_EQ(RunDialog(ok, [](User& user) { EXPECT_TRUE(user.Click(1)); }), 1);
  EXPECT_EQ(ok.log, (Log{"init", "ok"}));
  TestDialog cancel;
  EXPECT_EQ(RunDialog(cancel, [](User& user) { EXPECT_TRUE(user.Click(2)); }), 2);
  EXPECT_EQ(cancel.log, (Log{"init", "cancel"}));
}

TEST_F(RunTest, TheTitleBarAndEscapeCancel) {
  TestDialog closed(101);
  EXPECT_EQ(RunDialog(closed, [](User& user) { EXPECT_TRUE(user.CloseByTitleBar()); }), 2);
  EXPECT_EQ(closed.log, (Log{"init", "cancel"}));
  TestDialog escaped(101);
  EXPECT_EQ(RunDialog(escaped, [](User& user) { EXPECT_TRUE(user.Press(WindowKey::Escape)); }), 2);
  EXPECT_EQ(escaped.log, (Log{"init", "cancel"}));
}

TEST_F(RunTest, EnterMeansOkWhereThereIsNoButton) {
  TestDialog dialog(101);
  EXPECT_EQ(RunDialog(dialog, [](User& user) { EXPECT_TRUE(user.Press(WindowKey::Enter)); }), 1);
  EXPECT_EQ(dialog.log, (Log{"init", "ok"}));
}

TEST_F(RunTest, DisabledOkAndCancelButtonsBlockKeysAndTitleBar) {
  TestDialog dialog(102);
  In(dialog, [&](User& user) {
    user.Press(WindowKey::Enter);
    user.Press(WindowKey::Escape);
    user.CloseByTitleBar();
    EXPECT_FALSE(user.Click(1));
    EXPECT_FALSE(user.Click(2));
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(RunTest, AnOkThatDoesNotEndLeavesTheDialogUp) {
  TestDialog dialog;
  dialog.onOk = [] {};
  dialog.onCancel = [] {};
  In(dialog, [&](User& user) {
    user.Click(1);
    user.Press(WindowKey::Escape);
    EXPECT_EQ(dialog.log, (Log{"ok", "cancel"}));
  });
}

TEST_F(RunTest, EndingTakesEffectAfterTheHandler) {
  TestDialog dialog;
  dialog.onCommand = [&](int, WindowEvent) {
    dialog.EndDialog(5);
    dialog.log.push_back("still " + std::to_string(dialog.IsRunning()));
    dialog.log.push_back(Utf8(CWnd(dialog, 801).GetText()));
  };
  EXPECT_EQ(RunDialog(dialog, [](User& user) { user.Click(801); }), 5);
  EXPECT_EQ(dialog.log, (Log{"init", "801 clicked", "still 1", "新增(&A)"}));
  EXPECT_FALSE(dialog.IsRunning());
}

TEST_F(RunTest, TheLastEndCodeCounts) {
  TestDialog dialog;
  dialog.onCommand = [&](int, WindowEvent) {
    dialog.EndDialog(5);
    dialog.EndDialog(6);
  };
  EXPECT_EQ(RunDialog(dialog, [](User& user) { user.Click(801); }), 6);
}

TEST_F(RunTest, AnEndedDialogHearsNothingMore) {
  TestDialog dialog;
  dialog.onCommand = [&](int, WindowEvent) {
    dialog.SetTimer(1, 1);
    dialog.Post(CWnd::kFirstMessage);
    dialog.EndDialog(5);
  };
  const int code = RunDialog(dialog, [](User& user) {
    user.Click(801);
    EXPECT_FALSE(user.Click(801));
    EXPECT_FALSE(user.Press(WindowKey::Escape));
  });
  EXPECT_EQ(code, 5);
  EXPECT_EQ(dialog.log, (Log{"init", "801 clicked"}));
}

TEST_F(RunTest, EndedInOnInitDialogItIsNeverShown) {
  TestDialog dialog;
  dialog.onInit = [&] { dialog.EndDialog(9); };
  EXPECT_EQ(dialog.DoModal(), 9);
  EXPECT_EQ(dialog.log, Log{"init"});
}

TEST_F(RunTest, EndingOutsideOfARunDoesNothing) {
  TestDialog dialog;
  dialog.EndDialog(9);
  EXPECT_EQ(RunDialog(dialog, [](User& user) { user.Click(1); }), 1);
  dialog.EndDialog(9);
  EXPECT_EQ(RunDialog(dialog, [](User& user) { user.Click(2); }), 2);
}

TEST_F(RunTest, EndedFromOutsideThroughItsHandle) {
  TestDialog dialog;
  const int code = RunDialog(dialog, [&](User& user) {
    CDialog* const found = CDialog::FromHandle(dialog.GetSafeHwnd());
    ASSERT_EQ(found, &dialog);
    found->EndDialog(42);
    EXPECT_FALSE(user.IsUp());
  });
  EXPECT_EQ(code, 42);
}

TEST_F(RunTest, FromHandleKnowsOnlyRunningDialogs) {
  TestDialog dialog;
  WindowHandle handle = nullptr;
  WindowHandle control = nullptr;
  In(dialog, [&](User&) {
    handle = dialog.GetSafeHwnd();
    control = CWnd(dialog, 801).GetSafeHwnd();
    EXPECT_EQ(CDialog::FromHandle(control), nullptr);
  });
  EXPECT_EQ(CDialog::FromHandle(handle), nullptr);
  EXPECT_EQ(CDialog::FromHandle(nullptr), nullptr);
  EXPECT_FALSE(CWnd(handle).IsWindow());
  EXPECT_FALSE(CWnd(control).IsWindow());
}

TEST_F(RunTest, EndedByATimer) {
  TestDialog dialog;
  dialog.onTimer = [&](unsigned) { dialog.EndDialog(8); };
  const int code = RunDialog(dialog, [&](User& user) {
    dialog.SetTimer(1, 5);
    user.LeaveUp();
  });
  EXPECT_EQ(code, 8);
  EXPECT_EQ(dialog.log, (Log{"init", "timer 1"}));
}

TEST_F(RunTest, ATemplateThatIsNotThereFails) {
  TestDialog dialog(4711);
  EXPECT_EQ(dialog.DoModal(), CDialog::Failed);
  EXPECT_NE(CDialog::Failed, CDialog::Accepted);
  EXPECT_EQ(dialog.log, Log());
  EXPECT_FALSE(dialog.IsRunning());
}

// On Windows template 109 is there, with a control of a class that is not.
TEST_F(RunTest, ATemplateThatTheSystemRefusesFails) {
  TestDialog dialog(109);
  EXPECT_EQ(dialog.DoModal(), CDialog::Failed);
  EXPECT_EQ(dialog.log, Log());
}

TEST_F(RunTest, OfAModuleWithoutTemplatesNoDialogOpens) {
  tq::Resources resources;
  resources.module = ModuleWithoutDialogs();
  const tq::ResourceContext none(resources);
  TestDialog dialog;
  EXPECT_EQ(dialog.DoModal(), CDialog::Failed);
}

TEST_F(RunTest, ARunningDialogIsNotRunAgain) {
  TestDialog dialog;
  In(dialog, [&](User&) { EXPECT_EQ(dialog.DoModal(), CDialog::Failed); });
  EXPECT_EQ(dialog.log, Log());
}

TEST_F(RunTest, ADialogCanBeRunAgainAndStartsAnew) {
  TestDialog dialog;
  In(dialog, [&](User& user) {
    EXPECT_TRUE(user.Fill(741, "abc"));
    dialog.SetTimer(1, 100000);
  });
  In(dialog, [&](User& user) {
    EXPECT_EQ(user.Text(741), "");
    EXPECT_FALSE(dialog.KillTimer(1));
  });
}

TEST_F(RunTest, TheModalHandlerComesBehindTheMessagesOfOnInitDialog) {
  TestDialog dialog;
  dialog.onInit = [&] { dialog.Post(CWnd::kFirstMessage, 7); };
  Log seen;
  RunDialog(dialog, [&](User& user) {
    seen = dialog.log;
    EXPECT_TRUE(dialog.IsWindowVisible());
    user.Click(2);
  });
  EXPECT_EQ(seen, (Log{"init", "message 0 7 0"}));
}

TEST_F(RunTest, InOnInitDialogTheWindowIsHidden) {
  TestDialog dialog;
  bool visible = true;
  dialog.onInit = [&] { visible = dialog.IsWindowVisible(); };
  RunDialog(dialog, [](User& user) { user.Click(2); });
  EXPECT_FALSE(visible);
}

TEST_F(RunTest, ADialogWithoutControlsRuns) {
  TestDialog dialog(103);
  EXPECT_EQ(RunDialog(dialog, [](User& user) { user.CloseByTitleBar(); }), 2);
}

} // namespace
