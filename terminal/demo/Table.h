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

// The text, cut at a whole character and ended by ".." when it takes more than `cells`.
std::string Fitted(std::string_view utf8, int cells);
// The same for entries with a separator between them: cut behind one, unless the first entry is too
// wide.
std::string FittedList(std::string_view utf8, char separator, int cells);

// The text over as many lines as it takes, none of them wider than `cells`: broken at blanks and
// behind commas, or anywhere in a word that is wider by itself. Every line begins with `indent`,
// all but the first with four blanks more.
std::string Wrapped(std::string_view utf8, int cells, std::string_view indent);

} // namespace demo
