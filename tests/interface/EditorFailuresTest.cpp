// Editors while the terminal's services fail, call back, or refuse windows.
#include <algorithm>
#include <utility>

#include "tests/interface/EditorSession.h"

namespace {

class AnyEditor : public SessionTest, public testing::WithParamInterface<EditorSession> {
protected:
  int Session() { return Run(GetParam()); }
  // Lists that nobody deletes in a session are there behind it, with what the user cannot see.
  void ExpectNothingLost() {
    CString ids;
    EXPECT_EQ(manager.GetSymbolListIDs(1, "ZUSYSLIST1", ids, nullptr), 1);
    EXPECT_EQ(manager.GetSymbolListIDs(1, "A", ids, nullptr), 1);
    EXPECT_GE(ids.Find("gone.TW"), 0) << ids.GetString();
    EXPECT_LE(standin::OutstandingArrays(), 1); // the manager's list of exchanges
    EXPECT_EQ(CTQSymbolListMgr::m_bDoModal, 0);
  }
};

TEST_P(AnyEditor, DoesItsWork) {
  standin::AnswerMessages(6);
  EXPECT_EQ(Session(), 1);
  ExpectNothingLost();
  EXPECT_EQ(TakeUnusedScripts(), 0u);
}

TEST_P(AnyEditor, AnsweredWithNoDoesItsWorkToo) {
  standin::AnswerMessages(7);
  EXPECT_EQ(Session(), 1);
  ExpectNothingLost();
}

// Each call of a session fails once.
TEST_P(AnyEditor, LosesNothingWhateverCallFails) {
  standin::AnswerMessages(6);
  standin::ClearCalls();
  Session();
  const int calls = static_cast<int>(standin::Calls().size());
  ASSERT_GT(calls, 8);
  const int step = std::max(1, calls / ManyFailures());
  for (int n = 1; n <= calls; n += step) {
    StartAgain();
    standin::ClearCalls();
    standin::FailCall("*", n);
    Session();
    standin::FailCall("*", 0);
    ExpectNothingLost();
    ASSERT_FALSE(HasFailure()) << "call " << n;
  }
}

TEST_P(AnyEditor, LosesNothingWhenAServiceAlwaysFails) {
  standin::AnswerMessages(6);
  size_t number = 0;
  for (const char* operation :
       {"VLGetSymbolInfo", "VLGetSymbolInfos", "VLFindSymbol", "VLGetGroupSymbol", "VLGetSubGroup",
        "tqShowDllMessage", "tqShowMessageStr", "CCheckFileName::IsValidName", "TQSCall"}) {
    if (!TakesCase(number++))
      continue;
    StartAgain();
    standin::FailAlways(operation);
    Session();
    standin::FailCall(operation, 0);
    ExpectNothingLost();
    ASSERT_FALSE(HasFailure()) << operation;
  }
}

// The terminal may do anything of its own while it is asked.
TEST_P(AnyEditor, LosesNothingWhenTheTerminalStartsTheManagerAnew) {
  standin::AnswerMessages(6);
  size_t number = 0;
  for (const char* operation : {"VLGetSymbolInfo", "VLGetSymbolInfos", "VLFindSymbol",
                                "VLGetGroupSymbol", "tqShowDllMessage", "TQSCall"}) {
    if (!TakesCase(number++))
      continue;
    StartAgain();
    standin::OnCall(operation, [this] { StartWithTables(); });
    Session();
    standin::OnCall(operation, nullptr);
    ExpectNothingLost();
    ASSERT_FALSE(HasFailure()) << operation;
  }
}

TEST_P(AnyEditor, LosesNothingWhenTheTerminalReadsListsAndGroupsAnew) {
  standin::AnswerMessages(6);
  size_t number = 0;
  for (const char* operation : {"VLGetSymbolInfo", "VLFindSymbol", "VLGetGroupSymbol",
                                "CCheckFileName::IsValidName", "tqShowMessageStr"}) {
    if (!TakesCase(number++))
      continue;
    StartAgain();
    standin::OnCall(operation, [this] {
      manager.LoadSymbolList();
      manager.LoadGroupList();
      manager.ReLoadDefaultExch(1);
    });
    Session();
    standin::OnCall(operation, nullptr);
    ExpectNothingLost();
    ASSERT_FALSE(HasFailure()) << operation;
  }
}

// What the terminal adds while the editor is up is there when it has closed.
TEST_P(AnyEditor, KeepsAListThatTheTerminalAddsMeanwhile) {
  standin::AnswerMessages(6);
  bool added = false;
  standin::OnCall("VLGetSymbolInfo", [this, &added] {
    added = added || manager.AddSymbolList("NEW", 0, "pushed", "1436.TW", 1, 0) != 0;
  });
  Session();
  standin::OnCall("VLGetSymbolInfo", nullptr);
  ASSERT_TRUE(added);
  EXPECT_EQ(manager.CheckSymbolListExist("NEW", 1), 1);
  ExpectNothingLost();
}

// As a terminal might open it while the selection is up.
TEST_P(AnyEditor, IsNotEndedByTheTerminalUnlessItIsTheSelection) {
  int ended = -2;
  WhenDialogOpens([&ended](User& user) {
    const int before = std::exchange(CTQSymbolListMgr::m_bDoModal, 1);
    ended = CTQSymbolListMgr::EndDomodal(user.Dialog().GetSafeHwnd(), CDialog::Accepted);
    CTQSymbolListMgr::m_bDoModal = before;
    user.CloseByTitleBar();
  });
  CString text = "A";
  GetParam().open(manager, text);
  EXPECT_EQ(ended, std::string(GetParam().name) == "Selection" ? 1 : 0);
}

TEST_P(AnyEditor, AWindowThatCannotBeMadeChangesNothing) {
  const std::string before = Shape();
  standin::FailCall("tqDoModal", 1);
  EXPECT_LE(Session(), 0);
  EXPECT_EQ(Shape(), before);
  ExpectNothingLost();
}

TEST_P(AnyEditor, WithoutTablesNothingTypedIsFoundAndNothingIsLost) {
  standin::AnswerMessages(6);
  ASSERT_EQ(StartWithoutTables(), 1);
  ASSERT_EQ(manager.CheckSymbolListExist("A", 1), 1);
  Session();
  const std::vector<standin::Message>& shown = standin::Messages();
  EXPECT_TRUE(std::any_of(shown.begin(), shown.end(),
                          [](const standin::Message& message) { return message.id == 48018; }));
  ExpectNothingLost();
}

TEST_P(AnyEditor, LeavesNothingBehind) {
  const auto openAndClose = [this] {
    WhenDialogOpens([](User& user) { user.CloseByTitleBar(); });
    CString text = "A";
    GetParam().open(manager, text);
    standin::ClearCalls();
  };
  for (int i = 0; i < 3; ++i) // allocates what is made once and kept
    openAndClose();
  const std::size_t before = WindowResources();
  // Each editor in one of the two languages, for it takes its time.
  const bool here = (std::string(GetParam().name).size() % 2 == 0) == (IsTraditionChinese() != 0);
  for (int i = 0; i < (here ? ManyRuns() : ManyRuns() / 20); ++i)
    openAndClose();
  EXPECT_LE(WindowResources(), before + ResourceSlack());
}

class EditorsEnded : public SessionTest {};

// Symptom: a content editor that something else ended with 1 made a list without an identifier.
TEST_F(EditorsEnded, AContentEditorThatIsEndedFromOutsideStoresNothing) {
  const std::string before = Shape();
  WhenDialogOpens([](User& user) {
    WhenDialogOpens([](User& editor) {
      EXPECT_TRUE(editor.Fill(742, "new"));
      CDialog::FromHandle(editor.Dialog().GetSafeHwnd())->EndDialog(CDialog::Accepted);
    });
    EXPECT_TRUE(user.Click(801));
    EXPECT_EQ(user.Rows(781).size(), 3u);
    EXPECT_TRUE(user.Click(806));
  });
  EXPECT_EQ(CTQSymbolListMgr::DoSymbolListUI(&manager, manager.GetSymbolTableMgr(), nullptr), 1);
  EXPECT_EQ(Shape(), before);
  CSymbolList list;
  WhenDialogOpens([](User& editor) {
    CDialog::FromHandle(editor.Dialog().GetSafeHwnd())->EndDialog(CDialog::Accepted);
  });
  EXPECT_FALSE(CTQSymbolListMgr::DoGroupListUI(&manager, nullptr, &list, 0, nullptr, 0));
  EXPECT_STREQ(list.GetID(), "");
}

// Symptom: the second list of an identifier was written to after the commit had replaced it.
TEST_F(EditorsEnded, AListOfTheManagersThatSharesItsIdentifierIsNotTouchedOnceItIsReplaced) {
  CSymbolList twin;
  twin.SetID("A");
  twin.SetName("twin");
  manager.AddTQSymbolList(&twin, 0); // the first one of that identifier
  CSymbolList* first = nullptr;
  CSymbolList* second = nullptr;
  manager.GetSymbolList("A", &first, 1);
  ASSERT_EQ(manager.DeleteSymbolList("C"), 1);
  manager.AddTQSymbolList(first, 0);
  manager.GetSymbolList("A", &second, 1);
  ASSERT_NE(first, second);
  WhenDialogOpens([](User& editor) {
    EXPECT_TRUE(editor.Fill(742, "edited"));
    EXPECT_TRUE(editor.Fill(741, "2317"));
    EXPECT_TRUE(editor.Press(WindowKey::Enter));
    EXPECT_TRUE(editor.Click(1));
  });
  EXPECT_TRUE(
      CTQSymbolListMgr::DoGroupListUI(&manager, manager.GetSymbolTableMgr(), first, 1, nullptr, 0));
  EXPECT_EQ(Shape().rfind("A/edited/2317.TW|", 0), 0u) << Shape();
}

// Symptom: the terminal cleared the lists in memory while the selection was open, the user edited
// one without changing it, and OK saved a file without lists.
TEST_F(EditorsEnded, ASelectionWithoutAChangeSavesNothingThatTheTerminalClearedMeanwhile) {
  const std::string before = ReadWorking();
  WhenDialogOpens([this](User& user) {
    EXPECT_TRUE(user.Select(761, 1));
    EXPECT_TRUE(user.ClickRow(781, 0));
    WhenDialogOpens([](User& editor) { EXPECT_TRUE(editor.Click(1)); });
    EXPECT_TRUE(user.Click(802));
    manager.ClearSymbolList();
    EXPECT_TRUE(user.Click(1));
    if (user.IsUp()) {
      EXPECT_TRUE(user.Click(2));
    }
  });
  CString text;
  CTQSymbolListMgr::DoSelectUI(&manager, manager.GetSymbolTableMgr(), nullptr, nullptr, text, 0,
                               false);
  EXPECT_EQ(ReadWorking(), before);
}

INSTANTIATE_TEST_SUITE_P(Editors, AnyEditor, testing::ValuesIn(EditorSessions()), NameOfSession);

} // namespace
