#include "soak/Options.h"

#include <charconv>
#include <string_view>

namespace soak {
namespace {

template <typename Number> bool ReadNumber(std::string_view text, Number& number) {
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stop == end;
}

// True for an option with a value.
bool Take(std::string_view name, std::string_view value, Options& options) {
  if (name == "--seed")
    return ReadNumber(value, options.seed);
  if (name == "--kills")
    return ReadNumber(value, options.kills);
  if (name == "--operations")
    return ReadNumber(value, options.operations);
  if (name == "--steps")
    return ReadNumber(value, options.steps);
  if (name == "--replay") {
    options.replay = true;
    return ReadNumber(value, options.seed);
  }
  options.directory = value;
  return name == "--directory";
}

} // namespace

bool ParseOptions(int argc, char** argv, Options& options) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view name = argv[i];
    if (name == "--careless")
      options.careless = true;
    else if (name == "--killed")
      options.killed = true;
    else if (name.starts_with("--") && i + 1 < argc) {
      if (!Take(name, argv[++i], options))
        return false;
    } else if (!ReadNumber(name, options.seconds)) {
      return false;
    }
  }
  return options.replay ? !options.directory.empty() && options.steps > 0 : options.seconds > 0;
}

} // namespace soak
