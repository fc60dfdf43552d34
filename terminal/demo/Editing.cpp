#include "terminal/demo/Editing.h"

#include <cstdio>
#include <fstream>

#include "terminal/StandIn.h"
#include "terminal/demo/Files.h"
#include "terminal/demo/Table.h"
#include "tqSymbol.h"

namespace demo {
namespace {

constexpr int kUserLists = 1;
constexpr char kListId[] = "DEMO-LIST";

// The session: prints what happens and remembers the first step that went wrong.
class Session {
public:
  explicit Session(CTQSymbolListMgr& manager) : manager_(manager) {}

  void Step(const std::string& what, int result) {
    std::printf("  %s -> %d%s\n", Padded(what, 58).c_str(), result, Told().c_str());
    if (result == 0 && error_.empty())
      error_ = what + " was refused";
  }
  void ShowList() {
    CString symbols;
    if (manager_.GetSymbolListIDs(kUserLists, kListId, symbols, nullptr) != 0)
      std::printf("      %s\n", standin::FromAnsi(symbols.GetString()).c_str());
  }
  void Note(const std::string& text) { std::printf("  %s\n", text.c_str()); }
  const std::string& Error() const { return error_; }

private:
  std::string Told() {
    std::string told;
    for (; seen_ < standin::Notifications().size(); ++seen_) {
      const standin::Notification& notification = standin::Notifications()[seen_];
      told += "   told: " + std::to_string(notification.code) + " \"" + notification.reason + "\"";
    }
    return told;
  }

  CTQSymbolListMgr& manager_;
  size_t seen_ = standin::Notifications().size();
  std::string error_;
};

void EditEntries(CTQSymbolListMgr& manager, Session& session) {
  const CString heading = standin::ToAnsi("晶圓").c_str();
  session.Step("InsertSymbolList: heading in front of row 0",
               manager.InsertSymbolList(kListId, 0, heading, 1, 1));
  session.ShowList();
  session.Step("InsertSymbolList: 2454.TW behind row 1",
               manager.InsertSymbolList(kListId, 1, "2454.TW", 0, 0));
  session.ShowList();
  session.Step("SwapSymbolList: rows 1 and 3", manager.SwapSymbolList(kListId, 1, 3));
  session.ShowList();
  session.Step("ReplaceSymbolList: row 1 by 2303.TW",
               manager.ReplaceSymbolList(kListId, 1, "2303.TW"));
  session.ShowList();
  session.Step("DeleteSymbolList: row 2", manager.DeleteSymbolList(kListId, 2));
  session.ShowList();
}

void RenameIds(CTQSymbolListMgr& manager, Session& session) {
  CStringArray from;
  CStringArray to;
  from.Add("2303.TW");
  to.Add("3711.TW");
  session.Step("ReplaceID: 2303.TW to 3711.TW in all lists", manager.ReplaceID(&from, &to));
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
  CTQSymbolListMgr manager;
  if (manager.Init(directory.c_str(), 0, 1, 0, nullptr, 0, 0) == 0) {
    error = "the symbol tables could not be built";
    return false;
  }
  Session session(manager);
  const CString name = standin::ToAnsi("示範").c_str();
  session.Step("AddSymbolList: a new list at the end",
               manager.AddSymbolList(kListId, 0, name, "2330.TW,2317.TW", 1, 0));
  session.ShowList();
  EditEntries(manager, session);
  RenameIds(manager, session);
  LoseAndRestore(manager, directory, session);
  session.Step("DeleteSymbolList: the new list", manager.DeleteSymbolList(kListId));
  error = session.Error();
  return error.empty();
}

} // namespace demo
