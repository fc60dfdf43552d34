// Where the parts of a damaged list file begin.
#pragma once

#include <cstddef>
#include <string_view>

namespace tq {

enum class Opening {
  None,
  List,      // "<List"
  ListEnd,   // "</List"
  Lists,     // "<SymbolList"
  ListsEnd,  // "</SymbolList"
  Result,    // "<Result"
  ResultEnd, // "</Result"
  Instruction,
  Comment,
  CharacterData,
  Type, // "<!" of a markup declaration
};

// What stands whole at `at`.
Opening OpeningAt(std::string_view text, std::size_t at);
// The length of its text, up to the end of the name.
std::size_t LengthOf(Opening opening);

// Whether "<List ", perhaps with damaged bytes, stands at `at`.
bool LooksLikeList(std::string_view text, std::size_t at);

// Whether "</Result>", perhaps with damaged bytes, stands at `at`.
bool LooksLikeResultEnd(std::string_view text, std::size_t at);

// The end of the damaged list that holds the byte in front of `from`: the line end, or the place on
// the line, behind which the next part begins. Text that looks like an opening belongs to the list
// unless it is where one can begin: at the beginning of a line, behind a tag or behind zero bytes.
std::size_t EndOfDamagedList(std::string_view text, std::size_t from);

// The end of what belongs to no list: the next opening, wherever it is.
std::size_t EndOfRemains(std::string_view text, std::size_t from);

// Whether the element that ends at `at` is followed by what follows the elements of a list file,
// rather than by more of its own values.
bool IsElementEnd(std::string_view text, std::size_t at);

} // namespace tq
