// Why an operation failed, what can be asked before it is called, and the log.
#include "Example.h"

namespace {

// In the place of the log file. The context is what SetLog was given.
void Print(void*, int level, const char* text) {
  std::printf("log: %d %s\n", level, TQToUtf8(text).GetString());
}

} // namespace

int main(int argc, char** argv) {
  const std::string directory = Begin(argc, argv);
  CTQSymbolListMgr::SetLog(nullptr, TQLogChange, Print, nullptr);
  CTQSymbolListMgr manager;
  Start(manager, directory);

  Expect(manager.AddSymbolList("TECH", 0, "Technology", "2330.TW", 1, 0) != 0, "added");
  // The identifier is taken by a list of another name.
  Expect(manager.AddSymbolList("TECH", 0, "Banks", "2881.TW", 1, 0) == 0, "refused");
  CString text;
  const TQProblem problem = CTQSymbolListMgr::GetLastProblem(text);
  Expect(problem == TQProblemTaken, "the reason");
  std::printf("%s\n", text.GetString());

  // With such a name the list file could not be loaded again: a terminal asks before it sets one.
  Expect(CTQSymbolListMgr::CheckListName("Fish & chips") == TQTextUnloadable, "a bad name");
  Expect(CTQSymbolListMgr::CheckListName("Banks") == 0, "a good name");

  Expect(manager.HasUnsavedChanges() == 0, "AddSymbolList saves");
  manager.InsertSymbolList("TECH", 0, "2454.TW", 0, 0);
  Expect(manager.HasUnsavedChanges() != 0, "edits of entries do not");
}
