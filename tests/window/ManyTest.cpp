// Repeated opening and closing releases everything.
#include "platform/framework/window/CButton.h"
#include "platform/framework/window/CComboBox.h"
#include "platform/framework/window/CListBox.h"
#include "platform/framework/window/CListCtrl.h"
#include "platform/services/tqCommon.h"
#include "tests/window/TestModule.h"
#include "tests/window/WindowTest.h"

namespace {

class ManyTest : public WindowTest {};

// Uses memory and objects of the system: rows, a tooltip, an icon, a timer, a message.
void OpenAndClose() {
  TestDialog dialog;
  dialog.onItemLook = [](int, int, WindowItemLook& look) { look.bold = true; };
  dialog.onInit = [&] {
    CListBox(dialog, 783).AddString("bold");
    CComboBox(dialog, 761).AddString("entry");
    CListCtrl table(dialog, 791);
    table.AddColumn("x", 0);
    table.AddRow("row");
    CButton(dialog, 804).SetIcon(WindowButtonIcon::Up);
    dialog.SetToolTip(804, "tip");
    dialog.SetTimer(1, 1000);
    dialog.Post(CWnd::kFirstMessage);
  };
  const int code = RunDialog(dialog, [&](User& user) {
    actions::Settle(); // draws the rows
    dialog.Post(CWnd::kFirstMessage);
    EXPECT_TRUE(user.IsUp());
    dialog.EndDialog(3);
  });
  ASSERT_EQ(code, 3);
}

TEST_F(ManyTest, NothingIsLeftBehind) {
  for (int i = 0; i < 3; ++i) // allocates what is made once and kept
    OpenAndClose();
  const size_t before = WindowResources();
  // All of it in one language: it takes its time.
  const int rounds = IsTraditionChinese() != 0 ? ManyRuns() / 20 : ManyRuns();
  for (int i = 0; i < rounds; ++i)
    OpenAndClose();
  EXPECT_LE(WindowResources(), before + ResourceSlack());
}

TEST_F(ManyTest, FailedRunsLeaveNothingBehind) {
  const size_t before = WindowResources();
  for (int i = 0; i < 100; ++i) {
    TestDialog missing(4711);
    ASSERT_EQ(missing.DoModal(), CDialog::Failed);
    TestDialog refused(109);
    ASSERT_EQ(refused.DoModal(), CDialog::Failed);
  }
  EXPECT_LE(WindowResources(), before + ResourceSlack());
}

} // namespace
