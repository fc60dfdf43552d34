#include "tools/tqlists/formats/Notes.h"

#include "platform/Encoding.h"
#include "tools/tqlists/formats/Charset.h"

namespace tqlists {
namespace {

void AppendEscaped(std::string& shown, char byte) {
  constexpr char digits[] = "0123456789ABCDEF";
  const auto value = static_cast<unsigned char>(byte);
  shown += "\\x";
  shown += digits[value >> 4];
  shown += digits[value & 15];
}

// The length of the character at `at` as it can be shown, or 0.
std::size_t ShownLength(const char* at, const char* end, bool utf8) {
  const auto byte = static_cast<unsigned char>(*at);
  if (byte >= 0x80)
    return utf8 ? tq::Utf8CharLength(at, end) : 0;
  return byte >= 0x20 && byte != 0x7F ? 1 : 0;
}

} // namespace

void AddFinding(Notes& notes, const tq::Finding& finding) {
  std::string reason(tq::WordsOf(finding.fault));
  if (!finding.text.empty())
    reason += ": " + Shown(finding.text);
  notes.Add(finding.line, finding.column, reason);
}

std::string Shown(std::string_view text) {
  std::string shown;
  // Half of a text in another encoding may look like a character of UTF-8.
  const bool utf8 = IsPlainUtf8(text);
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    const std::size_t length = ShownLength(at, end, utf8);
    if (length == 0)
      AppendEscaped(shown, *at++);
    else
      shown.append(at, length), at += length;
  }
  return shown;
}

} // namespace tqlists
