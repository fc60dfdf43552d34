#include "bench/Options.h"

#include <string_view>

namespace bench {

bool ParseOptions(int argc, char** argv, Options& options, std::string& error) {
  constexpr const char* kUsage =
      "usage: tqBench [--quick] [--hostile] [--listings FILE] [--directory DIR]";
  for (int i = 1; i < argc; ++i) {
    const std::string_view name = argv[i];
    if (name == "--quick") {
      options.quick = true;
    } else if (name == "--hostile") {
      options.hostile = true;
    } else if ((name == "--listings" || name == "--directory") && i + 1 < argc) {
      (name == "--listings" ? options.listings : options.directory) = argv[++i];
    } else {
      error = kUsage;
      return false;
    }
  }
  return true;
}

} // namespace bench
