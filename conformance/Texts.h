// Text of records: within its field, in the code page, of the characters that it may have.
#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include "Report.h"

namespace conformance {

// Up to the NUL or the end of the field, which need not be terminated.
template <std::size_t SIZE> std::string_view FieldText(const char (&field)[SIZE]) {
  const void* const end = std::memchr(field, '\0', SIZE);
  return {field,
          end == nullptr ? SIZE : static_cast<std::size_t>(static_cast<const char*>(end) - field)};
}

// Whether the bytes are whole characters of the interface language's code page.
bool IsInCodePage(std::string_view text);
// Printable ASCII without any of `except`.
bool IsPlain(std::string_view text, std::string_view except = "");
// Decimal digits, at least one; with `point` a decimal number, which may be negative.
bool IsDecimal(std::string_view text, bool point = false);
// ASCII letters in upper case. For ids, which are ASCII.
std::string Upper(std::string_view text);
bool BeginsNoCase(std::string_view text, std::string_view start);

void CheckCodePage(Report& report, const char* what, std::string_view text);

// A text field of a record: terminated, and of whole characters.
template <std::size_t SIZE>
void CheckField(Report& report, const char* what, const char (&field)[SIZE]) {
  const std::string_view text = FieldText(field);
  if (text.size() == SIZE)
    report.Found(Rule::TextTerminated, what + (" has no NUL: " + Shown(text)));
  CheckCodePage(report, what, text);
}

} // namespace conformance
