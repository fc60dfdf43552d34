#include "tools/tqlists/formats/Notes.h"

#include "platform/Encoding.h"

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
std::size_t ShownLength(const char* at, const char* end) {
  const auto byte = static_cast<unsigned char>(*at);
  if (byte >= 0x80)
    return tq::Utf8CharLength(at, end);
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
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    const std::size_t length = ShownLength(at, end);
    if (length == 0)
      AppendEscaped(shown, *at++);
    else
      shown.append(at, length), at += length;
  }
  return shown;
}

} // namespace tqlists
