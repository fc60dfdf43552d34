// The editor of the user's lists as an operation: what is stored, saved, logged and told when it
// has closed, and how it runs.
#include "platform/framework/window/CDialog.h"
#include "platform/framework/window/ResourceContext.h"
#include "tests/interface/EditorText.h"

namespace {

class ListsEditorTextCommit : public EditorTextTest {
protected:
  static void Rename(User& user, int row, const std::string& name) {
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(kRename));
    EXPECT_TRUE(user.Type(name));
    EXPECT_TRUE(user.Press(WindowKey::Enter));
  }
  static void Delete(User& user, int row) {
    standin::AnswerMessages(kYes);
    EXPECT_TRUE(user.Select(kLists, row));
    EXPECT_TRUE(user.Click(kDelete));
  }
  static void New(User& user, const std::string& name) {
    WhenDialogOpens(NameIt(name));
    EXPECT_TRUE(user.Click(kNew));
  }
  static const char* const kOperation;
};

const char* const ListsEditorTextCommit::kOperation = "DoSymbolListUI";

// --- What is told --------------------------------------------------------------------------------

TEST_F(ListsEditorTextCommit, WithoutAChangeNothingHappens) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextCommit, WithoutListsAndAChangeNothingHappens) {
  StartWith({});
  Mark();
  EditLists([](User& user) { user.Click(kDone); });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextCommit, ARenamedListIsANameChange) {
  StartWithThree();
  EditLists([](User& user) {
    Rename(user, 1, "zwei");
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "saved; told 40:ListNameChange" + Logged(kOperation, NameDiffers()));
}

TEST_F(ListsEditorTextCommit, ADeletedListIsACountChange) {
  StartWithThree();
  EditLists([](User& user) {
    Delete(user, 1);
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "saved; told 40:ListCntChange" + Logged(kOperation, CountDiffers()));
}

TEST_F(ListsEditorTextCommit, ANewListIsACountChange) {
  StartWithThree();
  EditLists([](User& user) {
    New(user, "four");
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "saved; told 40:ListCntChange" + Logged(kOperation, CountDiffers()));
}

TEST_F(ListsEditorTextCommit, TheCountWinsOverAName) {
  StartWithThree();
  EditLists([](User& user) {
    Delete(user, 2);
    Rename(user, 0, "eins");
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "saved; told 40:ListCntChange" + Logged(kOperation, CountDiffers()));
}

TEST_F(ListsEditorTextCommit, ListsThatHaveSwappedPlacesAreANameChange) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kUp));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "saved; told 40:ListNameChange" + Logged(kOperation, NameDiffers()));
}

TEST_F(ListsEditorTextCommit, AListInThePlaceOfADeletedOneIsANameChange) {
  StartWithThree();
  EditLists([](User& user) {
    Delete(user, 2);
    New(user, "four");
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "saved; told 40:ListNameChange" + Logged(kOperation, NameDiffers()));
}

TEST_F(ListsEditorTextCommit, OtherContentsHaveNoReason) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    WhenDialogOpens(RemoveItsFirstRow());
    EXPECT_TRUE(user.Click(kEdit));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "saved; told 40:" + Logged(kOperation));
}

TEST_F(ListsEditorTextCommit, AnotherDefaultListHasNoReason) {
  StartWithThree(0);
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 2));
    EXPECT_TRUE(user.Click(kDefault));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "saved; told 40:" + Logged(kOperation));
}

