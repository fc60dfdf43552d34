// A terminal with services of its own: makes a list, saves it, and shows what the library found out
// about its symbols. The data directory is the first argument.
#include <cstdio>

#include <tqSymbol.h>

int main(int argc, char** argv) {
  TQInitOptions options;
  options.dataDirectory = argc > 1 ? argv[1] : ".";
  CTQSymbolListMgr manager;
  if (!manager.Init(options)) {
    CString why; // names the service that failed
    CTQSymbolListMgr::GetLastProblem(why);
    std::fprintf(stderr, "%s\n", why.GetString());
    return 1;
  }
  // A list of the same identifier and name gets these symbols, so that this may run again.
  if (!manager.AddSymbolList("MINE", 0, "My stocks", "1002.TW,2001.TW,9999.TW", 1, 0)) {
    std::fprintf(stderr, "the list could not be added\n");
    return 1;
  }
  for (int i = 0; i < manager.GetTQSymbolCount("MINE", 1); ++i) {
    SymbolInfo symbol = {};
    int lot = 0;
    manager.GetTQSymbolInfo("MINE", i, &symbol, 1);
    manager.GetSymbolTableMgr()->LookUpSymbolGetInt(FieldTradeLot, symbol.id, "", lot);
    std::printf("%-8s %-18s lots of %d\n", symbol.id, symbol.name, lot);
  }
}
