// The stand-in's message boxes over a dialog on the screen, seen and answered by a timer of that
// dialog, which is served while a box is up.
#include <algorithm>
#include <functional>
#include <iterator>

#include <dlfcn.h>

#include "platform/framework/window/ResourceContext.h"
#include "platform/headless/Queue.h"
#include "platform/interface/TQSymbolStrings.h"
#include "platform/services/tqCommon.h"
#include "tests/support/StandInTest.h"
#include "tests/support/User.h"

namespace {

constexpr int kOpener = 1;
constexpr int kText = 100; // the label of a box
constexpr int kOk = 1;
constexpr int kCancel = 2;
constexpr int kYes = 6;
constexpr int kNo = 7;
constexpr unsigned kMilliseconds = 20;

constexpr tq::TemplateRow kRows[] = {
    {tq::ControlKind::Dialog, kOpener, 0, 0, 80, 40, 0, "opener", "opener"},
    {tq::ControlKind::Button, kOk, 10, 10, 50, 14, 0, "OK", "OK"},
};

tq::Resources OpenerResources() {
  tq::Resources resources;
  resources.rows = kRows;
  resources.rowCount = std::size(kRows);
  return resources;
}

// Asks when it has opened, answers in the box, and ends.
class Opener : public CDialog {
public:
  Opener(std::function<void()> ask, std::function<void(User& box)> answer)
      : CDialog(kOpener), ask_(std::move(ask)), answer_(std::move(answer)) {}

protected:
  bool OnInitDialog() override {
    Post(kFirstMessage);
    SetTimer(1, kMilliseconds);
    return true;
  }
  intptr_t OnMessage(unsigned, intptr_t, intptr_t) override {
    ask_();
    EndDialog(Accepted);
    return 0;
  }
  void OnTimer(unsigned) override {
    CDialog* const innermost = tq::headless::Running().back()->object;
    if (innermost == this)
      return;
    KillTimer(1);
    User box(*innermost);
    answer_(box);
  }

private:
  std::function<void()> ask_;
  std::function<void(User& box)> answer_;
};

class BoxTest : public StandInTest {
protected:
  BoxTest() {
    standin::ShowMessages(true);
    standin::AnswerMessages(kOrdered);
  }

  // What the message box answers to a user who does this in it.
  static int Answer(const std::string& utf8, unsigned type, std::function<void(User& box)> user) {
    return AnswerOf([&] { return tqShowMessageStr(standin::ToAnsi(utf8).c_str(), type); },
                    std::move(user));
  }
  static int AnswerOf(const std::function<int()>& show, std::function<void(User& box)> user) {
    const tq::ResourceContext context(OpenerResources());
    int pressed = -1;
    Opener opener([&] { pressed = show(); }, std::move(user));
    EXPECT_EQ(opener.DoModal(), CDialog::Accepted);
    return pressed;
  }

