// What the program is told on its command line.
#pragma once

#include <string>

namespace bench {

struct Options {
  std::string listings;  // a real market's listing file; empty: that universe is left out
  std::string directory; // where list files are written; empty: beside the program
  bool hostile = false;  // only what is meant to make the library slow
  bool quick = false; // small universes and few repetitions: shows that it runs, says nothing else
};

bool ParseOptions(int argc, char** argv, Options& options, std::string& error);

} // namespace bench
