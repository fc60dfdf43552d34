#include "terminal/demo/Editing.h"

#include <cstdio>
#include <fstream>

#include "terminal/StandIn.h"
#include "terminal/demo/Files.h"
#include "terminal/demo/ListRows.h"
#include "terminal/demo/Sample.h"
#include "terminal/demo/Steps.h"
#include "tqSymbol.h"

namespace demo {
namespace {

constexpr char kListId[] = "DEMO-LIST";
constexpr size_t kSymbolsNeeded = 5;

class Session : public Steps {
public:
  explicit Session(CTQSymbolListMgr& manager) : manager_(manager) {}

  void ShowList() {
    CString symbols;
    if (manager_.GetSymbolListIDs(kUserLists, kListId, symbols, nullptr) != 0)
      std::printf("      %s\n", standin::FromAnsi(symbols.GetString()).c_str());
  }

private:
  CTQSymbolListMgr& manager_;
};

void EditEntries(CTQSymbolListMgr& manager, Session& session) {
  const std::string third = SomeSymbols(2, 1);
  const std::string fourth = SomeSymbols(3, 1);
  session.Step("InsertSymbolList: heading in front of row 0",
               manager.InsertSymbolList(kListId, 0, InLanguage("觀察", "观察"), 1, 1));
  session.ShowList();
  session.Step("InsertSymbolList: " + third + " behind row 1",
               manager.InsertSymbolList(kListId, 1, third.c_str(), 0, 0));
  session.ShowList();
  session.Step("SwapSymbolList: rows 1 and 3", manager.SwapSymbolList(kListId, 1, 3));
  session.ShowList();
  session.Step("ReplaceSymbolList: row 1 by " + fourth,
               manager.ReplaceSymbolList(kListId, 1, fourth.c_str()));
  session.ShowList();
  session.Step("DeleteSymbolList: row 2", manager.DeleteSymbolList(kListId, 2));
  session.ShowList();
}

void RenameIds(CTQSymbolListMgr& manager, Session& session) {
  const std::string fourth = SomeSymbols(3, 1);
  const std::string fifth = SomeSymbols(4, 1);
  CStringArray from;
  CStringArray to;
  from.Add(fourth.c_str());
  to.Add(fifth.c_str());
  session.Step("ReplaceID: " + fourth + " to " + fifth + " in all lists",
               manager.ReplaceID(&from, &to));
  session.ShowList();
}

void LoseAndRestore(CTQSymbolListMgr& manager, const std::string& directory, Session& session) {
  const int before = manager.GetSymbolListCount(kUserLists);
  session.Step("BackupSymbolList", manager.BackupSymbolList());
  std::ofstream(directory + "/SymbolList.xml", std::ios::binary) << "<Result><SymbolList Defau";
  manager.LoadSymbolList();
  session.Note("the working file is cut short; loaded again it gives " +
               std::to_string(manager.GetSymbolListCount(kUserLists)) + " lists");
  manager.RestorSymbolList();
  session.Step("RestorSymbolList, with all " + std::to_string(before) + " lists",
               manager.GetSymbolListCount(kUserLists) == before);
  session.Step("SaveSymbolList", manager.SaveSymbolList());
  std::string working;
  std::string backup;
  ReadFile(directory + "/SymbolList.xml", working);
  ReadFile(directory + "/SymbolList_Backup.xml", backup);
  session.Step("the working file is the backup, byte for byte", working == backup);
}

} // namespace

bool ShowEditing(const std::string& directory, std::string& error) {
  std::printf("\nEditing, on a copy in %s\n", directory.c_str());
  if (SomeSymbols(kSymbolsNeeded - 1, 1).empty()) {
    std::printf("  takes five symbols, which this market has not\n");
    return true;
  }
  CTQSymbolListMgr manager;
  if (manager.Init(directory.c_str(), 0, 1, 0, nullptr, 0, 0) == 0) {
    error = "the symbol tables could not be built";
    return false;
  }
  Session session(manager);
  session.Step("AddSymbolList: a new list at the end",
               manager.AddSymbolList(kListId, 0, InLanguage("示範", "示范"),
                                     SomeSymbols(0, 2).c_str(), 1, 0));
  session.ShowList();
  EditEntries(manager, session);
  RenameIds(manager, session);
  LoseAndRestore(manager, directory, session);
  session.Step("DeleteSymbolList: the new list", manager.DeleteSymbolList(kListId));
  error = session.Error();
  return error.empty();
}

} // namespace demo
