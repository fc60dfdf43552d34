// CString: the string that crosses the interface. Text of any length in the process's ANSI code
// page, reference-counted and copied on write: copying one costs a count, changing one never shows
// in another.
//
// Conventions that hold for every operation of this header
//  1. Lengths, counts and positions are in bytes. A position outside of the text is no error: each
//     operation says, or has by "clamped" (below 0 taken as 0, above the length as the length),
//     what it answers.
//  2. Searching, trimming, replacing, changing case and cutting go by whole characters, as
//     CodePage.h defines them: a trail byte that equals a letter, '\' or '|' is never taken for
//     one, and no operation leaves half of a character behind, except SetAt and the buffer
//     operations, which take the caller's bytes as they are.
//  3. A null `const char*` counts as an empty text. An argument may be a part of the string itself.
//  4. Only A-Z and a-z have case. Order is that of the bytes, taken as unsigned.
//  5. A string may hold NULs that it was given with a length; operations taking a `const char*`
//     without one end at its first NUL.
//  6. Nothing throws; a process without memory is stopped. Text is limited to 2 GB less 64 bytes.
//  7. One object is used by one thread at a time. Different objects may be used by different
//     threads, also when they share their text.
//  8. Characters are allocated and freed inside tqFramework, so any module may destroy any string.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <cstring>
#include <functional>

#include "platform/Compiler.h"
#include "platform/framework/FrameworkApi.h"
#include "platform/framework/HashKey.h"
#include "platform/framework/Storage.h"
#include "platform/framework/StringData.h"

class TQFRAMEWORK_API CString {
public:
  // An empty string costs nothing; a copy shares the text; a moved-from string is empty.
  CString() noexcept : m_text(tq::EmptyText()) {}
  CString(const CString& other) noexcept : m_text(tq::ShareText(other.m_text)) {}
  CString(CString&& other) noexcept : m_text(other.m_text) { other.m_text = tq::EmptyText(); }
  CString(const char* text); // implicit, as callers pass literals where a string is asked for
  // The `length` bytes at `text`, NULs and a half character at the end included; below 0 counts as
  // 0.
  CString(const char* text, int length);
  // `letter`, `repeat` times; below 0 counts as 0.
  explicit CString(char letter, int repeat = 1);
  ~CString() { tq::ReleaseText(m_text); }

  CString& operator=(const CString& other) noexcept {
    return *this = CString(other); // shares before it releases, for assignment to itself
  }
  CString& operator=(CString&& other) noexcept {
    char* const taken = other.m_text;
    other.m_text = tq::EmptyText(); // first, for assignment to itself
    tq::ReleaseText(m_text);
    m_text = taken;
    return *this;
  }
  // The text is written into the room at hand when that is enough and not shared.
  CString& operator=(const char* text);
  CString& operator=(char letter);
  void SetString(const char* text);
  void SetString(const char* text, int length);

  int GetLength() const noexcept { return Header()->length; }
  bool IsEmpty() const noexcept { return GetLength() == 0; }
  // Makes the string empty and gives up its room.
  void Empty() noexcept {
    tq::ReleaseText(m_text);
    m_text = tq::EmptyText();
  }

  // The characters, NUL-terminated; valid until the string is changed or destroyed.
  operator const char*() const noexcept { return m_text; }
  const char* GetString() const noexcept { return m_text; }

  // The byte at `index`; NUL outside of the text.
  char GetAt(int index) const noexcept { return Holds(index) ? m_text[index] : '\0'; }
  char operator[](int index) const noexcept { return GetAt(index); }
  // Changes one byte; nothing outside of the text.
  void SetAt(int index, char byte);

  CString& operator+=(const CString& other);
  CString& operator+=(const char* text);
  CString& operator+=(char letter);
  CString& operator+=(int) = delete; // a number is not a character
  void Append(const char* text);
  void Append(const char* text, int length); // below 0 counts as 0

  // Negative, 0 or positive.
  int Compare(const char* other) const;
  int CompareNoCase(const char* other) const;

  // The first `count` bytes, the last, those from `first` on; clamped. A character that the cut
  // would split is left out.
  CString Left(int count) const;
  CString Right(int count) const;
  CString Mid(int first) const;
  CString Mid(int first, int count) const;
  // The longest start of the text that consists of characters in `set`, or of none of them.
  CString SpanIncluding(const char* set) const;
  CString SpanExcluding(const char* set) const;

