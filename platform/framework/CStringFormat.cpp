// printf-style composing of CString.
#include "platform/framework/CString.h"

#include <cstdio>

namespace {

// Most texts the terminal composes fit here and then go straight into the string's own room.
constexpr size_t kLocalSize = 512;

// A composed text, kept apart from the string until it is complete: the arguments may point into
// that.
struct Composed {
  Composed(const char* format, va_list arguments);

  bool IsLong() const { return static_cast<size_t>(length) >= kLocalSize; }

  char local[kLocalSize];
  CString whole; // the text, where it is too long for `local`
  int length = 0;
};

Composed::Composed(const char* format, va_list arguments) {
  if (format == nullptr)
    return;
  va_list again;
  va_copy(again, arguments);
  const int composed = std::vsnprintf(local, kLocalSize, format, arguments);
  length = composed < 0 ? 0 : composed;
  if (IsLong()) {
    const auto size = static_cast<size_t>(length) + 1;
    const int written = std::vsnprintf(whole.GetBuffer(length), size, format, again);
    whole.ReleaseBuffer(written < 0 ? 0 : written);
  }
  va_end(again);
}

} // namespace

void CString::Format(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  FormatV(format, arguments);
  va_end(arguments);
}

void CString::FormatV(const char* format, va_list arguments) {
  Composed composed(format, arguments);
  if (composed.IsLong())
    *this = static_cast<CString&&>(composed.whole);
  else
    SetString(composed.local, composed.length);
}

void CString::AppendFormat(const char* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  AppendFormatV(format, arguments);
  va_end(arguments);
}

void CString::AppendFormatV(const char* format, va_list arguments) {
  const Composed composed(format, arguments);
  if (composed.IsLong())
    *this += composed.whole;
  else
    Append(composed.local, composed.length);
}
