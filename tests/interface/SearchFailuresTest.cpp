// The search for a symbol while the terminal's services fail, call back, or refuse windows.
#include <algorithm>

#include "symbolid/ListID.h"
#include "tests/interface/EditorSession.h"

namespace {

// What a user does in a minute. It goes on whatever fails on the way.
void SearchAround(User& user) {
  const int before = standin::CountCalls("VLFindSymbol");
  user.WaitFor(
      [before] { return standin::CountCalls("VLFindSymbol") > before; }); // answered or not
  user.Fill(741, "1101");
  user.Click(801);
  user.Select(761, 1);
  user.Select(762, 1);
  user.Fill(741, "");
  user.Press(WindowKey::Enter);
  user.Fill(741, ".7777");
  user.Press(WindowKey::Enter);
  user.Fill(741, "77");
  user.Press(WindowKey::Enter);
  user.DoubleClick(781, 0);
  if (user.IsUp())
    user.Press(WindowKey::Escape);
}

class SearchFailures : public SessionTest {
protected:
  int Search() {
    TakeUnusedScripts();
    WhenDialogOpens(SearchAround);
    found = {};
    return CTQSymbolListMgr::DoSearchUI(&manager, manager.GetSymbolTableMgr(), nullptr, "23",
                                        &found, 1, &place);
  }
  void ExpectAllWell() {
    EXPECT_EQ(Shape(), before);
    EXPECT_LE(standin::OutstandingArrays(), 1); // the manager's list of exchanges
    EXPECT_EQ(GetWindowCursor(), WindowCursor::Arrow);
  }

  SymbolInfo found = {};
  CListID place;
  const std::string before = Shape();
};

TEST_F(SearchFailures, WithoutAnyTheSessionFindsASymbol) {
  EXPECT_EQ(Search(), 1);
  EXPECT_STREQ(found.id, "7777.TW");
  EXPECT_EQ(place.GetType(), ListIDGroup);
  EXPECT_FALSE(place.GetSubGroupID().IsEmpty());
  ExpectAllWell();
}

// Each call of a session fails once.
TEST_F(SearchFailures, OfAnyCallLeaveTheDialogAtWork) {
  standin::ClearCalls();
  Search();
  const int calls = static_cast<int>(standin::Calls().size());
  ASSERT_GT(calls, 5);
  const int step = std::max(1, calls / ManyFailures());
  for (int n = 1; n <= calls; n += step) {
    standin::ClearCalls();
    standin::FailCall("*", n);
    Search();
    standin::FailCall("*", 0);
    ExpectAllWell();
    ASSERT_FALSE(HasFailure()) << "call " << n;
  }
}

TEST_F(SearchFailures, OfAServiceThatAlwaysFailsLeaveTheDialogAtWork) {
  for (const char* operation : {"VLFindSymbol", "VLFindSymbol2", "VLEX2ZUID2", "VLGetSymbolInfos",
                                "VLGetSubGroup", "VLGetGroupSymbol", "tqShowDllMessage"}) {
    standin::FailAlways(operation);
    Search();
    standin::FailCall(operation, 0);
    ExpectAllWell();
    ASSERT_FALSE(HasFailure()) << operation;
  }
}

// The terminal may do anything of its own while it is asked.
TEST_F(SearchFailures, NorDoesATerminalThatStartsTheManagerAnewHarmIt) {
  for (const char* operation : {"VLFindSymbol", "VLEX2ZUID2", "VLGetGroupSymbol"}) {
    standin::OnCall(operation, [this] {
      StartWithTables();
      manager.LoadGroupList();
      manager.ReLoadDefaultExch(1);
    });
    Search();
    standin::OnCall(operation, nullptr);
    ExpectAllWell();
    ASSERT_FALSE(HasFailure()) << operation;
  }
}

// Another search, from within: each has its own symbol and its own group.
TEST_F(SearchFailures, NorDoesASearchFromWithinASearch) {
  int inner = -2;
  CListID other;
  other.FromString("2,OTC,");
  standin::OnCall("VLEX2ZUID2", [&] {
    if (inner != -2)
      return;
    inner = -1;
    WhenDialogOpens([](User& user) { user.Press(WindowKey::Escape); });
    inner = CTQSymbolListMgr::DoSearchUI(&manager, manager.GetSymbolTableMgr(), nullptr, "",
                                         nullptr, 0, &other);
  });
  EXPECT_EQ(Search(), 1);
  EXPECT_EQ(inner, 2);
  EXPECT_STREQ(found.id, "7777.TW");
  EXPECT_STREQ(place.GetGroupID(), "TSE");
  ExpectAllWell();
}

// What ends the dialog from outside while the service works is what counts.
TEST_F(SearchFailures, ADialogThatIsEndedWhileTheServiceWorksShowsNothingMore) {
  TakeUnusedScripts();
  CDialog* running = nullptr;
  standin::OnCall("VLFindSymbol", [&running] {
    if (running != nullptr)
      running->EndDialog(CDialog::Cancelled);
  });
  WhenDialogOpens([&running](User& user) {
    running = CDialog::FromHandle(user.Dialog().GetSafeHwnd());
    user.Fill(741, "77");
    user.Press(WindowKey::Enter);
    user.LeaveUp();
  });
  EXPECT_EQ(CTQSymbolListMgr::DoSearchUI(&manager, manager.GetSymbolTableMgr(), nullptr, "", &found,
                                         1, nullptr),
            2);
  EXPECT_STREQ(found.id, "");
  ExpectAllWell();
}

TEST_F(SearchFailures, AWindowThatCannotBeMadeLeavesTheListIdAlone) {
  place.FromString("1,A");
  standin::FailCall("tqDoModal", 1);
  EXPECT_EQ(Search(), -1);
  EXPECT_EQ(place.GetType(), ListIDUserList);
  EXPECT_STREQ(place.GetID(), "A");
  ExpectAllWell();
}

TEST_F(SearchFailures, OpeningAndClosingLeavesNothingBehind) {
  const auto openAndClose = [this] {
    WhenDialogOpens([](User& user) { user.Press(WindowKey::Escape); });
    CTQSymbolListMgr::DoSearchUI(&manager, manager.GetSymbolTableMgr(), nullptr, "23", nullptr, 1,
                                 nullptr);
    standin::ClearCalls();
  };
  for (int i = 0; i < 3; ++i) // allocates what is made once and kept
    openAndClose();
  const std::size_t resources = WindowResources();
  const int runs = IsTraditionChinese() != 0 ? ManyRuns() / 20 : ManyRuns();
  for (int i = 0; i < runs; ++i)
    openAndClose();
  EXPECT_LE(WindowResources(), resources + ResourceSlack());
}

} // namespace
