// A list as the program holds it, and the entries of its symbol string.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tqlists {

// Texts are UTF-8.
struct List {
  std::string id;
  std::string name;
  std::string symbols; // ids and headings joined by ","
};

// The next entry of a symbol string, from `at` on, which moves behind it. Empty and blank ones are
// passed over, as the terminal does. False at the end.
bool NextEntry(std::string_view symbols, std::size_t& at, std::string_view& entry);

template <typename Visit> void ForEachEntry(std::string_view symbols, Visit visit) {
  std::string_view entry;
  for (std::size_t at = 0; NextEntry(symbols, at, entry);)
    visit(entry);
}

std::size_t CountEntries(std::string_view symbols);

// Whether an entry is a heading to the terminal: it has a ":" after its first character.
bool IsHeading(std::string_view entry);

// What the terminal shows of a heading, which it stores with a ":" behind it. Empty for an entry
// that is no heading, or was stored in another way.
std::string_view HeadingText(std::string_view entry);

// The other way round, with a blank for each comma, which no entry can hold. Empty when nothing is
// left of the text.
std::string HeadingEntry(std::string_view text);
// Whether it has such commas.
bool LosesComma(std::string_view heading);

// Puts an entry, or several with commas between, behind a symbol string.
void AppendEntry(std::string& symbols, std::string_view entry);

// Blanks at both ends do not count.
std::string_view Trimmed(std::string_view text);

// Text in which each control character, and what is no character, is a blank, for it stands in one
// line of any file.
std::string OneLine(std::string_view text);
// Whether it is so already.
bool IsOneLine(std::string_view text);

// ASCII letters in lower case: identifiers that differ in nothing else are one.
std::string LowerCase(std::string_view text);

} // namespace tqlists