TEST_F(ListsEditorTextCommit, AChangeThatWasTakenBackIsNone) {
  StartWithThree();
  EditLists([](User& user) {
    Rename(user, 1, "zwei");
    Rename(user, 1, "two");
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kDown));
    EXPECT_TRUE(user.Click(kUp));
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

// --- What is stored ------------------------------------------------------------------------------

TEST_F(ListsEditorTextCommit, TheManagersListsStayAsTheyAreUntilTheDialogHasClosed) {
  StartWithThree();
  const std::string before = Shape();
  EditLists([&](User& user) {
    Rename(user, 1, "zwei");
    Delete(user, 0);
    EXPECT_EQ(Shape(), before);
    EXPECT_EQ(Happened(), "not saved");
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "B/zwei/2317.TW|C/three/1101.TW,2454.TW");
}

TEST_F(ListsEditorTextCommit, TheFileHasTheListsAndTheDefaultIndex) {
  StartWithThree(0);
  EditLists([](User& user) {
    Rename(user, 1, "zwei");
    EXPECT_TRUE(user.Click(kDefault));
    user.Click(kDone);
  });
  EXPECT_NE(ReadWorking().find("DefaultIdx='1'"), std::string::npos);
  EXPECT_NE(ReadWorking().find("ID='B' Name='zwei' Value='2317.TW'"), std::string::npos);
}

TEST_F(ListsEditorTextCommit, AChangeIsKeptHoweverTheDialogIsClosed) {
  StartWithThree();
  EXPECT_EQ(EditLists([](User& user) {
              Rename(user, 1, "zwei");
              EXPECT_TRUE(user.Press(WindowKey::Escape));
            }),
            2);
  EXPECT_EQ(Happened(), "saved; told 40:ListNameChange" + Logged(kOperation, NameDiffers()));
  EXPECT_EQ(NameAt(1), "zwei");
}

TEST_F(ListsEditorTextCommit, AChangeIsKeptWhenTheTitleBarClosesTheDialog) {
  StartWithThree();
  EditLists([](User& user) {
    Delete(user, 0);
    EXPECT_TRUE(user.CloseByTitleBar());
  });
  EXPECT_EQ(Shape(), "B/two/2317.TW|C/three/1101.TW,2454.TW");
}

TEST_F(ListsEditorTextCommit, UnknownSymbolsAndHeadingsSurvive) {
  Start({"A/one/2330.TW,GONE.TW,semi:,2454.TW", "B/two/2317.TW"});
  EditLists([](User& user) {
    EXPECT_TRUE(user.Select(kLists, 1));
    EXPECT_TRUE(user.Click(kUp));
    user.Click(kDone);
  });
  EXPECT_EQ(Shape(), "B/two/2317.TW|A/one/2330.TW,GONE.TW,semi:,2454.TW");
}

TEST_F(ListsEditorTextCommit, TheNextRunShowsWhatThisOneHasStored) {
  StartWithThree();
  EditLists([](User& user) {
    Rename(user, 1, "zwei");
    user.Click(kDone);
  });
  EditLists([](User& user) {
    EXPECT_EQ(user.Rows(kLists), (Lines{"one", "zwei", "three"}));
    user.Click(kDone);
  });
}

TEST_F(ListsEditorTextCommit, TheTerminalIsToldWhenListsFileAndLogHaveTheChange) {
  StartWithThree();
  std::string seen;
  standin::OnCall("TQSCall", [&] { seen = NameAt(1) + "; " + Happened(); });
  EditLists([](User& user) {
    Rename(user, 1, "zwei");
    user.Click(kDone);
  });
  standin::OnCall("TQSCall", {});
  EXPECT_EQ(seen.rfind("zwei; saved; ", 0), 0u) << seen;
  EXPECT_NE(seen.find(Logged(kOperation, NameDiffers())), std::string::npos) << seen;
}

TEST_F(ListsEditorTextCommit, ASaveThatFailsIsShownAndToldAllTheSame) {
  StartWithThree();
  directory.Remove();
  EditLists([](User& user) {
    Rename(user, 1, "zwei");
    user.Click(kDone);
  });
  EXPECT_EQ(Shown(), "48026/0");
  ASSERT_FALSE(standin::Notifications().empty());
  EXPECT_EQ(standin::Notifications().back().code, 40);
  EXPECT_EQ(standin::Notifications().back().reason, "ListNameChange");
  EXPECT_EQ(NameAt(1), "zwei");
}

// --- The run -------------------------------------------------------------------------------------

TEST_F(ListsEditorTextCommit, RunsAsTheTerminalWantsDialogsToRun) {
  StartWithThree();
  standin::ClearCalls();
  EditLists([](User& user) { user.Click(kDone); });
  ASSERT_EQ(standin::CountCalls("tqDoModal"), 1);
  EXPECT_EQ(LastRun(), "0,1,0");
}

TEST_F(ListsEditorTextCommit, WithoutAManagerNothingOpens) {
  EXPECT_EQ(CTQSymbolListMgr::DoSymbolListUI(nullptr, nullptr, nullptr), -1);
  EXPECT_EQ(standin::CountCalls("tqDoModal"), 0);
}

TEST_F(ListsEditorTextCommit, ADialogThatCannotBeCreatedChangesNothing) {
  StartWithThree(1);
  standin::FailCall("tqDoModal", 1);
  EXPECT_EQ(CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr), -1);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextCommit, ADialogThatCannotBeCreatedOverNoListsChangesNothing) {
  StartWith({});
  Mark();
  standin::FailCall("tqDoModal", 1);
  EXPECT_EQ(CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr), -1);
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextCommit, WhileItIsOpenNoOtherEditorOfTheListsOpens) {
  StartWithThree();
  EditLists([this](User& user) {
    EXPECT_EQ(CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr), -1);
    EXPECT_EQ(manager.DoCloudSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr), -1);
    int kind = 0;
    CString text;
    EXPECT_EQ(CTQSymbolListMgr::DoSelectUI(&manager, manager.GetSymbolTableMgr(), nullptr, &kind,
                                           text, 0, false),
              -1);
    user.Click(kDone);
  });
  EXPECT_EQ(Happened(), "not saved");
}

