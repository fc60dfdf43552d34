// What the examples share.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

#include <StandIn.h>
#include <tqSymbol.h>

// Ends the program when a result is not what it should be.
inline void Expect(bool holds, const char* what) {
  if (holds)
    return;
  std::fprintf(stderr, "not as expected: %s\n", what);
  std::exit(1);
}

// Texts of the library are in the process's code page; what is printed is UTF-8.
inline std::string Shown(const char* text) {
  return TQToUtf8(text).GetString();
}
inline CString Text(const char* utf8) {
  return TQFromUtf8(utf8);
}

// Every example works on the sample market and on lists of its own, in the directory that is its
// first argument or else the current one.
inline std::string Begin(int argc, char** argv) {
  std::string error;
  Expect(standin::ServeSampleMarket(error), error.c_str());
  return argc > 1 ? argv[1] : ".";
}

// A row for each list of a kind.
inline void PrintLists(CTQSymbolListMgr& manager, int kind) {
  CString id;
  CString name;
  CString symbols;
  for (int i = 0; manager.GetSymbolListInfo(i, id, name, symbols, kind); ++i)
    std::printf("  %s: %s\n", Shown(name).c_str(), Shown(symbols).c_str());
}
