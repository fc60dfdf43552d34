// How the text of a message box is laid out: lines of a width that can be read at a glance.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace standin {

struct BoxLines {
  std::vector<std::string> lines; // UTF-8
  int widest = 0;                 // letters; a Chinese character is as wide as two
};

// Breaks a text at its line feeds, and lines that are too long behind a blank or comma, or where
// there is none, anywhere. A text of more lines than a screen has room for ends with "...".
BoxLines BreakForBox(std::string_view utf8);

} // namespace standin
