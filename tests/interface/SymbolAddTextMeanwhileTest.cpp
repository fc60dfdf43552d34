// Symbols to one of the user's lists while the services fail, and while the terminal changes the
// lists.
#include <algorithm>

#include "tests/interface/SymbolAddText.h"
#include "tests/support/WindowCount.h"

namespace {

class SymbolAddMeanwhileText : public SymbolAddText {
protected:
  // What a user does in a minute. It goes on whatever fails on the way.
  static void Session(User& user) {
    user.Select(kLists, 0);
    WhenDialogOpens([](User& contents) { contents.Click(kCancel); });
    user.Click(kModify);
    WhenDialogOpens([](User& contents) {
      contents.Fill(kName, "four");
      contents.Click(kDone);
      if (contents.IsUp())
        contents.Click(kCancel);
    });
    user.Click(kNewList);
    user.Select(kLists, 1);
    user.Click(kAddHere);
    if (user.IsUp())
      user.Click(kClose);
  }
  void RunSession() {
    Run(Session, "2317.TW,2881.TW,GONE.TW", "C");
    TakeUnusedScripts();
  }
  void ExpectNothingLost() {
    EXPECT_EQ(Symbols("A"), "2330.TW");
    EXPECT_EQ(Symbols("B").rfind("1101.TW,2317.TW", 0), 0U);
    EXPECT_EQ(Symbols("C"), "2454.TW");
  }
};

// --- Failing services ----------------------------------------------------------------------------

TEST_F(SymbolAddMeanwhileText, ASaveThatFailsIsToldAndTheTerminalHearsAllTheSame) {
  Run([this](User& user) {
    directory.Remove();
    AddThem(user);
  });
  EXPECT_EQ(Shown(), "48026/0");
  EXPECT_EQ(Symbols("B"), "1101.TW,2317.TW,2881.TW");
  EXPECT_NE(Happened().find("; told 4:; told 40:"), std::string::npos) << Happened();
}

TEST_F(SymbolAddMeanwhileText, AServiceThatKnowsNothingLosesNoSymbol) {
  standin::FailAlways("VLGetSymbolInfos");
  standin::FailAlways("VLGetSymbolInfo");
  EXPECT_EQ(Add("2881.TW"), kClosed);
  EXPECT_EQ(All(), "A/one/2330.TW|B/two/1101.TW,2317.TW,2881.TW|C/three/2454.TW");
}

TEST_F(SymbolAddMeanwhileText, ADuplicateWhoseNameTheServiceCannotTellIsNotAddedAgain) {
  standin::FailAlways("VLGetSymbolInfos");
  standin::FailAlways("VLGetSymbolInfo");
  EXPECT_EQ(Add("2317.TW"), kClosed);
  EXPECT_EQ(All(), untouched);
  EXPECT_NE(Shown().find("2317.TW"), std::string::npos) << Shown();
}

TEST_F(SymbolAddMeanwhileText, AMessageBoxThatFailsLosesNothing) {
  standin::FailAlways("tqShowMessageStr");
  EXPECT_EQ(Add("2317.TW,2881.TW"), kClosed);
  EXPECT_EQ(Symbols("B"), "1101.TW,2317.TW,2881.TW");
}

TEST_F(SymbolAddMeanwhileText, AnyCallMayFail) {
  standin::ClearCalls();
  RunSession();
  const int calls = static_cast<int>(standin::Calls().size());
  ASSERT_GT(calls, 5);
  const int step = std::max(1, calls / ManyFailures());
  for (int n = 1; n <= calls; n += step) {
    Start({"A/one/2330.TW", "B/two/1101.TW,2317.TW", "C/three/2454.TW"});
    standin::FailCall("*", n);
    RunSession();
    standin::FailCall("*", 0);
    ExpectNothingLost();
    ASSERT_FALSE(HasFailure()) << "call " << n;
  }
}

TEST_F(SymbolAddMeanwhileText, ItLeavesNothingBehind) {
  const auto openAndClose = [this] { Run([](User& user) { user.CloseByTitleBar(); }); };
  for (int i = 0; i < 3; ++i) // allocates what is made once and kept
    openAndClose();
  const std::size_t before = WindowResources();
  for (int i = 0; i < ManyRuns() / 20; ++i)
    openAndClose();
  EXPECT_LE(WindowResources(), before + ResourceSlack());
}

// --- A terminal that changes the lists -----------------------------------------------------------

TEST_F(SymbolAddMeanwhileText, AListThatTheTerminalAddsMeanwhileIsKeptAtTheEnd) {
  Run([this](User& user) {
    EXPECT_EQ(manager.AddSymbolList("N", 0, "pushed", "1436.TW", 1, 0), 1);
    AddThem(user);
  });
  EXPECT_EQ(All(), "A/one/2330.TW|B/two/1101.TW,2317.TW,2881.TW|C/three/2454.TW|N/pushed/1436.TW");
}

TEST_F(SymbolAddMeanwhileText, AListThatTheTerminalPutsInFrontMeanwhileIsKeptAtTheEnd) {
  Run([this](User& user) {
    EXPECT_EQ(manager.AddSymbolList("N", 0, "pushed", "1436.TW", 0, 0), 1);
    AddThem(user);
  });
  EXPECT_EQ(All(), "A/one/2330.TW|B/two/1101.TW,2317.TW,2881.TW|C/three/2454.TW|N/pushed/1436.TW");
}

TEST_F(SymbolAddMeanwhileText, AListThatTheTerminalAddsMeanwhileIsKeptWhenTheUserChangesNothing) {
  Do([this](User&) { EXPECT_EQ(manager.AddSymbolList("N", 0, "pushed", "1436.TW", 1, 0), 1); });
  EXPECT_EQ(All(), untouched + "|N/pushed/1436.TW");
}

TEST_F(SymbolAddMeanwhileText, AListThatTheTerminalDeletesMeanwhileIsBackWithTheUsersSymbols) {
  Run([this](User& user) {
    EXPECT_EQ(manager.DeleteSymbolList("B"), 1);
    AddThem(user);
  });
  EXPECT_EQ(Symbols("B"), "1101.TW,2317.TW,2881.TW");
}

TEST_F(SymbolAddMeanwhileText, ListsThatTheTerminalClearsMeanwhileAreBackWithTheUsersSymbols) {
  Run([this](User& user) {
    manager.ClearSymbolList();
    AddThem(user);
  });
  EXPECT_EQ(Symbols("B"), "1101.TW,2317.TW,2881.TW");
}

TEST_F(SymbolAddMeanwhileText, AListThatBothChangeIsAsTheUserSawIt) {
  Run([this](User& user) {
    EXPECT_EQ(manager.InsertSymbolList("B", 0, "1436.TW", 0, 0), 1);
    AddThem(user);
  });
  EXPECT_EQ(Symbols("B"), "1101.TW,2317.TW,2881.TW");
}

TEST_F(SymbolAddMeanwhileText, TheTerminalMayStartTheManagerAnewWithinAnyCall) {
  for (const char* operation :
       {"VLGetSymbolInfo", "VLGetSymbolInfos", "tqShowMessageStr", "TQSCall"}) {
    Start({"A/one/2330.TW", "B/two/1101.TW,2317.TW", "C/three/2454.TW"});
    standin::OnCall(operation, [this] { StartWithTables(); });
    RunSession();
    standin::OnCall(operation, nullptr);
    ExpectNothingLost();
    ASSERT_FALSE(HasFailure()) << operation;
  }
}

} // namespace
