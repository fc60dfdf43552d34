// A terminal with services of its own: makes a list, saves it, and shows what the library found out
// about its symbols. The data directory is the first argument.
#include <cstdio>

#include <tqSymbol.h>

namespace {

// Says why the latest operation of the library failed.
int Fail() {
  CString problem;
  CTQSymbolListMgr::GetLastProblem(problem);
  std::fprintf(stderr, "%s\n", problem.GetString());
  return 1;
}

} // namespace

int main(int argc, char** argv) {
  TQInitOptions options;
  options.dataDirectory = argc > 1 ? argv[1] : ".";
  CTQSymbolListMgr manager;
  if (!manager.Init(options))
    return Fail();
  // A list of the same identifier and name gets these symbols, so that this may run again.
  if (!manager.AddSymbolList("MINE", 0, "My stocks", "1002.TW,2001.TW,9999.TW", 1, 0))
    return Fail();
  for (int i = 0; i < manager.GetTQSymbolCount("MINE", TQListKindUser); ++i) {
    SymbolInfo symbol = {};
    int lot = 0;
    manager.GetTQSymbolInfo("MINE", i, &symbol, TQListKindUser);
    manager.GetSymbolTableMgr()->LookUpSymbolGetInt(FieldTradeLot, symbol.id, "", lot);
    std::printf("%-8s %-18s lots of %d\n", symbol.id, symbol.name, lot);
  }
}
