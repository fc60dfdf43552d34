#include "recovery/damage/Anchors.h"

#include <algorithm>
#include <array>

#include "recovery/xml/Bytes.h"

namespace tq {
namespace {

constexpr std::array<std::string_view, 4> kWritten = {" ID='", " Name='", " Value='", " Flag='"};

// " Name='" without blank, equals sign and quotation mark.
std::string_view NameOf(std::string_view written) {
  return written.substr(1, written.size() - 3);
}

Field FieldOfName(std::string_view name) {
  for (std::size_t i = 0; i < kWritten.size(); ++i) {
    if (NameOf(kWritten[i]) == name)
      return static_cast<Field>(i);
  }
  return Field::Other;
}

bool IsBeyondAsciiByte(char byte) {
  return static_cast<unsigned char>(byte) >= 0x80;
}

// The anchor around the equals sign at `equals`, if there is one.
std::optional<Anchor> AnchorAround(std::string_view text, std::size_t begin, std::size_t end,
                                   std::size_t equals) {
  const std::size_t quote = BehindBlanks(text, equals + 1);
  if (quote >= end || !IsQuote(text[quote]))
    return std::nullopt;
  std::size_t back = equals;
  while (back > begin && IsBlank(text[back - 1]))
    --back;
  const std::size_t behind = back;
  while (back > begin && IsWordByte(text[back - 1]))
    --back;
  if (back == behind ||
      (back > begin && IsBeyondAsciiByte(text[back - 1]) && !IsDamage(text[back - 1])))
    return std::nullopt;
  return Anchor{FieldOfName(text.substr(back, behind - back)), back, quote + 1, text[quote]};
}

} // namespace

bool IsWordByte(char byte) {
  return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
         (byte >= '0' && byte <= '9') || byte == '_' || byte == ':' || byte == '-' || byte == '.';
}

bool IsDamage(char byte) {
  return IsControl(byte) || IsQuote(byte) || byte == '&' || byte == '<' || byte == '\xFF';
}

bool Resembles(std::string_view text, std::string_view wanted) {
  if (text.size() < wanted.size())
    return false;
  std::size_t right = 0;
  std::size_t wrong = 0;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    right += text[i] == wanted[i] ? 1U : 0U;
    wrong += text[i] != wanted[i] && !IsDamage(text[i]) ? 1U : 0U;
  }
  const bool all = right + 1 >= wanted.size();
  return all || (wrong == 0 && right >= 3 && 2 * right >= wanted.size());
}

std::string_view WrittenAs(Field field) {
  return kWritten.at(static_cast<std::size_t>(field));
}

std::vector<Anchor> FindAnchors(std::string_view text, std::size_t begin, std::size_t end) {
  std::vector<Anchor> anchors;
  text = text.substr(0, end);
  for (std::size_t at = text.find('=', begin); at < end; at = text.find('=', at + 1)) {
    if (const auto anchor = AnchorAround(text, begin, end, at))
      anchors.push_back(*anchor);
  }
  return anchors;
}

std::optional<Anchor> FindDamagedAnchor(std::string_view text, std::size_t begin, std::size_t end,
                                        Field field) {
  const std::string_view wanted = WrittenAs(field);
  for (std::size_t at = begin; at + wanted.size() <= end; ++at) {
    if (!Resembles(text.substr(at, end - at), wanted))
      continue;
    const std::size_t quote = at + wanted.size() - 1;
    const bool sure = IsDamage(text[quote]);
    return Anchor{field, at + 1, sure ? quote + 1 : quote, '\'', sure};
  }
  return std::nullopt;
}

std::optional<Anchor> AnchorOfRest(std::string_view text, std::size_t begin, std::size_t end) {
  constexpr std::size_t longest = sizeof("Value=") - 1;
  const std::size_t equals = text.substr(0, std::min(end, begin + longest)).find('=', begin);
  if (equals >= end || equals - begin >= longest || equals + 1 >= end || !IsQuote(text[equals + 1]))
    return std::nullopt;
  const std::string_view rest = text.substr(begin, equals - begin);
  Anchor anchor{Field::Other, begin, equals + 2, text[equals + 1]};
  int fitting = 0;
  for (const Field field : {Field::Id, Field::Name, Field::Symbols, Field::Flag}) {
    if (!NameOf(WrittenAs(field)).ends_with(rest))
      continue;
    anchor.field = field;
    ++fitting;
  }
  if (fitting == 0)
    return std::nullopt;
  if (fitting > 1)
    anchor.field = Field::Other;
  return anchor;
}

} // namespace tq
