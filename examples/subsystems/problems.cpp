// What a terminal's programmer asks when something does not work.
#include "Example.h"

namespace {

// In the place of the log's file. The text is good until the call returns.
void PrintLine(void* /*context*/, int level, const char* text) {
  std::printf("log %d: %s\n", level, Shown(text).c_str());
}

void PrintProblem() {
  CString text;
  const TQProblem problem = CTQSymbolListMgr::GetLastProblem(text);
  std::printf("problem %d: %s\n", problem, Shown(text).c_str());
}

} // namespace

int main(int argc, char** argv) {
  const std::string directory = Begin(argc, argv);
  CTQSymbolListMgr::SetLog(nullptr, TQLogChange, PrintLine, nullptr);

  TQInitOptions options;
  options.dataDirectory = directory.c_str();
  CTQSymbolListMgr manager;
  Expect(manager.Init(options) != 0, "Init");

  // The result says that it failed, the problem says why.
  Expect(manager.AddSymbolList("A", 0, Text("甲"), "2330.TW", 1, 0) != 0, "added");
  Expect(manager.AddSymbolList("A", 0, Text("乙"), "2317.TW", 1, 0) == 0, "it has another name");
  PrintProblem();

  // Names that the user typed are looked at before they are given to a list.
  Expect(CTQSymbolListMgr::CheckListName("R&D") == TQTextUnloadable, "no file could hold it");

  // Edits of entries do not save.
  Expect(manager.InsertSymbolList("A", 0, "2454.TW", 0, 0) != 0, "a symbol");
  Expect(manager.HasUnsavedChanges() != 0, "not on the disk yet");
  Expect(manager.SaveSymbolList() != 0 && manager.HasUnsavedChanges() == 0, "saved");

  // Half a character: without the debug mode it would be left out without a word.
  CTQSymbolListMgr::SetDebugMode(TQDebugLog);
  manager.AddSymbolList("B", 0, "B\xA4", "2330.TW", 1, 0);
}
