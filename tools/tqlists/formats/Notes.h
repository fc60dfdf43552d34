// What is wrong with a file, line by line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "recovery/Finding.h"

namespace tqlists {

class Notes {
public:
  virtual ~Notes() = default;
  // `line` and `column` count from 1, the column in bytes; 0 where there is no such place.
  virtual void Add(std::size_t line, std::size_t column, std::string_view reason) = 0;
};

// For the second of two readings.
class NoNotes : public Notes {
public:
  void Add(std::size_t, std::size_t, std::string_view) override {}
};

// What becomes of text that no list file can hold as it is.
inline constexpr char kBlankForControl[] =
    "a line break or control character; a blank stands for it";
inline constexpr char kBlankForComma[] = "a comma in a heading; a blank stands for it";

// A finding of recovery/ with the damaged piece.
void AddFinding(Notes& notes, const tq::Finding& finding);

// Text as it can be shown: a text that is no UTF-8 byte by byte, and a control character, as
// "\x1B".
std::string Shown(std::string_view text);

} // namespace tqlists
