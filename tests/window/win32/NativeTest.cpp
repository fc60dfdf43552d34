// Only for real windows.
#include "tests/window/WindowTest.h"

#include <windows.h>

#include <commctrl.h>

#include <thread>

#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CEdit.h"
#include "platform/framework/window/CListCtrl.h"

namespace {

class NativeTest : public WindowTest {};

TEST_F(NativeTest, ADialogWhoseWindowIsDestroyedEndsAsCancelled) {
  TestDialog dialog(101);
  const int code = RunDialog(dialog, [&](User&) { ::DestroyWindow(dialog.GetSafeHwnd()); });
  EXPECT_EQ(code, CDialog::Cancelled);
  EXPECT_EQ(dialog.log, Log{"init"});
  EXPECT_FALSE(dialog.IsRunning());
}

constexpr UINT kDestroyYourself = WM_APP;

LRESULT CALLBACK OwnerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == kDestroyYourself)
    return ::DestroyWindow(window);
  return ::DefWindowProcW(window, message, wParam, lParam);
}

// Symptom: the run's loop slept on, because a message sent from another thread does not wake it.
TEST_F(NativeTest, ADialogWhoseOwnerIsDestroyedByASentMessageReturns) {
  constexpr DWORD kTooLong = 5000;
  const HWND owner = ::CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9,
                                       nullptr, nullptr, nullptr, nullptr);
  ::SetWindowLongPtrW(owner, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OwnerProc));
  const CWnd parent(owner);
  TestDialog dialog(101, &parent);
  const DWORD thread = ::GetCurrentThreadId();
  const HANDLE returned = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
  bool woken = false;
  std::thread other;
  const int code = RunDialog(dialog, [&](User& user) {
    user.LeaveUp();
    other = std::thread([&] {
      ::Sleep(100); // the loop is waiting by now
      ::SendMessageW(owner, kDestroyYourself, 0, 0);
      woken = ::WaitForSingleObject(returned, kTooLong) == WAIT_OBJECT_0;
      ::PostThreadMessageW(thread, WM_NULL, 0, 0);
    });
  });
  ::SetEvent(returned);
  other.join();
  ::CloseHandle(returned);
  EXPECT_EQ(code, CDialog::Cancelled);
  EXPECT_TRUE(woken);
  EXPECT_EQ(dialog.log, Log{"init"});
}

// Changes by the program make no event. Symptom: a dialog that a handler opened meanwhile heard
// none either.
TEST_F(NativeTest, ADialogThatOpensWhileARowIsDrawnHearsItsUser) {
  InDialog([](User&, TestDialog& dialog) {
    TestDialog inner(101, &dialog);
    bool opened = false;
    dialog.onItemLook = [&](int, int, WindowItemLook&) {
      if (opened)
        return;
      opened = true;
      WhenDialogOpens([&](User& user) {
        CComboBox(inner, 761).AddString("A");
        EXPECT_TRUE(user.Select(761, 0));
        EXPECT_TRUE(user.Press(WindowKey::Escape));
        if (user.IsUp())
          inner.EndDialog(9);
      });
      inner.DoModal();
    };
    CListBox box(dialog, 783);
    box.AddString("row");
    box.SetCurSel(0);
    ::UpdateWindow(box.GetSafeHwnd());
    EXPECT_TRUE(opened);
    EXPECT_EQ(inner.log, (Log{"init", "761 selection", "cancel"}));
    EXPECT_EQ(dialog.log, Log());
  });
}

TEST_F(NativeTest, TheProgramsEndEndsTheDialogAndIsPassedOn) {
  TestDialog dialog(101);
  const int code = RunDialog(dialog, [&](User& user) {
    ::PostQuitMessage(5);
    user.LeaveUp();
  });
  EXPECT_EQ(code, CDialog::Cancelled);
  MSG message{};
  EXPECT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 5U);
}

// The parent is the terminal's own window or a control in it.
TEST_F(NativeTest, AForeignParentIsDisabledWhileTheDialogIsUp) {
  const HWND top = ::CreateWindowExW(0, L"Static", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 90,
                                     90, nullptr, nullptr, nullptr, nullptr);
  const HWND child = ::CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE, 0, 0, 9, 9, top,
                                       nullptr, nullptr, nullptr);
  const CWnd parent(child);
  TestDialog dialog(101, &parent);
  In(dialog, [&](User&) {
    EXPECT_FALSE(::IsWindowEnabled(top));
    EXPECT_EQ(::GetWindow(dialog.GetSafeHwnd(), GW_OWNER), top);
  });
  EXPECT_TRUE(::IsWindowEnabled(top));
  ::EnableWindow(top, FALSE);
  In(dialog, [](User&) {});
  EXPECT_FALSE(::IsWindowEnabled(top)); // as it was before
  ::DestroyWindow(top);
}

