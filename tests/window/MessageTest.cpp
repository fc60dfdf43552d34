#include "tests/window/WindowTest.h"

namespace {

class MessageTest : public WindowTest {};

constexpr unsigned kCode = CWnd::kFirstMessage;

TEST_F(MessageTest, PostedMessagesComeInOrderAfterTheHandler) {
  InDialog([](User& user, TestDialog& dialog) {
    dialog.onCommand = [&](int, WindowEvent) {
      EXPECT_TRUE(dialog.Post(kCode, 1, 2));
      EXPECT_TRUE(dialog.Post(kCode + 1, -3, INTPTR_MAX));
      dialog.log.push_back("handler ends");
    };
    user.Click(801);
    EXPECT_EQ(dialog.log, (Log{"801 clicked", "handler ends", "message 0 1 2",
                               "message 1 -3 " + std::to_string(INTPTR_MAX)}));
  });
}

TEST_F(MessageTest, SendCallsAtOnceAndAnswers) {
  InDialog([](User&, TestDialog& dialog) {
    dialog.onMessage = [](unsigned, intptr_t first, intptr_t second) { return first * second; };
    EXPECT_EQ(dialog.Send(kCode, 6, -7), -42);
    EXPECT_EQ(CWnd(dialog.GetSafeHwnd()).Send(CWnd::kLastMessage, 2, 3), 6);
    EXPECT_EQ(dialog.log.size(), 2U);
  });
}

TEST_F(MessageTest, CodesOutOfRangeAreRefused) {
  InDialog([](User&, TestDialog& dialog) {
    for (const unsigned code : {0U, 0x400U, CWnd::kFirstMessage - 1, CWnd::kLastMessage + 1, ~0U}) {
      EXPECT_FALSE(dialog.Post(code));
      EXPECT_EQ(dialog.Send(code), 0);
    }
    actions::Settle();
    EXPECT_EQ(dialog.log, Log());
    EXPECT_TRUE(dialog.Post(CWnd::kLastMessage));
    actions::Settle();
    EXPECT_EQ(dialog.log.size(), 1U);
  });
}

TEST_F(MessageTest, OnlyRunningDialogsTakeMessages) {
  TestDialog idle;
  EXPECT_FALSE(idle.Post(kCode));
  EXPECT_EQ(idle.Send(kCode), 0);
  EXPECT_FALSE(CWnd().Post(kCode));
  InDialog([](User&, TestDialog& dialog) { EXPECT_FALSE(CWnd(dialog, 801).Post(kCode)); });
}

TEST_F(MessageTest, MessagesOfAnEndedDialogAreLost) {
  TestDialog dialog;
  RunDialog(dialog, [&](User&) {
    dialog.Post(kCode);
    dialog.EndDialog(1);
  });
  EXPECT_EQ(dialog.Take(), Log{"init"});
  In(dialog, [&](User&) { EXPECT_EQ(dialog.log, Log()); });
}

TEST_F(MessageTest, MessagesThatAreSentAfterTheEndAreStillAnswered) {
  TestDialog dialog;
  dialog.onMessage = [](unsigned, intptr_t, intptr_t) { return 5; };
  RunDialog(dialog, [&](User&) {
    dialog.EndDialog(1);
    EXPECT_TRUE(dialog.Post(kCode)); // is lost
    EXPECT_EQ(dialog.Send(kCode), 5);
  });
  EXPECT_EQ(dialog.Take(), (Log{"init", "message 0 0 0"}));
  EXPECT_FALSE(dialog.Post(kCode));
  EXPECT_EQ(dialog.Send(kCode), 0);
}

TEST_F(MessageTest, AMessageCanOpenADialogAndEndTheRun) {
  TestDialog dialog;
  TestDialog inner(101, &dialog);
  dialog.onMessage = [&](unsigned, intptr_t, intptr_t) -> intptr_t {
    return dialog.EndDialog(inner.DoModal() + 100), 0;
  };
  WhenDialogOpens([&](User& user) {
    WhenDialogOpens([](User& innerUser) { innerUser.Press(WindowKey::Enter); });
    dialog.Post(kCode);
    user.LeaveUp();
  });
  EXPECT_EQ(dialog.DoModal(), 101);
}

} // namespace
