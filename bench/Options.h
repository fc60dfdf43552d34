// The command line of the program.
#pragma once

#include <string>

namespace bench {

struct Options {
  std::string listings;  // a real market's listing file; empty: not measured
  std::string directory; // where list files are written; empty: beside the program
  bool hostile = false;  // only the part that is meant to make the library slow
  bool quick = false;    // small universes, few repetitions: only shows that everything runs
};

bool ParseOptions(int argc, char** argv, Options& options, std::string& error);

} // namespace bench
