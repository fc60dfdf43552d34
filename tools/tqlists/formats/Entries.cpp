#include "tools/tqlists/formats/Entries.h"

#include <algorithm>

namespace tqlists {
namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";

bool IsControl(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 || byte == 0x7F;
}

// U+FFFE and U+FFFF, which are well-formed UTF-8 and no characters: no list file may hold them.
constexpr std::size_t kNoCharacterLength = 3;

std::size_t FindNoCharacter(std::string_view text, std::size_t from) {
  constexpr std::string_view begin = "\xEF\xBF";
  for (std::size_t at = text.find(begin, from); at != text.npos; at = text.find(begin, at + 1)) {
    const std::string_view last = text.substr(at + begin.size(), 1);
    if (last == "\xBE" || last == "\xBF")
      return at;
  }
  return text.npos;
}

} // namespace

bool NextEntry(std::string_view symbols, std::size_t& at, std::string_view& entry) {
  while (at < symbols.size()) {
    const std::size_t end = std::min(symbols.find(',', at), symbols.size());
    entry = symbols.substr(at, end - at);
    at = end + 1;
    if (!Trimmed(entry).empty())
      return true;
  }
  return false;
}

std::size_t CountEntries(std::string_view symbols) {
  std::size_t count = 0;
  ForEachEntry(symbols, [&](std::string_view) { ++count; });
  return count;
}

bool IsHeading(std::string_view entry) {
  return entry.find(':', 1) != std::string_view::npos;
}

std::string_view HeadingText(std::string_view entry) {
  if (!IsHeading(entry) || entry.back() != ':')
    return {};
  entry.remove_suffix(1);
  return Trimmed(entry).empty() ? std::string_view() : entry;
}

std::string HeadingEntry(std::string_view text) {
  std::string entry(text);
  std::replace(entry.begin(), entry.end(), ',', ' ');
  if (Trimmed(entry).empty())
    return {};
  return entry + ':';
}

bool LosesComma(std::string_view heading) {
  return heading.find(',') != std::string_view::npos;
}

void AppendEntry(std::string& symbols, std::string_view entry) {
  ForEachEntry(entry, [&](std::string_view one) {
    if (!symbols.empty())
      symbols += ',';
    symbols += one;
  });
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos)
    return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string OneLine(std::string_view text) {
  std::string line;
  std::size_t at = 0;
  for (std::size_t stop = FindNoCharacter(text, at); stop != text.npos;
       stop = FindNoCharacter(text, at)) {
    line.append(text, at, stop - at);
    line += ' ';
    at = stop + kNoCharacterLength;
  }
  line.append(text, at);
  std::replace_if(line.begin(), line.end(), IsControl, ' ');
  return line;
}

bool IsOneLine(std::string_view text) {
  return std::none_of(text.begin(), text.end(), IsControl) && FindNoCharacter(text, 0) == text.npos;
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

} // namespace tqlists
