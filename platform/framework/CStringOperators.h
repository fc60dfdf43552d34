// Concatenation, comparison and hashing of CString, also mixed with `const char*` and characters.
// Included by CString.h. A null `const char*` counts as an empty text; order is that of the bytes,
// as unsigned.
#pragma once

#include <cstring>
#include <functional>

#include "platform/framework/CString.h"
#include "platform/framework/HashKey.h"

// One allocation for the result; none when the left side is a temporary with enough capacity.
TQFRAMEWORK_API CString operator+(const CString& left, const CString& right);
TQFRAMEWORK_API CString operator+(const CString& left, const char* right);
TQFRAMEWORK_API CString operator+(const char* left, const CString& right);
TQFRAMEWORK_API CString operator+(const CString& left, char right);
TQFRAMEWORK_API CString operator+(char left, const CString& right);
CString operator+(const CString& left, int right) = delete; // a number is not a character

inline CString operator+(CString&& left, const CString& right) {
  left += right;
  return static_cast<CString&&>(left);
}
inline CString operator+(CString&& left, const char* right) {
  left += right;
  return static_cast<CString&&>(left);
}
inline CString operator+(CString&& left, char right) {
  left += right;
  return static_cast<CString&&>(left);
}

inline bool operator==(const CString& left, const CString& right) noexcept {
  if (left.GetString() == right.GetString())
    return true;
  const int length = left.GetLength();
  return length == right.GetLength() &&
         std::memcmp(left.GetString(), right.GetString(), static_cast<size_t>(length)) == 0;
}
inline bool operator==(const CString& left, const char* right) noexcept {
  const char* text = right == nullptr ? "" : right;
  return std::strcmp(left.GetString(), text) == 0 &&
         std::strlen(left.GetString()) == static_cast<size_t>(left.GetLength());
}
inline bool operator==(const char* left, const CString& right) noexcept {
  return right == left;
}
inline bool operator!=(const CString& left, const CString& right) noexcept {
  return !(left == right);
}
inline bool operator!=(const CString& left, const char* right) noexcept {
  return !(left == right);
}
inline bool operator!=(const char* left, const CString& right) noexcept {
  return !(right == left);
}

namespace tq {
// Negative, 0 or positive; NULs inside of the texts count.
TQFRAMEWORK_API int CompareText(const CString& left, const CString& right);
TQFRAMEWORK_API int CompareText(const CString& left, const char* right);

// A string and equal characters have the same hash, so that a map of strings can be asked with
// characters.
inline size_t HashKey(const CString& text) {
  return SeededHash(text.GetString(), static_cast<size_t>(text.GetLength()));
}
} // namespace tq

inline bool operator<(const CString& a, const CString& b) {
  return tq::CompareText(a, b) < 0;
}
inline bool operator<(const CString& a, const char* b) {
  return tq::CompareText(a, b) < 0;
}
inline bool operator<(const char* a, const CString& b) {
  return tq::CompareText(b, a) > 0;
}
inline bool operator>(const CString& a, const CString& b) {
  return tq::CompareText(a, b) > 0;
}
inline bool operator>(const CString& a, const char* b) {
  return tq::CompareText(a, b) > 0;
}
inline bool operator>(const char* a, const CString& b) {
  return tq::CompareText(b, a) < 0;
}
inline bool operator<=(const CString& a, const CString& b) {
  return tq::CompareText(a, b) <= 0;
}
inline bool operator<=(const CString& a, const char* b) {
  return tq::CompareText(a, b) <= 0;
}
inline bool operator<=(const char* a, const CString& b) {
  return tq::CompareText(b, a) >= 0;
}
inline bool operator>=(const CString& a, const CString& b) {
  return tq::CompareText(a, b) >= 0;
}
inline bool operator>=(const CString& a, const char* b) {
  return tq::CompareText(a, b) >= 0;
}
inline bool operator>=(const char* a, const CString& b) {
  return tq::CompareText(b, a) <= 0;
}

template <> struct std::hash<CString> {
  size_t operator()(const CString& text) const noexcept { return tq::HashKey(text); }
};
