// Texts of ids joined by ",". Empty tokens are skipped.
#pragma once

#include <string_view>

namespace standin {

template <class Visit> void ForEachToken(std::string_view text, Visit visit) {
  while (!text.empty()) {
    const std::size_t comma = text.find(',');
    const std::string_view token = text.substr(0, comma);
    if (!token.empty())
      visit(token);
    text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
  }
}

inline std::size_t CountTokens(std::string_view text) {
  std::size_t count = 0;
  ForEachToken(text, [&count](std::string_view) { ++count; });
  return count;
}

} // namespace standin
