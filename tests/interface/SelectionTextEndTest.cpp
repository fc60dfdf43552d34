// The selection as an operation: how it runs and ends, and how the terminal ends it.
#include "platform/framework/window/CDialog.h"
#include "platform/framework/window/DialogAccess.h"
#include "platform/framework/window/ResourceContext.h"
#include "tests/interface/EditorText.h"

namespace {

class SelectionTextEnd : public SelectionTextTest {
protected:
  ~SelectionTextEnd() override { EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 0); }
  // Leaves the dialog to a handler of the framework's, which has the dialog itself.
  int ChooseWith(tq::ModalHandler handler) {
    tq::SetModalHandler(handler);
    return CTQSymbolListMgr::DoSelectUI(&manager, manager.GetSymbolTableMgr(), nullptr, &kind, text,
                                        0, false);
  }
};

// What EndDomodal has returned.
int endResult = -1;
bool wasUpAfterwards = false;

// --- The ends ------------------------------------------------------------------------------------

TEST_F(SelectionTextEnd, CancelAnswersNothing) {
  StartWithThree();
  EXPECT_EQ(Choose([](User& user) {
              EXPECT_TRUE(user.Select(kSources, MyLists()));
              EXPECT_TRUE(user.Select(kLists, 1));
              EXPECT_TRUE(user.Click(kCancel));
            }),
            2);
  EXPECT_EQ(Answer(), untouched);
}

TEST_F(SelectionTextEnd, EscapeAnswersNothing) {
  StartWithThree();
  EXPECT_EQ(Choose([](User& user) {
              EXPECT_TRUE(user.Select(kSources, MyLists()));
              EXPECT_TRUE(user.Select(kLists, 1));
              EXPECT_TRUE(user.Press(WindowKey::Escape));
            }),
            2);
  EXPECT_EQ(Answer(), untouched);
}

TEST_F(SelectionTextEnd, TheTitleBarAnswersNothing) {
  StartWithThree();
  EXPECT_EQ(Choose([](User& user) { EXPECT_TRUE(user.CloseByTitleBar()); }), 2);
  EXPECT_EQ(Answer(), untouched);
}

TEST_F(SelectionTextEnd, EnterIsOk) {
  StartWithThree();
  EXPECT_EQ(Choose([](User& user) {
              EXPECT_TRUE(user.Select(kSources, MyLists()));
              EXPECT_TRUE(user.Select(kLists, 1));
              EXPECT_TRUE(user.Press(WindowKey::Enter));
            }),
            1);
  EXPECT_EQ(Answer(), "1/B");
}

TEST_F(SelectionTextEnd, AnAnswerIsAllThatAChoiceLeavesBehind) {
  StartWithThree();
  Choose([](User& user) {
    EXPECT_TRUE(user.Select(kSources, "上市"));
    EXPECT_TRUE(user.Select(kLists, 0));
    EXPECT_TRUE(user.Click(kOk));
  });
  EXPECT_EQ(Happened(), "not saved");
  EXPECT_EQ(Shown(), "");
}

// --- The run -------------------------------------------------------------------------------------

TEST_F(SelectionTextEnd, RunsAsTheTerminalWantsDialogsToRun) {
  StartWithThree();
  standin::ClearCalls();
  Choose([](User& user) { user.Click(kCancel); });
  ASSERT_EQ(standin::CountCalls("tqDoModal"), 1);
  EXPECT_EQ(LastRun(), "0,1,0");
}

TEST_F(SelectionTextEnd, WithoutAManagerNothingOpens) {
  EXPECT_EQ(CTQSymbolListMgr::DoSelectUI(nullptr, nullptr, nullptr, &kind, text, 0, false), -1);
  EXPECT_EQ(standin::CountCalls("tqDoModal"), 0);
  EXPECT_EQ(Answer(), untouched);
}

TEST_F(SelectionTextEnd, ADialogThatCannotBeCreatedAnswersNothing) {
  StartWithThree();
  standin::FailCall("tqDoModal", 1);
  EXPECT_EQ(CTQSymbolListMgr::DoSelectUI(&manager, manager.GetSymbolTableMgr(), nullptr, &kind,
                                         text, 0, false),
            -1);
  EXPECT_EQ(Answer(), untouched);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(SelectionTextEnd, WhileItIsOpenNoEditorOfTheListsOpens) {
  StartWithThree();
  Choose([this](User& user) {
    EXPECT_EQ(CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr), -1);
    user.Click(kCancel);
  });
}

const char* NoTextOfSelection(unsigned, int) {
  return nullptr;
}

TEST_F(SelectionTextEnd, TheCallersResourcesAreBackWhenItHasClosed) {
  StartWithThree();
  tq::Resources callers;
  callers.string = NoTextOfSelection;
  const tq::ResourceContext context(callers);
  Choose([](User& user) {
    EXPECT_NE(tq::ResourceContext::Current().string, NoTextOfSelection);
    user.Click(kCancel);
  });
  EXPECT_EQ(tq::ResourceContext::Current().string, NoTextOfSelection);
}

// --- The flag ------------------------------------------------------------------------------------

TEST_F(SelectionTextEnd, TheFlagIsSetExactlyWhileItIsOpen) {
  StartWithThree();
  EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 0);
  Choose([](User& user) {
    EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 1);
    user.Click(kCancel);
  });
  EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 0);
}

TEST_F(SelectionTextEnd, TheFlagIsTakenBackAfterOk) {
  StartWithThree();
  Choose([](User& user) {
    EXPECT_TRUE(user.Select(kSources, AllSymbols()));
    EXPECT_TRUE(user.Click(kOk));
  });
  EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 0);
}

