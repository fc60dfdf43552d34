// Columns that text takes on a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tqlists {

// Of valid UTF-8: 2 for an East Asian character, 0 for one that stands over another.
std::size_t DisplayWidth(std::string_view utf8);

// The text with blanks behind it, up to so many columns.
std::string Padded(std::string_view utf8, std::size_t columns);

} // namespace tqlists