TEST_F(NativeTest, ForeignWindowsAreNoDialogsOfThisLayer) {
  const HWND top = ::CreateWindowExW(0, L"Static", L"text", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr,
                                     nullptr, nullptr);
  const CWnd window(top);
  EXPECT_EQ(CDialog::FromHandle(top), nullptr);
  EXPECT_TRUE(window.IsWindow());
  EXPECT_EQ(window.GetText(), "text");
  EXPECT_FALSE(window.Post(CWnd::kFirstMessage));
  ::DestroyWindow(top);
  EXPECT_FALSE(window.IsWindow());
}

TEST_F(NativeTest, TableStylesReachTheControl) {
  InDialog([](User&, TestDialog& dialog) {
    CListCtrl table(dialog, 791);
    table.SetStyles(CListCtrl::FullRowSelect | CListCtrl::GridLines | CListCtrl::HoverSelect);
    EXPECT_EQ(::SendMessageW(table.GetSafeHwnd(), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0),
              LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_TRACKSELECT);
    EXPECT_EQ(table.AddColumn("a", 40), 0);
    EXPECT_EQ(table.AddColumn("rest", 0), 1);
    const LRESULT first = ::SendMessageW(table.GetSafeHwnd(), LVM_GETCOLUMNWIDTH, 0, 0);
    const LRESULT second = ::SendMessageW(table.GetSafeHwnd(), LVM_GETCOLUMNWIDTH, 1, 0);
    EXPECT_GT(first, 0);
    EXPECT_GT(second, first);
  });
}

void PutOnClipboard(const std::wstring& text) {
  const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(::GlobalLock(block), text.c_str(), bytes);
  ::GlobalUnlock(block);
  ASSERT_TRUE(::OpenClipboard(nullptr));
  ::EmptyClipboard();
  ::SetClipboardData(CF_UNICODETEXT, block);
  ::CloseClipboard();
}

TEST_F(NativeTest, PastingKeepsToTheLimitByWholeCharacters) {
  InDialog([](User& user, TestDialog& dialog) {
    CEdit edit(dialog, 741);
    edit.SetLimitText(5);
    edit.SetFocus();
    PutOnClipboard(L"a\u4E00\u4E01\u4E09"); // 1 + 2 + 2 + 2 bytes
    ::SendMessageW(edit.GetSafeHwnd(), WM_PASTE, 0, 0);
    EXPECT_EQ(user.Text(741), "a一丁");
    ::SendMessageW(edit.GetSafeHwnd(), WM_PASTE, 0, 0);
    EXPECT_EQ(user.Text(741), "a一丁");
    edit.SelectAll();
    ::SendMessageW(edit.GetSafeHwnd(), WM_PASTE, 0, 0);
    EXPECT_EQ(user.Text(741), "a一丁");
  });
}

HWND TipsOf(const CDialog& dialog) {
  HWND tips = nullptr;
  while ((tips = ::FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr)) != nullptr &&
         ::GetWindow(tips, GW_OWNER) != dialog.GetSafeHwnd()) {
  }
  return tips;
}

TEST_F(NativeTest, ToolTipsReachTheirWindow) {
  InDialog([](User&, TestDialog& dialog) {
    dialog.SetToolTip(801, "one");
    dialog.SetToolTip(804, "two");
    dialog.SetToolTip(804, "three");
    const HWND tips = TipsOf(dialog);
    ASSERT_NE(tips, nullptr);
    EXPECT_EQ(::SendMessageW(tips, TTM_GETTOOLCOUNT, 0, 0), 2);
  });
}

