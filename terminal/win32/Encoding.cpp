#include "terminal/control/Encoding.h"

#include <windows.h>

namespace standin {
namespace {

constexpr UINT kTraditionalCodePage = 950;

// Characters beyond the first 65536 are two units here and would become two question marks. No ANSI
// code page has any of them.
void JoinSurrogates(std::wstring& wide) {
  std::size_t kept = 0;
  for (const wchar_t unit : wide)
    if (!IS_LOW_SURROGATE(unit))
      wide[kept++] = IS_HIGH_SURROGATE(unit) ? L'\xFFFD' : unit;
  wide.resize(kept);
}

std::string Convert(std::string_view text, UINT from, UINT to) {
  const int length = static_cast<int>(text.size());
  const int wideLength = MultiByteToWideChar(from, 0, text.data(), length, nullptr, 0);
  if (wideLength <= 0)
    return std::string();
  std::wstring wide(static_cast<std::size_t>(wideLength), L'\0');
  MultiByteToWideChar(from, 0, text.data(), length, wide.data(), wideLength);
  if (to != CP_UTF8)
    JoinSurrogates(wide);
  // For UTF-8 the last two arguments and the flags must be zero.
  const bool toUtf8 = to == CP_UTF8;
  const DWORD flags = toUtf8 ? 0 : WC_NO_BEST_FIT_CHARS;
  const char* unknown = toUtf8 ? nullptr : "?";
  const int length16 = static_cast<int>(wide.size());
  const int size =
      WideCharToMultiByte(to, flags, wide.data(), length16, nullptr, 0, unknown, nullptr);
  std::string result(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(to, flags, wide.data(), length16, result.data(), size, unknown, nullptr);
  return result;
}

} // namespace

std::string Encode(std::string_view utf8, Language) {
  return Convert(utf8, CP_UTF8, CP_ACP);
}

std::string Decode(std::string_view text, Language) {
  return Convert(text, CP_ACP, CP_UTF8);
}

Language StartLanguage() {
  return GetACP() == kTraditionalCodePage ? Language::Traditional : Language::Simplified;
}

} // namespace standin
