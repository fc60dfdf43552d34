// tqUI's rule that one dialog per key runs: which ones run, and what the others return. And
// tqDoModal.
#include <functional>

#include "dialogs/resources/DialogTable.h"
#include "platform/framework/window/ResourceContext.h"
#include "platform/services/tqCommon.h"
#include "platform/services/tqUI.h"
#include "tests/support/StandInTest.h"

namespace {

constexpr unsigned kTemplate = 1003;
constexpr unsigned kNoTemplate = 4711;
constexpr int kEndCode = 77;

// Runs the given script while it is up, and ends.
class Family : public CSingletonDlg {
public:
  explicit Family(const char* key, const CWnd* parent = nullptr, unsigned templateId = kTemplate)
      : CSingletonDlg(key, templateId, parent, 0) {}

  int Run(std::function<void()> inside = [] {}) {
    inside_ = std::move(inside);
    return DoModal();
  }

  int starts = 0;

protected:
  bool OnInitDialog() override {
    ++starts;
    inside_();
    EndDialog(kEndCode);
    return true;
  }

private:
  std::function<void()> inside_ = [] {};
};

class SingletonDlg : public StandInTest {
protected:
  static int Refusals() { return standin::CountCalls("CSingletonDlg::BringToFront"); }
  static std::string LastCall() {
    return standin::Calls().back().operation + "(" + standin::Calls().back().arguments + ")";
  }

  // The result of a dialog that is run while another one of its key is up.
  static int RunBeside(const char* up, const char* key) {
    Family first(up), second(key);
    int code = 0;
    EXPECT_EQ(first.Run([&] { code = second.Run(); }), kEndCode);
    EXPECT_EQ(second.starts, code == kEndCode ? 1 : 0);
    return code;
  }

private:
  tq::ResourceContext context_{tq::LibraryResources()};
};

TEST_F(SingletonDlg, RunsWhenNoneOfItsFamilyDoes) {
  Family dialog("key");
  EXPECT_EQ(dialog.Run(), kEndCode);
  EXPECT_EQ(dialog.Run(), kEndCode);
  EXPECT_EQ(dialog.starts, 2);
  EXPECT_EQ(Refusals(), 0);
}

TEST_F(SingletonDlg, IsRefusedBesideOneOfItsFamily) {
  EXPECT_EQ(RunBeside("key", "key"), CDialog::Failed);
  EXPECT_EQ(Refusals(), 1);
  EXPECT_EQ(LastCall(), "CSingletonDlg::BringToFront(key)");
}

TEST_F(SingletonDlg, IsRefusedWithAnotherTemplateToo) {
  Family first("key"), second("key", nullptr, 1000);
  int code = 0;
  first.Run([&] { code = second.Run(); });
  EXPECT_EQ(code, CDialog::Failed);
}

TEST_F(SingletonDlg, RunsBesideAnotherFamily) {
  EXPECT_EQ(RunBeside("key", "other"), kEndCode);
  EXPECT_EQ(RunBeside("key", "KEY"), kEndCode);
  EXPECT_EQ(RunBeside("key", ""), kEndCode);
  EXPECT_EQ(Refusals(), 0);
}

TEST_F(SingletonDlg, ANullKeyIsAnEmptyOne) {
  EXPECT_EQ(RunBeside("", nullptr), CDialog::Failed);
}

TEST_F(SingletonDlg, RunsWhenOpenedFromWithinItsFamily) {
  Family first("key");
  int second = 0, third = 0, behind = 0;
  first.Run([&] {
    Family inner("key", &first);
    second = inner.Run([&] { third = Family("key", &inner).Run(); });
    behind = Family("key", &first).Run();
  });
  EXPECT_EQ(second, kEndCode);
  EXPECT_EQ(third, kEndCode);
  EXPECT_EQ(behind, kEndCode);
  EXPECT_EQ(Refusals(), 0);
}

TEST_F(SingletonDlg, IsRefusedWhenOpenedFromADialogThatIsCovered) {
  Family first("key");
  int code = 0;
  first.Run([&] {
    Family inner("key", &first);
    inner.Run([&] { code = Family("key", &first).Run(); });
  });
  EXPECT_EQ(code, CDialog::Failed);
  EXPECT_EQ(Refusals(), 1);
}

TEST_F(SingletonDlg, IsRefusedWhenOpenedFromAControl) {
  Family first("key");
  int code = 0;
  first.Run([&] {
    const CWnd control(first, 801);
    EXPECT_TRUE(control.IsWindow());
    code = Family("key", &control).Run();
  });
  EXPECT_EQ(code, CDialog::Failed);
}

TEST_F(SingletonDlg, ThatRunsIsRefused) {
  Family dialog("key");
  int code = 0;
  dialog.Run([&] { code = dialog.DoModal(); });
  EXPECT_EQ(code, CDialog::Failed);
  EXPECT_EQ(dialog.starts, 1);
}

TEST_F(SingletonDlg, RunsAfterARefusal) {
  Family first("key"), second("key");
  first.Run([&] { second.Run(); });
  EXPECT_EQ(second.Run(), kEndCode);
}

TEST_F(SingletonDlg, ThatCannotBeMadeLeavesItsFamilyFree) {
  EXPECT_EQ(Family("key", nullptr, kNoTemplate).Run(), CDialog::Failed);
  EXPECT_EQ(Family("key").Run(), kEndCode);
  EXPECT_EQ(Refusals(), 0);
}

TEST_F(SingletonDlg, FailsAsOrdered) {
  Family dialog("key");
  standin::FailCall("CSingletonDlg::DoModal", 1);
  EXPECT_EQ(dialog.Run(), CDialog::Failed);
  EXPECT_EQ(dialog.starts, 0);
  EXPECT_EQ(LastCall(), "CSingletonDlg::DoModal(key)");
  EXPECT_EQ(dialog.Run(), kEndCode);
}

using ModalRun = SingletonDlg;

TEST_F(ModalRun, ReturnsTheEndCodeOfTheDialog) {
  Family dialog("key");
  EXPECT_EQ(tqDoModal(&dialog, 0, 1, 0), kEndCode);
  EXPECT_EQ(dialog.starts, 1);
  ASSERT_FALSE(standin::Calls().empty());
  EXPECT_EQ(standin::Calls()[0].operation, "tqDoModal");
  EXPECT_EQ(standin::Calls()[0].arguments, "0,1,0");
}

TEST_F(ModalRun, FailsWithoutRunningTheDialogAsOrdered) {
  Family dialog("key");
  standin::FailCall("tqDoModal", 1);
  EXPECT_EQ(tqDoModal(&dialog, 0, 1, 0), CDialog::Failed);
  EXPECT_EQ(dialog.starts, 0);
}

TEST_F(ModalRun, FailsWhenTheDialogCannotBeMade) {
  Family dialog("key", nullptr, kNoTemplate);
  EXPECT_EQ(tqDoModal(&dialog, 0, 1, 0), CDialog::Failed);
}

TEST_F(ModalRun, FailsWithoutADialog) {
  EXPECT_EQ(tqDoModal(nullptr, 0, 1, 0), CDialog::Failed);
}

} // namespace
