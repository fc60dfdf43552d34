#include "terminal/demo/Editors.h"

#include <cstdio>
#include <utility>
#include <vector>

#include "terminal/StandIn.h"
#include "terminal/demo/ListRows.h"
#include "terminal/demo/Sample.h"
#include "terminal/demo/Screens.h"
#include "terminal/demo/Steps.h"
#include "terminal/user/DialogControls.h"
#include "terminal/user/UserScripts.h"
#include "tqSymbol.h"

using standin::User;
using standin::UserScript;
using namespace standin::controls;

namespace demo {
namespace {

constexpr int kEdited = 1; // a list that is there, not a new one
constexpr size_t kSymbolsUsed = 5;

constexpr int kUserListsSource = 1;
constexpr int kAlways = 1; // the table is shown, even for one symbol

// What does not fit between the scripts and the dialogs; empty when all is well.
std::string& Misfit() {
  static std::string misfit;
  return misfit;
}

void Complain(const std::string& why) {
  Misfit() = why.substr(0, why.find('\n'));
}

std::string Said(const char* traditional, const char* simplified) {
  return standin::Utf8(InLanguage(traditional, simplified));
}

void EnterSymbol(User& user, size_t number) {
  user.Fill(kCode, SomeSymbols(number, 1));
  user.Press(WindowKey::Enter);
}

void LookAndLeave(User& user, int button) {
  PrintScreen(user);
  user.Click(button);
}

class EditorSession {
public:
  EditorSession(CTQSymbolListMgr& manager, Steps& steps) : manager_(manager), steps_(steps) {}

  void EditLists();
  void EditContents();
  void EditCloudLists();
  void EditCloudContents();
  void SelectList();
  void AddSymbol();
  void AddSymbols();
  void Search();

private:
  CSymbolTableMgr* Tables() { return manager_.GetSymbolTableMgr(); }
  CSymbolList& LastList(int kind);
  std::string LastIds(int kind);
  void Expect(const std::vector<UserScript>& scripts);
  // `what` was done and the list that is the last of its kind has these ids now.
  void Report(const std::string& what, bool done, int kind, const std::string& ids);

