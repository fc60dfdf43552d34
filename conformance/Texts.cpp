#include "Texts.h"

#include <algorithm>

#include "CodePage.h"
#include "tqCommon.h"

namespace conformance {
namespace {

// Where neither byte range of double-byte characters is in use, any byte is a character.
bool IsDoubleByte() {
  return tq::IsLeadByte('\x81');
}

bool IsTrail(char c) {
  const auto byte = static_cast<unsigned char>(c);
  const int lowest = IsTraditionChinese() != 0 ? 0xa1 : 0x80;
  return (byte >= 0x40 && byte <= 0x7e) || (byte >= lowest && byte <= 0xfe);
}

bool IsIn(char c, std::string_view characters) {
  return characters.find(c) != std::string_view::npos;
}

} // namespace

bool IsInCodePage(std::string_view text) {
  if (!IsDoubleByte())
    return true;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\xff')
      return false;
    if (!tq::IsLeadByte(text[i]))
      continue;
    if (++i == text.size() || !IsTrail(text[i]))
      return false;
  }
  return true;
}

bool IsPlain(std::string_view text, std::string_view except) {
  return std::all_of(text.begin(), text.end(),
                     [&](char c) { return c >= ' ' && c <= '~' && !IsIn(c, except); });
}

bool IsDecimal(std::string_view text, bool point) {
  if (point && !text.empty() && text.front() == '-')
    text.remove_prefix(1);
  const auto points = std::count(text.begin(), text.end(), '.');
  const bool digits = std::all_of(text.begin(), text.end(), [&](char c) {
    return (c >= '0' && c <= '9') || (point && points == 1 && c == '.');
  });
  return digits && text.size() > static_cast<std::size_t>(points);
}

std::string Upper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper)
    if (c >= 'a' && c <= 'z')
      c = static_cast<char>(c - 'a' + 'A');
  return upper;
}

bool BeginsNoCase(std::string_view text, std::string_view start) {
  return text.size() >= start.size() && Upper(text.substr(0, start.size())) == Upper(start);
}

void CheckCodePage(Report& report, const char* what, std::string_view text) {
  report.Hold(IsInCodePage(text), Rule::TextCodePage,
              what + (" holds bytes that are no characters: " + Shown(text)));
}

} // namespace conformance
