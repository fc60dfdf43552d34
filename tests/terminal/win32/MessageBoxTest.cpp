// Message boxes on the screen, seen and answered by a timer, which the boxes' own loops serve.
#include <windows.h>

#include "platform/Module.h"
#include "platform/interface/TQSymbolStrings.h"
#include "platform/services/tqCommon.h"
#include "platform/services/tqUtil.h"
#include "tests/support/StandInTest.h"

namespace {

// Of the first label that has a text: the one beside it shows a picture.
std::wstring TextOf(HWND box) {
  wchar_t text[256] = {};
  for (HWND label = nullptr; text[0] == L'\0';) {
    label = ::FindWindowExW(box, label, L"Static", nullptr);
    if (label == nullptr)
      break;
    ::GetWindowTextW(label, text, 256);
  }
  return text;
}

class ShownMessage : public StandInTest {
protected:
  ShownMessage() {
    pressed_ = IDYES;
    texts_.clear();
    standin::ShowMessages(true);
    timer_ = ::SetTimer(nullptr, 0, kMilliseconds, Answer);
  }
  ~ShownMessage() override { ::KillTimer(nullptr, timer_); }

  // Which button is pressed in every box, and the texts of the boxes so far.
  static int pressed_;
  static std::vector<std::wstring> texts_;

private:
  static constexpr UINT kMilliseconds = 20;

  static void CALLBACK Answer(HWND, UINT, UINT_PTR, DWORD) {
    const HWND box = ::GetActiveWindow();
    if (box == nullptr)
      return;
    texts_.push_back(TextOf(box));
    if (const HWND button = ::GetDlgItem(box, pressed_))
      ::SendMessageW(button, BM_CLICK, 0, 0);
    else
      ::EndDialog(box, 0);
  }

  UINT_PTR timer_;
};

int ShownMessage::pressed_ = 0;
std::vector<std::wstring> ShownMessage::texts_;

std::wstring Wide(UINT codePage, const char* text) {
  wchar_t wide[256] = {};
  ::MultiByteToWideChar(codePage, 0, text, -1, wide, 256);
  return wide;
}

TEST_F(ShownMessage, TheAnswerIsTheButtonThatIsPressed) {
  standin::AnswerMessages(IDNO);
  EXPECT_EQ(tqShowMessageStr("text", MB_YESNO), IDYES);
  pressed_ = IDCANCEL;
  EXPECT_EQ(tqShowMessageStr("text", MB_YESNOCANCEL), IDCANCEL);
  EXPECT_EQ(standin::Messages().size(), 2u);
}

TEST_F(ShownMessage, AnEntryOfTheModuleIsShownInTheLanguageOfTheInterface) {
  for (const bool traditional : {true, false}) {
    standin::SetTraditional(traditional);
    EXPECT_EQ(tqShowDllMessage(tq::OwnModule(), 48012, MB_YESNO), IDYES);
    ASSERT_FALSE(texts_.empty());
    EXPECT_EQ(texts_.back(), Wide(CP_UTF8, tqSymbolString(48012, traditional ? 1 : 0)));
  }
}

TEST_F(ShownMessage, ATextIsShownAsItIs) {
  const std::string text = standin::ToAnsi("許功蓋") + " 100%s";
  EXPECT_EQ(tqShowMessageStr(text.c_str(), MB_YESNO), IDYES);
  ASSERT_EQ(texts_.size(), 1u);
  EXPECT_EQ(texts_[0], Wide(CP_ACP, text.c_str()));
}

TEST_F(ShownMessage, ARefusedFileNameIsShownToo) {
  pressed_ = IDOK;
  EXPECT_EQ(CCheckFileName::IsValidName(nullptr, "a/b", 1), 0);
  EXPECT_EQ(texts_.size(), 1u);
}

TEST_F(ShownMessage, AMessageWithoutATextIsAnsweredAsOrdered) {
  standin::AnswerMessages(IDNO);
  EXPECT_EQ(tqShowDllMessage(tq::OwnModule(), 1, MB_YESNO), IDNO);
  EXPECT_EQ(tqShowMessageStr("", MB_YESNO), IDNO);
  EXPECT_TRUE(texts_.empty());
}

TEST_F(ShownMessage, NoneIsShownUnlessAskedFor) {
  standin::Reset();
  standin::AnswerMessages(IDNO);
  EXPECT_EQ(tqShowMessageStr("text", MB_YESNO), IDNO);
  EXPECT_TRUE(texts_.empty());
}

} // namespace