// As the tip window asks when the mouse rests.
std::string TipUnderTheMouse(const CDialog& dialog, HWND box, int row) {
  RECT place{};
  ::SendMessageW(box, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
  POINT middle{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  ::ClientToScreen(box, &middle);
  ::SetCursorPos(middle.x, middle.y);
  NMTTDISPINFOW asked{};
  asked.hdr = {TipsOf(dialog), reinterpret_cast<UINT_PTR>(box), TTN_GETDISPINFOW};
  asked.lpszText = asked.szText;
  ::SendMessageW(dialog.GetSafeHwnd(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&asked));
  ::SetCursorPos(0, 0);
  std::string text;
  for (const wchar_t* at = asked.lpszText; *at != L'\0'; ++at)
    text += static_cast<char>(*at);
  return text;
}

TEST_F(NativeTest, TheTipOfARowIsThatUnderTheMouse) {
  InDialog([](User&, TestDialog& dialog) {
    CListBox box(dialog, 781);
    box.AddString("short");
    box.AddString(CString('x', 60));
    box.AddString(CString('y', 70));
    box.SetRowTips(true);
    ASSERT_NE(TipsOf(dialog), nullptr);
    EXPECT_EQ(::SendMessageW(TipsOf(dialog), TTM_GETTOOLCOUNT, 0, 0), 1);
    EXPECT_EQ(TipUnderTheMouse(dialog, box.GetSafeHwnd(), 0), "");
    EXPECT_EQ(TipUnderTheMouse(dialog, box.GetSafeHwnd(), 1), std::string(60, 'x'));
    EXPECT_EQ(TipUnderTheMouse(dialog, box.GetSafeHwnd(), 2), std::string(70, 'y'));
    box.SetRowTips(false);
    EXPECT_EQ(::SendMessageW(TipsOf(dialog), TTM_GETTOOLCOUNT, 0, 0), 0);
  });
}

// The mouse comes to rest on a control for as long as a timer of the dialog takes.
bool ShowsItsTip(TestDialog& dialog, HWND control) {
  constexpr int kInside = 3;
  const HWND tips = TipsOf(dialog);
  ::SendMessageW(tips, TTM_SETDELAYTIME, TTDT_INITIAL, 1);
  POINT point{kInside, kInside};
  ::ClientToScreen(control, &point);
  ::SetCursorPos(point.x, point.y);
  ::PostMessageW(control, WM_MOUSEMOVE, 0, MAKELPARAM(kInside, kInside));
  bool rested = false;
  dialog.onTimer = [&rested](unsigned) { rested = true; };
  dialog.SetTimer(1, 150);
  while (!rested && ::IsWindowVisible(tips) == FALSE && actions::ServeNext()) {
  }
  dialog.KillTimer(1);
  dialog.onTimer = nullptr;
  const bool shown = ::IsWindowVisible(tips) != FALSE;
  ::SendMessageW(tips, TTM_POP, 0, 0);
  ::SetCursorPos(0, 0);
  return shown;
}

TEST_F(NativeTest, TipsAppearWhereTheMouseRests) {
  InDialog([](User&, TestDialog& dialog) {
    const HWND button = CWnd(dialog, 801).GetSafeHwnd();
    dialog.SetToolTip(801, "one");
    EXPECT_TRUE(ShowsItsTip(dialog, button));
    EXPECT_FALSE(ShowsItsTip(dialog, CWnd(dialog, 804).GetSafeHwnd()));
    dialog.SetToolTip(801, "");
    EXPECT_FALSE(ShowsItsTip(dialog, button));
    CListBox box(dialog, 781);
    box.AddString(CString('x', 60));
    box.SetRowTips(true);
    EXPECT_TRUE(ShowsItsTip(dialog, box.GetSafeHwnd()));
  });
}

TEST_F(NativeTest, TheWaitCursorIsTheSystems) {
  SetWindowCursor(WindowCursor::Wait);
  EXPECT_EQ(::GetCursor(), ::LoadCursorA(nullptr, IDC_WAIT));
  SetWindowCursor(WindowCursor::Arrow);
  EXPECT_EQ(::GetCursor(), ::LoadCursorA(nullptr, IDC_ARROW));
}

TEST_F(NativeTest, OwnerDrawnRowsAskForTheirLook) {
  InDialog([](User&, TestDialog& dialog) {
    int asked = 0;
    dialog.onItemLook = [&](int id, int row, WindowItemLook& look) {
      EXPECT_EQ(id, 783);
      EXPECT_EQ(row, 0);
      look.bold = look.marked = true;
      ++asked;
    };
    CListBox box(dialog, 783);
    box.AddString(TrickyText());
    actions::Settle();
    EXPECT_GT(asked, 0);
    const int before = asked;
    box.RedrawItems();
    actions::Settle();
    EXPECT_GT(asked, before);
  });
}

} // namespace
