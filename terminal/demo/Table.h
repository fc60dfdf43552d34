// Text columns on a UTF-8 terminal, where a Chinese character is two cells wide.
#pragma once

#include <string>
#include <string_view>

namespace demo {

// Terminal cells that the text takes.
int CellWidth(std::string_view utf8);

// The text, filled up with blanks to `cells`; longer text is left as it is.
std::string Padded(std::string_view utf8, int cells);
std::string PaddedLeft(std::string_view utf8, int cells);

} // namespace demo
