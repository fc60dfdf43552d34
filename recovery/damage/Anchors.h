// What shows the values of a damaged list: the names of its attributes with the equals sign and the
// quotation mark behind them.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace tq {

enum class Field { Id, Name, Symbols, Flag, Other };

struct Anchor {
  Field field = Field::Other;
  std::size_t begin = 0; // of the attribute's name
  std::size_t value = 0; // behind the quotation mark
  char quote = '\'';
  bool sure = true; // the value begins at `value`; false when its quotation mark is missing
};

// A byte of an attribute's name.
bool IsWordByte(char byte);

// Whether a byte can have taken the place of another one by damage: a control byte, one that no
// encoding has, or one that is markup.
bool IsDamage(char byte);

// Whether `wanted` stands at the beginning of `text`, but for one wrong byte, or for some damaged
// ones that leave at least three and half of it.
bool Resembles(std::string_view text, std::string_view wanted);

// The attributes of a list in the order of `text` from `begin` to `end`, and with Other those of
// other names.
std::vector<Anchor> FindAnchors(std::string_view text, std::size_t begin, std::size_t end);

// The damaged beginning of one, or none.
std::optional<Anchor> FindDamagedAnchor(std::string_view text, std::size_t begin, std::size_t end,
                                        Field field);

// The rest of an attribute's beginning whose front is cut off: "me='". Its field is Other when that
// could be more than one.
std::optional<Anchor> AnchorOfRest(std::string_view text, std::size_t begin, std::size_t end);

// The attribute's beginning as it is written: " Name='".
std::string_view WrittenAs(Field field);

} // namespace tq
