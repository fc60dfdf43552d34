// What only real windows can do, or have done to them.
#include "tests/window/WindowTest.h"

#include <windows.h>

#include <commctrl.h>

#include "platform/framework/CEdit.h"
#include "platform/framework/CListCtrl.h"

namespace {

class NativeTest : public WindowTest {};

TEST_F(NativeTest, ADialogWhoseWindowIsDestroyedEndsAsCancelled) {
  TestDialog dialog(101);
  const int code = RunDialog(dialog, [&](User&) { ::DestroyWindow(dialog.GetSafeHwnd()); });
  EXPECT_EQ(code, CDialog::Cancelled);
  EXPECT_EQ(dialog.log, Log{"init"});
  EXPECT_FALSE(dialog.IsRunning());
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

// A parent is the terminal's own window, or a control in it.
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

TEST_F(NativeTest, ToolTipsReachTheirWindow) {
  InDialog([](User&, TestDialog& dialog) {
    dialog.SetToolTip(801, "one");
    dialog.SetToolTip(804, "two");
    dialog.SetToolTip(804, "three");
    HWND tips = nullptr;
    while ((tips = ::FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr)) != nullptr &&
           ::GetWindow(tips, GW_OWNER) != dialog.GetSafeHwnd()) {
    }
    ASSERT_NE(tips, nullptr);
    EXPECT_EQ(::SendMessageW(tips, TTM_GETTOOLCOUNT, 0, 0), 2);
  });
}

TEST_F(NativeTest, TheWaitCursorIsTheSystems) {
  SetCursorShape(CursorShape::Wait);
  EXPECT_EQ(::GetCursor(), ::LoadCursorA(nullptr, IDC_WAIT));
  SetCursorShape(CursorShape::Arrow);
  EXPECT_EQ(::GetCursor(), ::LoadCursorA(nullptr, IDC_ARROW));
}

TEST_F(NativeTest, OwnerDrawnRowsAskForTheirLook) {
  InDialog([](User&, TestDialog& dialog) {
    int asked = 0;
    dialog.onItemLook = [&](int id, int row, ItemLook& look) {
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
