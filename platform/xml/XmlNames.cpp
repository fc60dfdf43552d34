#include "platform/xml/XmlNames.h"

#include <algorithm>
#include <iterator>

namespace tq {
namespace {

struct Range {
  char32_t first;
  char32_t last;
};

// NameStartChar and what NameChar has beyond it, of XML 1.0 in its fifth edition, from U+0080 on.
constexpr Range kStartRanges[] = {
    {0xC0, 0xD6},     {0xD8, 0xF6},     {0xF8, 0x2FF},    {0x370, 0x37D},
    {0x37F, 0x1FFF},  {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF},
    {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF},
};
constexpr Range kFollowingRanges[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <std::size_t Size> bool IsIn(const Range (&ranges)[Size], char32_t character) {
  return std::any_of(std::begin(ranges), std::end(ranges), [=](const Range& range) {
    return character >= range.first && character <= range.last;
  });
}

constexpr char kDigits[] = "0123456789ABCDEF";

unsigned ValueOf(char digit) {
  return static_cast<unsigned>(digit <= '9' ? digit - '0' : digit - 'A' + 10);
}

std::size_t Hash(std::string_view name) {
  std::uint64_t hash = 0xCBF29CE484222325;
  for (const char c : name)
    hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
  return static_cast<std::size_t>(hash ^ hash >> 32);
}

} // namespace

bool IsNameCharacter(char32_t character, bool first) {
  return IsIn(kStartRanges, character) || (!first && IsIn(kFollowingRanges, character));
}

void AppendForeignName(std::string_view name, std::string& out) {
  out += kForeignNameMark;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    out += kDigits[byte >> 4];
    out += kDigits[byte & 15];
  }
}

bool ReadForeignName(std::string_view name, std::string& bytes) {
  if (!name.starts_with(kForeignNameMark))
    return false;
  bytes.clear();
  for (std::size_t i = kForeignNameMark.size(); i + 1 < name.size(); i += 2)
    bytes += static_cast<char>(ValueOf(name[i]) << 4 | ValueOf(name[i + 1]));
  return true;
}

bool XmlNameTable::Add(std::string_view name) {
  std::size_t place = Hash(name) % kPlaces;
  for (; !names_[place].empty(); place = (place + 1) % kPlaces) {
    if (names_[place] == name)
      return true;
  }
  if (count_ == kXmlNameLimit)
    return false;
  ++count_;
  names_[place] = name;
  return true;
}

} // namespace tq
