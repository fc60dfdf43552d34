// Text columns for a UTF-8 terminal, where a Chinese character is two cells wide.
#pragma once

#include <string>
#include <string_view>

namespace demo {

// The number of terminal cells of the text.
int CellWidth(std::string_view utf8);

// The text, padded with blanks to `cells`; longer text is unchanged.
std::string Padded(std::string_view utf8, int cells);
std::string PaddedLeft(std::string_view utf8, int cells);

// The text, cut at a whole character and ended by ".." if it is wider than `cells`.
std::string Fitted(std::string_view utf8, int cells);
// The same for entries with separators: cut behind a separator, unless the first entry alone is too
// wide.
std::string FittedList(std::string_view utf8, char separator, int cells);

// The text in lines of at most `cells`, broken at blanks and behind commas, or anywhere in a word
// that is too wide. Every line begins with `indent`, all but the first with four more blanks.
std::string Wrapped(std::string_view utf8, int cells, std::string_view indent);

} // namespace demo
