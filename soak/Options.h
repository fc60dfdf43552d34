// The command line.
#pragma once

#include <cstdint>
#include <string>

namespace soak {

inline constexpr char kUsage[] =
    "usage: tqSoak SECONDS [--seed N] [--kills N] [--operations N] [--directory DIR] [--careless]\n"
    "       tqSoak --replay SEED --steps N [--killed] --directory DIR\n"
    "  --kills, --operations  end before the time, when so many have been\n"
    "  --directory            where the data directory is made; of a replay the data itself, on a\n"
    "                         copy of which it works\n"
    "  --careless             save without care for a kill: a run that must find losses\n"
    "  --replay               one life again, as its loss was told\n";

struct Options {
  long seconds = 0;
  std::uint64_t seed = 1;
  std::uint64_t kills = 0;      // 0: all of the time
  std::uint64_t operations = 0; // with it
  std::string directory;
  bool careless = false;
  // Of a replay.
  bool replay = false;
  bool killed = false;
  std::uint64_t steps = 0;
};

// False for a command line that is none.
bool ParseOptions(int argc, char** argv, Options& options);

} // namespace soak