  CTQSymbolListMgr& manager_;
  Steps& steps_;
};

CSymbolList& EditorSession::LastList(int kind) {
  TQSymbolListInfo info;
  CSymbolList* list = nullptr;
  manager_.GetTQSymbolListInfo(manager_.GetSymbolListCount(kind) - 1, &info, kind);
  manager_.GetSymbolList(CString(info.ID), &list, kind);
  static CSymbolList none;
  return list == nullptr ? none : *list;
}

std::string EditorSession::LastIds(int kind) {
  return standin::Utf8(LastList(kind).GetIDs());
}

void EditorSession::Expect(const std::vector<UserScript>& scripts) {
  for (const UserScript& script : scripts)
    standin::WhenDialogOpens(script, Complain);
}

void EditorSession::Report(const std::string& what, bool done, int kind, const std::string& ids) {
  const std::string misfit = std::exchange(Misfit(), "");
  const bool all = standin::TakeUnusedScripts() == 0 && misfit.empty();
  steps_.Step(what, all && done && LastIds(kind) == ids);
  if (!misfit.empty())
    steps_.Note(misfit);
}

void EditorSession::EditLists() {
  const std::string heading = Said("觀察", "观察");
  const std::string renamed = Said("示範(改名)", "示范(改名)");
  const UserScript fill = [&heading](User& user) {
    user.Fill(kName, Said("示範", "示范"));
    EnterSymbol(user, 0);
    EnterSymbol(user, 1);
    user.Fill(kHeading, heading);
    user.Click(kAddHeading);
    LookAndLeave(user, kDone);
  };
  const UserScript lists = [&renamed](User& user) {
    user.Click(kNewList);
    user.Click(kRename);
    user.Type(renamed);
    user.Press(WindowKey::Enter);
    user.Click(kMakeDefault);
    LookAndLeave(user, kListsDone);
  };
  Expect({lists, fill});
  const int code = CTQSymbolListMgr::DoSymbolListUI(&manager_, Tables(), nullptr);
  int shownFirst = -1;
  manager_.GetDefaultListIdx(shownFirst);
  Report("DoSymbolListUI: a new list, then renamed and shown first",
         code == 1 && shownFirst == 1 && standin::Utf8(LastList(kUserLists).GetName()) == renamed,
         kUserLists, SomeSymbols(0, 2) + "," + heading + ":");
}

void EditorSession::EditContents() {
  Expect({[](User& user) {
    user.Select(kRows, 0);
    user.Click(kRowDown);
    EnterSymbol(user, 2);
    LookAndLeave(user, kDone);
  }});
  const bool done = CTQSymbolListMgr::DoGroupListUI(&manager_, Tables(), &LastList(kUserLists),
                                                    kEdited, nullptr, 0);
  Report("DoGroupListUI: a row moved down, a symbol in front of it", done, kUserLists,
         SomeSymbols(1, 2) + "," + SomeSymbols(0, 1) + "," + Said("觀察:", "观察:"));
}

void EditorSession::EditCloudLists() {
  const UserScript fill = [](User& user) {
    user.Fill(kName, Said("雲端示範", "云端示范"));
    EnterSymbol(user, 0);
    user.Click(kDone);
  };
  const UserScript lists = [](User& user) {
    user.Click(kNewList);
    LookAndLeave(user, kListsDone);
  };
  Expect({lists, fill});
  const int code = manager_.DoCloudSymbolListUI(&manager_, Tables(), nullptr);
  Report("DoCloudSymbolListUI: a new list", code == 1, kCloudLists, SomeSymbols(0, 1));
}

void EditorSession::EditCloudContents() {
  Expect({[](User& user) {
    EnterSymbol(user, 1);
    LookAndLeave(user, kDone);
  }});
  const bool done =
      manager_.DoCloudGroupListUI(&manager_, Tables(), &LastList(kCloudLists), kEdited, nullptr, 0);
  Report("DoCloudGroupListUI: a symbol at the end", done, kCloudLists, SomeSymbols(0, 2));
}

void EditorSession::SelectList() {
  Expect({[](User& user) {
    user.Select(kSource, kUserListsSource);
    user.Select(kLists, 1);
    LookAndLeave(user, kDone);
  }});
  int kind = 0;
  CString id;
  const int code = CTQSymbolListMgr::DoSelectUI(&manager_, Tables(), nullptr, &kind, id, 0, false);
  Report("DoSelectUI: the second of the user's lists",
         code == 1 && kind == kUserLists && id == LastList(kUserLists).GetID(), kUserLists,
         LastIds(kUserLists));
}

void EditorSession::AddSymbol() {
  const std::string before = LastIds(kUserLists);
  const std::string symbol = SomeSymbols(3, 1);
  Expect({[](User& user) {
    user.Click(kAddSymbol);
    LookAndLeave(user, kDone);
  }});
  const int code = CTQSymbolListMgr::DoGroupSymbolAdd(&manager_, Tables(), nullptr, symbol.c_str());
  Report("DoGroupSymbolAdd: " + symbol + " to the list shown first", code == 1, kUserLists,
         before + "," + symbol);
}

void EditorSession::AddSymbols() {
  const std::string before = LastIds(kUserLists);
  Expect({[](User& user) { LookAndLeave(user, kAddSymbol); }});
  const CString list = LastList(kUserLists).GetID();
  const int code = CTQSymbolListMgr::DoSymbolAddUI(&manager_, Tables(), nullptr,
                                                   SomeSymbols(3, 2).c_str(), list);
  Report("DoSymbolAddUI: two symbols, one of which the list has", code == 1, kUserLists,
         before + "," + SomeSymbols(4, 1));
}

void EditorSession::Search() {
  const std::string lists = LastIds(kUserLists);
  const std::string symbol = SomeSymbols(0, 1);
  Expect({[](User& user) {
    user.WaitFor([&user] { return !user.Rows(kFound).empty(); });
    PrintScreen(user);
    user.DoubleClick(kFound, 0);
  }});
  SymbolInfo found = {};
  const int code = CTQSymbolListMgr::DoSearchUI(&manager_, Tables(), nullptr, symbol.c_str(),
                                                &found, kAlways, nullptr);
  Report("DoSearchUI: " + symbol, code == 1 && found.id == symbol, kUserLists, lists);
}

// One list of the user and none of the cloud.
bool Prepare(CTQSymbolListMgr& manager, const std::string& directory) {
  CPtrArray none;
  return manager.Init(directory.c_str(), 0, 1, 0, nullptr, 0, 0) != 0 &&
         manager.SetSymbolList(&none) != 0 &&
         manager.AddSymbolList("", 0, InLanguage("第一", "第一"), SomeSymbols(0, 3).c_str(), 0,
                               0) != 0;
}

} // namespace

bool ShowEditors(const std::string& directory, std::string& error) {
  std::printf("\nThe editors, with a user at work\n");
  if (SomeSymbols(kSymbolsUsed - 1, 1).empty()) {
    std::printf("  take five symbols, which this market has not\n");
    return true;
  }
  CTQSymbolListMgr manager;
  if (!Prepare(manager, directory)) {
    error = directory + ": the editors' lists could not be made";
    return false;
  }
  Steps steps;
  EditorSession session(manager, steps);
  session.EditLists();
  session.EditContents();
  session.EditCloudLists();
  session.EditCloudContents();
  session.SelectList();
  session.AddSymbol();
  session.AddSymbols();
  session.Search();
  error = steps.Error();
  return error.empty();
}

} // namespace demo
