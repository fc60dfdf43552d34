#include "idlist/StorableText.h"

#include <algorithm>

#include "idlist/IdString.h"
#include "platform/Encoding.h"
#include "platform/Log.h"
#include "platform/Text.h"
#include "platform/diagnostics/Operation.h"

namespace tq {
namespace {

bool IsStorableAscii(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return (value >= 0x20 && value < 0x80) || byte == '\t' || byte == '\n' || byte == '\r';
}

// The length of the character at `at`, or 0 if the file cannot hold it.
size_t StorableLength(unsigned codePage, const char* at, const char* end) {
  if (static_cast<unsigned char>(*at) < 0x80)
    return IsStorableAscii(*at) ? 1 : 0;
  return AnsiCharLength(codePage, at, end);
}

// The place of the first byte that the file cannot hold, or the end.
size_t FirstBadByte(std::string_view text) {
  const auto* plain = std::find_if_not(text.begin(), text.end(), IsStorableAscii);
  if (plain == text.end())
    return text.size();
  const unsigned codePage = AnsiCodePage();
  for (const char* at = plain; at != text.end();) {
    const size_t length = StorableLength(codePage, at, text.end());
    if (length == 0)
      return static_cast<size_t>(at - text.begin());
    at += length;
  }
  return text.size();
}

} // namespace

bool IsStorable(const CString& text) {
  return FirstBadByte(ViewOf(text)) == ViewOf(text).size();
}

// None of the three is ever the second byte of a character.
bool HoldsUnloadable(std::string_view text) {
  return text.find('\'') != text.npos || text.find('&') != text.npos || text.find('<') != text.npos;
}

bool IsLoadable(std::string_view text) {
  return !HoldsUnloadable(text) && FirstBadByte(text) == text.size();
}

void AppendStorable(std::string_view text, std::string& document) {
  const size_t bad = FirstBadByte(text);
  document.append(text, 0, bad);
  if (bad == text.size())
    return;
  const unsigned codePage = AnsiCodePage();
  for (const char* at = text.data() + bad; at != text.end();) {
    const size_t length = StorableLength(codePage, at, text.end());
    document.append(at, length);
    at += std::max<size_t>(length, 1);
  }
}

CString StorableText(const CString& text) {
  if (IsStorable(text))
    return text;
  const std::string_view all = ViewOf(text);
  std::string kept;
  AppendStorable(all, kept);
  const int left = static_cast<int>(all.size() - kept.size());
  NoteProblem(TQProblemLeftOut, "%d bytes that are no text of code page %u are left out of '%s'",
              left, AnsiCodePage(), kept.c_str());
  LogLine(kLogChange, "%d bytes that the list file cannot hold are left out of \"%s\"", left,
          kept.c_str());
  return {kept.data(), static_cast<int>(kept.size())};
}

} // namespace tq
