// What a host with Qt, and one without, may rely on beside the window layer's own contract.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QEventLoop>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

#include <clocale>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CEdit.h"
#include "platform/framework/window/WindowKind.h"
#include "platform/services/tqCommon.h"
#include "tests/window/WindowTest.h"

namespace {

constexpr int kEdit = 741;

WindowHandle HandleOf(const QWidget& widget) {
  return reinterpret_cast<WindowHandle>(widget.winId());
}

// The only window of Qt's that is visible and not the host's.
QWidget* DialogWindow(const QWidget* host = nullptr) {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (widget != host && widget->isVisible())
      return widget;
  }
  return nullptr;
}

class Host {
public:
  Host() : application_(count_, arguments_) {
    QApplication::setQuitOnLastWindowClosed(false);
    window_.show();
  }
  QMainWindow& Window() { return window_; }

private:
  char name_[5] = "host";
  char* arguments_[2] = {name_, nullptr};
  int count_ = 1;
  QApplication application_;
  QMainWindow window_;
};

// The only one of the dialog that is enabled.
QComboBox& ComboOf(const QWidget& dialog) {
  for (QComboBox* const combo : dialog.findChildren<QComboBox*>()) {
    if (combo->isEnabled())
      return *combo;
  }
  throw std::logic_error("there is no combo box");
}

class ScreenTest : public WindowTest {};

TEST_F(ScreenTest, WithoutAnApplicationThereIsOneWhileDialogsRun) {
  ASSERT_EQ(QCoreApplication::instance(), nullptr);
  InDialog([](User&, TestDialog&) {
    EXPECT_NE(QCoreApplication::instance(), nullptr);
    EXPECT_TRUE(tq::WindowsOnScreen());
    EXPECT_NE(DialogWindow(), nullptr);
  });
  EXPECT_EQ(QCoreApplication::instance(), nullptr);
  EXPECT_FALSE(tq::WindowsOnScreen());
}

TEST_F(ScreenTest, TheLocaleOfTheProcessStays) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  InDialog([&](User&, TestDialog&) { EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before); });
}

TEST_F(ScreenTest, AHostKeepsItsApplication) {
  const Host host;
  const QCoreApplication* const application = QCoreApplication::instance();
  InDialog([&](User&, TestDialog&) { EXPECT_EQ(QCoreApplication::instance(), application); });
  EXPECT_EQ(QCoreApplication::instance(), application);
}