TEST_F(SelectionTextEnd, TheFlagIsTakenBackWhenTheDialogCannotBeCreated) {
  StartWithThree();
  standin::FailCall("tqDoModal", 1);
  CTQSymbolListMgr::DoSelectUI(&manager, manager.GetSymbolTableMgr(), nullptr, &kind, text, 0,
                               false);
  EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 0);
}

TEST_F(SelectionTextEnd, TheFlagIsNoLongerSetWhenTheTerminalIsTold) {
  StartWithThree();
  int flag = -1;
  standin::OnCall("TQSCall", [&] { flag = CTQSymbolListMgr::m_bDoModal; });
  Choose([](User& user) {
    EXPECT_TRUE(user.Select(kSources, MyLists()));
    WhenDialogOpens(NameIt("four"));
    EXPECT_TRUE(user.Click(kNew));
    EXPECT_TRUE(user.Click(kOk));
  });
  standin::OnCall("TQSCall", {});
  EXPECT_EQ(flag, 0);
}

// --- Ended by the terminal -----------------------------------------------------------------------

TEST_F(SelectionTextEnd, TheTerminalEndsItWithAResult) {
  StartWithThree();
  EXPECT_EQ(ChooseWith([](CDialog& dialog) {
              endResult = CTQSymbolListMgr::EndDomodal(dialog.GetSafeHwnd(), 7);
            }),
            7);
  EXPECT_NE(endResult, 0);
  EXPECT_EQ(Answer(), untouched);
}

TEST_F(SelectionTextEnd, TheTerminalMayCancelIt) {
  StartWithThree();
  EXPECT_EQ(ChooseWith([](CDialog& dialog) {
              CTQSymbolListMgr::EndDomodal(dialog.GetSafeHwnd(), CDialog::Cancelled);
            }),
            2);
  EXPECT_EQ(Answer(), untouched);
}

TEST_F(SelectionTextEnd, AWindowInWhichNoDialogRunsIsNoneToEnd) {
  StartWithThree();
  ChooseWith([](CDialog& dialog) {
    endResult = CTQSymbolListMgr::EndDomodal(nullptr, 7);
    wasUpAfterwards = !tq::DialogAccess::HasEnded(dialog);
    dialog.EndDialog(CDialog::Cancelled);
  });
  EXPECT_EQ(endResult, 0);
  EXPECT_TRUE(wasUpAfterwards);
}

TEST_F(SelectionTextEnd, AControlOfItIsNoDialogToEnd) {
  StartWithThree();
  ChooseWith([](CDialog& dialog) {
    endResult = CTQSymbolListMgr::EndDomodal(CWnd(dialog, kLists).GetSafeHwnd(), 7);
    wasUpAfterwards = !tq::DialogAccess::HasEnded(dialog);
    dialog.EndDialog(CDialog::Cancelled);
  });
  EXPECT_EQ(endResult, 0);
  EXPECT_TRUE(wasUpAfterwards);
}

// An editor must not be closed over its user's head.
TEST_F(SelectionTextEnd, AnEditorThatWasOpenedFromItIsNotEnded) {
  StartWithThree();
  Choose([](User& user) {
    EXPECT_TRUE(user.Select(kSources, MyLists()));
    const tq::ModalHandler users = tq::SetModalHandler([](CDialog& editor) {
      EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 1);
      endResult = CTQSymbolListMgr::EndDomodal(editor.GetSafeHwnd(), CDialog::Accepted);
      wasUpAfterwards = !tq::DialogAccess::HasEnded(editor);
      editor.EndDialog(CDialog::Cancelled);
    });
    EXPECT_TRUE(user.Click(kNew));
    tq::SetModalHandler(users);
    user.Click(kCancel);
  });
  EXPECT_EQ(endResult, 0);
  EXPECT_TRUE(wasUpAfterwards);
}

WindowHandle selectionWindow = nullptr;

TEST_F(SelectionTextEnd, AfterItHasClosedItsWindowCannotBeEnded) {
  StartWithThree();
  ChooseWith([](CDialog& dialog) {
    selectionWindow = dialog.GetSafeHwnd();
    dialog.EndDialog(CDialog::Cancelled);
  });
  EXPECT_EQ(CTQSymbolListMgr::EndDomodal(selectionWindow, 7), 0);
}

// --- The parent ----------------------------------------------------------------------------------

CWnd selectionsParent;
bool selectionsParentTookInput = true;
CTQSymbolListMgr* selectedManager = nullptr;

TEST_F(SelectionTextEnd, TheParentTakesNoInputWhileItIsOpen) {
  StartWithThree();
  selectedManager = &manager;
  tq::SetModalHandler([](CDialog& outer) {
    selectionsParent = outer;
    tq::SetModalHandler([](CDialog& inner) {
      selectionsParentTookInput = selectionsParent.IsWindowEnabled();
      inner.EndDialog(CDialog::Cancelled);
    });
    int number = 0;
    CString chosen;
    CTQSymbolListMgr::DoSelectUI(selectedManager, selectedManager->GetSymbolTableMgr(),
                                 outer.GetSafeHwnd(), &number, chosen, 0, false);
    outer.EndDialog(CDialog::Cancelled);
  });
  CString name;
  CString code;
  CTQSymbolListMgr::DoSearchFinIndi(nullptr, "", name, code);
  EXPECT_FALSE(selectionsParentTookInput);
}

} // namespace