TEST_F(ListsEditorTextCommit, IsNoSelection) {
  StartWithThree();
  EditLists([](User& user) {
    EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 0);
    user.Click(kDone);
  });
}

int ended = -1;

TEST_F(ListsEditorTextCommit, TheTerminalCannotEndIt) {
  StartWithThree();
  tq::SetModalHandler([](CDialog& dialog) {
    ended = CTQSymbolListMgr::EndDomodal(dialog.GetSafeHwnd(), 7);
    dialog.EndDialog(CDialog::Cancelled);
  });
  EXPECT_EQ(CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr), 2);
  EXPECT_EQ(ended, 0);
}

const char* NoString(unsigned, int) {
  return nullptr;
}

TEST_F(ListsEditorTextCommit, TheCallersResourcesAreBackWhenItHasClosed) {
  StartWithThree();
  tq::Resources callers;
  callers.string = NoString;
  const tq::ResourceContext context(callers);
  EditLists([](User& user) {
    EXPECT_NE(tq::ResourceContext::Current().string, NoString);
    user.Click(kDone);
  });
  EXPECT_EQ(tq::ResourceContext::Current().string, NoString);
}

TEST_F(ListsEditorTextCommit, TheCallersResourcesAreBackWhenItCouldNotBeCreated) {
  StartWithThree();
  tq::Resources callers;
  callers.string = NoString;
  const tq::ResourceContext context(callers);
  standin::FailCall("tqDoModal", 1);
  CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr);
  CTQSymbolListMgr::DoSymbolListUI(nullptr, nullptr, nullptr);
  EXPECT_EQ(tq::ResourceContext::Current().string, NoString);
}

// --- The parent ----------------------------------------------------------------------------------

CWnd parentWindow;
bool parentTookInput = true;
CTQSymbolListMgr* editedManager = nullptr;

TEST_F(ListsEditorTextCommit, TheParentTakesNoInputWhileItIsOpen) {
  StartWithThree();
  editedManager = &manager;
  tq::SetModalHandler([](CDialog& outer) {
    parentWindow = outer;
    tq::SetModalHandler([](CDialog& inner) {
      parentTookInput = parentWindow.IsWindowEnabled();
      inner.EndDialog(CDialog::Cancelled);
    });
    CTQSymbolListMgr::DoSymbolListUI(editedManager, editedManager->GetSymbolTableMgr(),
                                     outer.GetSafeHwnd());
    outer.EndDialog(CDialog::Cancelled);
  });
  CString name;
  CString code;
  CTQSymbolListMgr::DoSearchFinIndi(nullptr, "", name, code);
  EXPECT_FALSE(parentTookInput);
}

} // namespace
