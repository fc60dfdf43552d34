// What the fields of all market files have in common.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "terminal/control/Encoding.h"

namespace standin {

// Visible ASCII characters only.
inline bool IsPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c > ' ' && c <= '~'; });
}

// 1 to `longest` visible ASCII characters.
inline bool IsPlainId(std::string_view text, std::size_t longest) {
  return !text.empty() && text.size() <= longest && IsPlain(text);
}

// Whether a name takes at most `size` bytes in either language. No text is longer in a code page
// than in UTF-8.
inline bool Fits(std::string_view name, std::size_t size) {
  return name.size() <= size || (Encode(name, Language::Traditional).size() <= size &&
                                 Encode(name, Language::Simplified).size() <= size);
}

// The text of a field, in which "-" means none.
inline std::string OptionalText(std::string_view field) {
  return field == "-" ? std::string() : std::string(field);
}

// Splits symbol ids joined by ","; false when one is empty or not an id.
bool SplitIds(std::string_view text, std::vector<std::string>& ids);

// The text with its ASCII letters in lower case. To the services, ids that differ only in letter
// case are the same.
std::string FoldedId(std::string_view id);

} // namespace standin