  // Position of the first match at or behind `start`, or -1. A start below 0 is 0; one inside of a
  // character is the next character; one behind the end finds nothing. An empty text is found at
  // start.
  int Find(char letter, int start = 0) const;
  int Find(const char* text, int start = 0) const;
  int ReverseFind(char letter) const;   // of the last one
  int FindOneOf(const char* set) const; // of the first character that is in `set`

  // These return how many were replaced or removed. An empty `what` is nowhere; a null `with`
  // removes.
  int Replace(char what, char with);
  int Replace(const char* what, const char* with);
  int Remove(char letter);
  // These return the new length. Positions are clamped; one inside of a character inserts in front
  // of it.
  int Insert(int index, char letter);
  int Insert(int index, const char* text);
  // Removes `count` bytes from `index` on; a character that loses one byte goes as a whole.
  int Delete(int index, int count = 1);
  // Keeps the first `length` bytes, less a character that this would split. Clamped.
  void Truncate(int length);

  // A text that is as wanted already stays shared.
  CString& MakeUpper();
  CString& MakeLower();
  CString& MakeReverse(); // the order of characters, not of bytes

  // Take away blanks (space, \t, \n, \v, \f, \r; not the full-width blank), one character or the
  // characters of a set, at both ends or at one.
  CString& Trim();
  CString& Trim(char letter);
  CString& Trim(const char* set);
  CString& TrimLeft();
  CString& TrimLeft(char letter);
  CString& TrimLeft(const char* set);
  CString& TrimRight();
  CString& TrimRight(char letter);
  CString& TrimRight(const char* set);

  // The next piece between characters of `separators`, from `start` on; empty pieces are passed
  // over. Sets `start` behind the separator that ends the piece. At the end it returns an empty
  // string and sets `start` to -1, and so it does when called with that.
  CString Tokenize(const char* separators, int& start) const;

  // printf-style, with the C standard's conversions on every platform. Arguments may point into the
  // string itself. A format that cannot be carried out gives no text. User text is an argument,
  // never the format.
  void Format(const char* format, ...) TQ_PRINTF_MEMBER;
  void FormatV(const char* format, va_list arguments);
  void AppendFormat(const char* format, ...) TQ_PRINTF_MEMBER;
  void AppendFormatV(const char* format, va_list arguments);

  // A buffer of at least `minimum` bytes and a NUL, holding the text, for the caller to write into.
  // It belongs to the string. Until ReleaseBuffer the string is neither copied nor used otherwise.
  char* GetBuffer(int minimum = 0);
  char* GetBufferSetLength(int length); // the same, with the length set; new bytes are zero
  // Ends the writing: the text is `length` bytes, or for -1 goes to the first NUL. Clamped to the
  // buffer.
  void ReleaseBuffer(int length = -1);
  // Makes room for `capacity` bytes, so that appending up to there allocates nothing.
  void Preallocate(int capacity);

private:
  const tq::StringHeader* Header() const noexcept { return tq::HeaderOf(m_text); }
  bool Holds(int index) const noexcept {
    return static_cast<unsigned>(index) < static_cast<unsigned>(GetLength());
  }
  const char* End() const noexcept { return m_text + GetLength(); }
  int Clamp(int position) const noexcept;
  bool IsWritable(int capacity) const noexcept; // mine alone, with that much room
  char* Writable(int capacity);                 // makes it so, keeping the text
  void SetLength(int length) noexcept;
  void Keep(const char* from, const char* to); // a part of the text becomes all of it
  void Exchange(int index, int removed, const char* text, int length);
  CString Part(const char* from, const char* to) const;
  template <char (*LETTER)(char)> CString& ChangeCase();

  char* m_text; // never null; StringData.h
};

template <> inline constexpr bool tq::isRelocatable<CString> = true;

// Joining, comparing and hashing, in all mixes with `const char*` and characters. A null
// `const char*` counts as an empty text; order is that of the bytes, as unsigned.

// One allocation for the sum; none when the left side is a temporary that has room.
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

// The same key for a string and for equal characters, so that a map of strings is asked without
// one.
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
