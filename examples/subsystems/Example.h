// What the examples share.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

#include <StandIn.h>
#include <tqSymbol.h>

// Ends the program when a result is not what it should be. What the library has to say of it is
// that of its latest operation.
inline void Expect(bool holds, const char* what) {
  if (holds)
    return;
  CString problem;
  CTQSymbolListMgr::GetLastProblem(problem);
  std::fprintf(stderr, "not as expected: %s (%s)\n", what, problem.GetString());
  std::exit(1);
}

// Every example works on the sample market and on lists of its own, in the directory that is its
// first argument or else the current one.
inline std::string Begin(int argc, char** argv) {
  std::string error;
  Expect(standin::ServeSampleMarket(error), error.c_str());
  return argc > 1 ? argv[1] : ".";
}

// Starts the library there.
inline void Start(CTQSymbolListMgr& manager, const std::string& directory) {
  TQInitOptions options;
  options.dataDirectory = directory.c_str();
  Expect(manager.Init(options) != 0, "Init");
}

// A row for each list of a kind. Texts of the library are in the process's code page; what is
// printed is UTF-8.
inline void PrintLists(CTQSymbolListMgr& manager, TQListKind kind) {
  CString id;
  CString name;
  CString symbols;
  for (int i = 0; manager.GetSymbolListInfo(i, id, name, symbols, kind); ++i)
    std::printf("  %s: %s\n", TQToUtf8(name).GetString(), TQToUtf8(symbols).GetString());
}