TEST_F(ScreenTest, TheHostsWindowTakesNoInputMeanwhile) {
  Host host;
  const CWnd parent(HandleOf(host.Window()));
  TestDialog dialog(100, &parent);
  In(dialog, [&](User&) {
    EXPECT_TRUE(parent.IsWindow());
    EXPECT_EQ(QApplication::activeModalWidget(), DialogWindow(&host.Window()));
  });
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(ScreenTest, AParentThatIsDestroyedCancelsTheDialog) {
  const Host host;
  auto window = std::make_unique<QMainWindow>();
  window->show();
  const CWnd parent(HandleOf(*window));
  TestDialog dialog(100, &parent);
  const int code = RunDialog(dialog, [&](User& user) {
    user.LeaveUp();
    window.reset();
    EXPECT_FALSE(user.IsUp());
  });
  EXPECT_EQ(code, CDialog::Cancelled);
  EXPECT_FALSE(parent.IsWindow());
}

TEST_F(ScreenTest, AHandleThatIsNoWindowIsNoParent) {
  const CWnd parent(reinterpret_cast<WindowHandle>(0x7777));
  TestDialog dialog(100, &parent);
  In(dialog, [&](User&) { EXPECT_FALSE(parent.IsWindow()); });
}

TEST_F(ScreenTest, AnApplicationWithoutWidgetsHasNoScreen) {
  int count = 1;
  char name[] = "host";
  char* arguments[] = {name, nullptr};
  const QCoreApplication application(count, arguments);
  TestDialog dialog;
  EXPECT_EQ(dialog.DoModal(), CDialog::Failed);
  EXPECT_NE(std::string(tq::WindowsMissing()), "");
}

TEST_F(ScreenTest, AnotherThreadThanTheApplicationsHasNoScreen) {
  const Host host;
  int code = 0;
  std::thread([&] {
    const tq::ResourceContext context(TestResources());
    TestDialog dialog;
    code = dialog.DoModal();
  }).join();
  EXPECT_EQ(code, CDialog::Failed);
}

// As a menu or a message box of the host's runs one.
TEST_F(ScreenTest, MessagesAndTimersArriveInALoopOfTheHosts) {
  const Host host;
  InDialog([](User&, TestDialog& dialog) {
    QEventLoop loop;
    int seen = 0;
    dialog.onMessage = [&](unsigned, intptr_t, intptr_t) -> intptr_t { return ++seen; };
    dialog.onTimer = [&](unsigned) {
      if (++seen == 3)
        loop.quit();
    };
    dialog.SetTimer(1, 5);
    QTimer::singleShot(5000, &loop, &QEventLoop::quit);
    dialog.Post(CWnd::kFirstMessage);
    loop.exec();
    EXPECT_EQ(seen, 3);
  });
}

TEST_F(ScreenTest, TheHostsTimersGoOn) {
  const Host host;
  InDialog([](User& user, TestDialog&) {
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(1);
    EXPECT_TRUE(user.WaitFor([&] { return ticks > 2; }));
  });
}

TEST_F(ScreenTest, TheHostsShortcutsAreNotForTheDialog) {
  Host host;
  int pressed = 0;
  QShortcut shortcut(QKeySequence(Qt::Key_F2), &host.Window());
  shortcut.setContext(Qt::ApplicationShortcut);
  QObject::connect(&shortcut, &QShortcut::activated, [&] { ++pressed; });
  InDialog([&](User& user, TestDialog& dialog) {
    bool heard = false;
    dialog.onKey = [&](int, WindowKey key, WindowHeldKeys) {
      heard = key == WindowKey::F2;
      return heard;
    };
    user.Click(kEdit);
    QTest::keyClick(DialogWindow(&host.Window())->windowHandle(), Qt::Key_F2);
    EXPECT_TRUE(heard);
  });
  EXPECT_EQ(pressed, 0);
}

QLineEdit& LineOf(User& user) {
  user.Click(kEdit);
  return *qobject_cast<QLineEdit*>(DialogWindow()->focusWidget());
}

TEST_F(ScreenTest, WhatAnInputMethodCommitsIsBounded) {
  InDialog([](User& user, TestDialog& dialog) {
    CEdit(dialog, kEdit).SetLimitText(5);
    QLineEdit& line = LineOf(user);
    QInputMethodEvent commit;
    commit.setCommitString(QString::fromStdU16String(u"一二三"));
    QApplication::sendEvent(&line, &commit);
    EXPECT_EQ(user.Text(kEdit), "一二");
    EXPECT_EQ(CEdit(dialog, kEdit).GetText().GetLength(), 4);
  });
}

TEST_F(ScreenTest, WhatIsPastedIsBoundedAndOneLine) {
  InDialog([](User& user, TestDialog& dialog) {
    CEdit(dialog, kEdit).SetLimitText(5);
    QLineEdit& line = LineOf(user);
    QApplication::clipboard()->setText(QString::fromStdU16String(u"一二三\n四"));
    QKeyEvent paste(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
    QApplication::sendEvent(&line, &paste);
    EXPECT_EQ(user.Text(kEdit), "一二");
    QApplication::clipboard()->setText(QString::fromStdU16String(u"a\nb"));
    line.selectAll();
    QApplication::sendEvent(&line, &paste);
    EXPECT_EQ(user.Text(kEdit), "a");
  });
}

// A character that users define, and a half one: a name that holds them does not lose them to an
// edit.
TEST_F(ScreenTest, WhatTheTablesDoNotKnowStaysWhereTheUserTypesBesideIt) {
  InDialog([](User& user, TestDialog& dialog) {
    const CString own(IsTraditionChinese() != 0 ? "a\xFA\x40"
                                                  "b\xFF"
                                                : "a\xAA\xA1"
                                                  "b\xFF");
    CEdit edit(dialog, kEdit);
    edit.SetLimitText(8);
    edit.SetText(own);
    user.Click(kEdit);
    user.Press(WindowKey::End);
    EXPECT_TRUE(user.Type("cdef"));
    EXPECT_EQ(edit.GetText(), own + "cde");
    EXPECT_TRUE(user.Type("\b\b\b\b\b\b"));
    EXPECT_EQ(edit.GetText(), "a");
  });
}

TEST_F(ScreenTest, ALongTextStaysWhole) {
  InDialog([](User& user, TestDialog& dialog) {
    const CString text(std::string(40000, 'x').c_str());
    CEdit edit(dialog, kEdit);
    edit.SetText(text);
    user.Click(kEdit);
    user.Press(WindowKey::End);
    EXPECT_TRUE(user.Type("y"));
    EXPECT_EQ(edit.GetText(), text + "y");
  });
}

TEST_F(ScreenTest, WhatIsPastedMakesNoBytesOfItsOwn) {
  InDialog([](User& user, TestDialog&) {
    QLineEdit& line = LineOf(user);
    QApplication::clipboard()->setText(QString::fromStdU32String(U"a\U000FFA40"));
    QKeyEvent paste(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
    QApplication::sendEvent(&line, &paste);
    EXPECT_EQ(user.Text(kEdit), "a?");
  });
}

TEST_F(ScreenTest, ACharacterThatTheCodePageLacksIsAQuestionMark) {
  InDialog([](User& user, TestDialog&) {
    QLineEdit& line = LineOf(user);
    QInputMethodEvent commit;
    commit.setCommitString(QString::fromStdU32String(U"\U0001F600a"));
    QApplication::sendEvent(&line, &commit);
    EXPECT_EQ(user.Text(kEdit), "?a");
  });
}

TEST_F(ScreenTest, TheWheelTurnsAComboBoxThatHasTheFocusOnly) {
  InDialog([](User& user, TestDialog& dialog) {
    CComboBox combo(dialog, 761);
    for (const char* const entry : {"one", "two", "three"})
      combo.AddString(entry);
    user.Click(kEdit);
    QComboBox& box = ComboOf(*DialogWindow());
    const auto turn = [&box] {
      QWheelEvent down(box.rect().center(), box.mapToGlobal(box.rect().center()), QPoint(),
                       QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
      QApplication::sendEvent(&box, &down);
    };
    turn();
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_TRUE(user.Select(761, 0));
    turn();
    EXPECT_EQ(combo.GetCurSel(), 1);
  });
}

TEST_F(ScreenTest, TheTipOfAControlIsShownAndTakenBack) {
  InDialog([](User&, TestDialog& dialog) {
    const auto tip = [] { return ComboOf(*DialogWindow()).toolTip().toStdString(); };
    dialog.SetToolTip(761, Ansi("一"));
    actions::Settle();
    EXPECT_EQ(tip(), "一");
    dialog.SetToolTip(761, "");
    actions::Settle();
    EXPECT_EQ(tip(), "");
  });
}

TEST_F(ScreenTest, TheWaitCursorIsShownAndTakenBack) {
  InDialog([](User&, TestDialog&) {
    SetWindowCursor(WindowCursor::Wait);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    SetWindowCursor(WindowCursor::Arrow);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  });
}

} // namespace
