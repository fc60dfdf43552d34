// Compares the library with peers that do the same work and prints one table of ratios.
// docs/benchmarks.md explains every row.
#include <cstdio>
#include <filesystem>
#include <string>
#include <utility>

#include "bench/Editing.h"
#include "bench/Editors.h"
#include "bench/Groups.h"
#include "bench/Hostile.h"
#include "bench/ListFiles.h"
#include "bench/LookUp.h"
#include "bench/Options.h"
#include "bench/Report.h"
#include "bench/Search.h"
#include "bench/StartUp.h"
#include "bench/Trading.h"
#include "bench/Universe.h"
#include "platform/framework/window/WindowKind.h"
#include "terminal/StandIn.h"

namespace {

bool IsLarge(std::size_t symbols) {
  return symbols > 500'000;
}

void MeasureUniverse(bench::Report& report, bench::Universe universe, bool quick) {
  const std::size_t symbols = universe.market.instruments.size();
  const std::size_t startUps = quick ? 3 : IsLarge(symbols) ? 7 : 21;
  const std::size_t lookUps = quick ? 3 : IsLarge(symbols) ? 5 : 21;
  report.Section(universe.title + ", " + std::to_string(symbols) + " symbols");
  standin::SetMarket(std::move(universe.market));
  bench::MeasureStartUp(report, symbols, startUps);
  bench::MeasureLookUps(report, standin::CurrentMarket(), lookUps);
  bench::MeasureSorting(report, lookUps);
}

void MeasureGenerated(bench::Report& report, const bench::Options& options,
                      const std::string& directory) {
  const std::size_t middle = options.quick ? 10'000 : 100'000;
  const std::size_t repetitions = options.quick ? 3 : 21;
  const bench::ListFileSize size =
      options.quick ? bench::ListFileSize{20, 500} : bench::ListFileSize{1000, 500};
  MeasureUniverse(report, bench::GenerateUniverse(middle), options.quick);
  report.Section("list file of " + std::to_string(size.lists) + " lists of " +
                 std::to_string(size.symbols) + " symbols of that universe");
  bench::MeasureListFiles(report, standin::CurrentMarket(), size, directory, repetitions);
  bench::MeasureEditing(report, standin::CurrentMarket(), directory, options.quick);
  bench::MeasureTrading(report, standin::CurrentMarket(), options.quick);
  if (!options.quick)
    MeasureUniverse(report, bench::GenerateUniverse(1'000'000), options.quick);
}

} // namespace

int main(int argc, char** argv) {
  bench::Options options;
  std::string error;
  if (!bench::ParseOptions(argc, argv, options, error)) {
    std::fprintf(stderr, "%s\n", error.c_str());
    return 2;
  }
  bench::Universe listings;
  if (!options.listings.empty() && !bench::ReadListings(options.listings, listings, error)) {
    std::fprintf(stderr, "tqBench: %s\n", error.c_str());
    return 1;
  }
  tq::ChooseWindows(tq::WindowKind::Memory);
  standin::RecordCalls(false);
  standin::SetTraditional(true);
  std::filesystem::path directory = options.directory;
  if (directory.empty())
    directory = std::filesystem::absolute(argv[0]).parent_path() / "bench-data";
  std::filesystem::create_directories(directory);
  bench::Report report;
  if (options.hostile) {
    bench::MeasureHostile(report, directory.string(), options.quick);
    return report.Finish();
  }
  if (options.listings.empty())
    std::printf("No --listings FILE: a real market's listing file is not measured.\n");
  else
    MeasureUniverse(report, std::move(listings), options.quick);
  MeasureGenerated(report, options, directory.string());
  bench::MeasureGroups(report, options.quick);
  bench::MeasureEditors(report, options.quick);
  bench::MeasureSearch(report, options.quick);
  bench::MeasureHostile(report, directory.string(), options.quick);
  return report.Finish();
}
