// The demo's command line.
#pragma once

#include <string>

namespace demo {

struct Options {
  std::string market;      // directory of exchanges.tsv and symbols.tsv
  std::string data;        // directory of SymbolList.xml
  std::string edit;        // empty directory for the editing session; empty text: no session
  bool traditional = true; // --lang tw or cn
};

// False, with `error` in one line, when the arguments are wrong.
bool ParseOptions(int argc, char** argv, Options& options, std::string& error);

} // namespace demo
