#include "soak/Figures.h"

#include <cstdio>
#include <string>

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace soak {
namespace {

constexpr const char* kCountNames[kCounts] = {"calls of services that failed",
                                              "steps of the disk that failed",
                                              "writes to a full disk",
                                              "re-entries",
                                              "actions of users in dialogs",
                                              "files read",
                                              "files saved",
                                              "saves refused",
                                              "files by another program"};

// 1234567 as 1,234,567.
std::string Grouped(std::uint64_t number) {
  std::string text = std::to_string(number);
  for (std::size_t at = text.size(); at > 3;)
    text.insert(at -= 3, ",");
  return text;
}

void Row(const std::string& name, std::uint64_t number) {
  std::printf("  %-34s %14s\n", name.c_str(), Grouped(number).c_str());
}

} // namespace

bool IsWatched() {
#if defined(_WIN32)
  return ::_isatty(1) != 0;
#else
  return ::isatty(1) != 0;
#endif
}

void PrintProgress(const Ledger& ledger, const Tally& tally, double seconds) {
  std::printf("\r  %.0f s, %s operations, %s kills, %s losses ", seconds,
              Grouped(ledger.Operations()).c_str(), Grouped(tally.kills).c_str(),
              Grouped(tally.losses).c_str());
  std::fflush(stdout);
}

void PrintFigures(const Ledger& ledger, const Tally& tally, double seconds) {
  std::printf("%s  %-34s %14.0f\n", IsWatched() ? "\n" : "", "seconds", seconds);
  Row("operations", ledger.Operations());
  for (std::size_t i = 0; i < kFamilies; ++i)
    Row(std::string("  of ") + kFamilyNames[i], ledger.operations[i].Value());
  for (std::size_t i = 0; i < kCounts; ++i)
    Row(kCountNames[i], ledger.counts[i].Value());
  Row("lives", tally.lives);
  Row("kills", tally.kills);
  Row("  in the middle of a save", tally.killsInSaves);
  Row("losses", tally.losses);
}

} // namespace soak
