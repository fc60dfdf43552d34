#include "terminal/demo/Options.h"

#include <string_view>

namespace demo {

bool ParseOptions(int argc, char** argv, Options& options, std::string& error) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view name = argv[i];
    if (name != "--market" && name != "--data" && name != "--edit" && name != "--lang") {
      error = "unknown argument " + std::string(name);
      return false;
    }
    if (++i == argc) {
      error = std::string(name) + " needs a value";
      return false;
    }
    const std::string value = argv[i];
    if (name == "--market") {
      options.market = value;
    } else if (name == "--data") {
      options.data = value;
    } else if (name == "--edit") {
      options.edit = value;
    } else if (value == "tw" || value == "cn") {
      options.traditional = value == "tw";
    } else {
      error = "--lang is tw or cn, not " + value;
      return false;
    }
  }
  if (options.market.empty() || options.data.empty()) {
    error = "usage: tqDemo --market DIR --data DIR [--edit DIR] [--lang tw|cn]";
    return false;
  }
  return true;
}

} // namespace demo