  static constexpr int kOrdered = 99; // no box's button
};

TEST_F(BoxTest, TheAnswerIsTheButtonThatIsPressed) {
  const struct {
    unsigned type;
    std::vector<int> buttons;
  } kTypes[] = {{0, {kOk}}, {1, {kOk, kCancel}}, {3, {kYes, kNo, kCancel}}, {4, {kYes, kNo}}};
  for (const auto& each : kTypes) {
    for (const int button : each.buttons)
      EXPECT_EQ(Answer("text", each.type, [=](User& box) { box.Click(button); }), button);
  }
}

TEST_F(BoxTest, AnEntryOfTheModuleIsShownInTheLanguageOfTheInterface) {
  Dl_info module{};
  ASSERT_NE(::dladdr(reinterpret_cast<const void*>(&tqSymbolString), &module), 0);
  constexpr unsigned kDeleteList = 48012;
  std::string seen;
  const int pressed = AnswerOf([&] { return tqShowDllMessage(module.dli_fbase, kDeleteList, 4); },
                               [&seen](User& box) {
                                 seen = box.Text(kText);
                                 box.Click(kNo);
                               });
  EXPECT_EQ(pressed, kNo);
  EXPECT_EQ(seen, tqSymbolString(kDeleteList, IsTraditionChinese()));
}

TEST_F(BoxTest, EscapeMeansCancelOrTheOnlyButton) {
  const auto escape = [](User& box) { box.Press(WindowKey::Escape); };
  EXPECT_EQ(Answer("text", 0, escape), kOk);
  EXPECT_EQ(Answer("text", 1, escape), kCancel);
  EXPECT_EQ(Answer("text", 3, escape), kCancel);
}

TEST_F(BoxTest, AQuestionOfYesAndNoIsToBeAnswered) {
  bool stayed = false;
  const int pressed = Answer("text", 4, [&stayed](User& box) {
    box.Press(WindowKey::Escape);
    box.CloseByTitleBar();
    stayed = box.IsUp();
    box.PressLetter('Y');
  });
  EXPECT_EQ(pressed, kYes);
  EXPECT_TRUE(stayed);
}

TEST_F(BoxTest, LongTextsAreBrokenBehindBlanksAndCommas) {
  const std::string id = "1234567890.TWABCDEF,"; // two of them fit in a line, and half a third
  std::string seen;
  const auto look = [&seen](User& box) {
    seen = box.Text(kText);
    box.Click(kOk);
  };
  Answer("A & B\n" + id + id + id, 0, look);
  EXPECT_EQ(seen, "A && B\n" + id + id + "\n" + id);
  std::string chinese;
  for (int i = 0; i < 30; ++i)
    chinese += "商";
  Answer(chinese, 0, look);
  EXPECT_EQ(seen, chinese.substr(0, 26 * 3) + "\n" + chinese.substr(26 * 3));
}

TEST_F(BoxTest, ABoxIsNotHigherThanAScreen) {
  std::string many;
  for (int i = 0; i < 1000; ++i)
    many += "line\n";
  std::string seen;
  Answer(many, 0, [&seen](User& box) {
    seen = box.Text(kText);
    box.Click(kOk);
  });
  EXPECT_EQ(std::count(seen.begin(), seen.end(), '\n'), 23);
  EXPECT_EQ(seen.substr(seen.rfind('\n')), "\n...");
}

TEST_F(BoxTest, HandlersOfTheDialogBehindHaveTheirResources) {
  const tq::TemplateRow* rows = nullptr;
  Answer("text", 0, [&rows](User& box) {
    rows = tq::ResourceContext::Current().rows;
    box.Click(kOk);
  });
  EXPECT_EQ(rows, kRows);
}

// The script that waits for a dialog of the library's is still there when the box was answered.
TEST_F(BoxTest, ABoxTakesNoScriptOfADialog) {
  const tq::ResourceContext context(OpenerResources());
  int pressed = -1;
  size_t unused = 0;
  const auto ask = [&] {
    WhenDialogOpens([](User& user) { user.LeaveUp(); });
    pressed = tqShowMessageStr("text", 4);
    unused = TakeUnusedScripts();
  };
  Opener opener(ask, [](User& box) { box.Click(kNo); });
  opener.DoModal();
  EXPECT_EQ(pressed, kNo);
  EXPECT_EQ(unused, 1u);
}

TEST_F(BoxTest, WithoutADialogItIsAnsweredAsOrdered) {
  EXPECT_EQ(tqShowMessageStr("text", 4), kOrdered);
}

TEST_F(BoxTest, WithoutATextItIsAnsweredAsOrdered) {
  const auto none = [](User& box) { box.Click(kOk); };
  EXPECT_EQ(AnswerOf([] { return tqShowDllMessage(nullptr, 48012, 0); }, none), kOrdered);
  EXPECT_EQ(AnswerOf([] { return tqShowMessageStr("", 0); }, none), kOrdered);
}

TEST_F(BoxTest, NoneIsShownUnlessAskedFor) {
  standin::ShowMessages(false);
  EXPECT_EQ(Answer("text", 4, [](User& box) { box.Click(kNo); }), kOrdered);
}

} // namespace
