// Text in the process's ANSI code page, by whole characters. Only this header knows about
// double-byte characters: all other code uses these functions or CString and never goes byte by
// byte, because the second byte of a character may equal a letter, a backslash or a vertical bar.
//
// Conventions that hold for every function of this header
//  1. A character is one byte, or a lead byte with the byte behind it, its trail. Any byte but NUL
//     can be a trail, as in the system's own functions. A lead byte at the end of a text, or in
//     front of a NUL, has no trail and is a character of one byte.
//  2. Only the single-byte letters A-Z and a-z have case, so that every platform and code page
//     gives the same answer: ids, the only text compared without case, are ASCII.
//  3. Lengths and positions are in bytes. A null text counts as empty where text is NUL-terminated.
//  4. Nothing allocates, fails or throws; every function may be called from any thread.
#pragma once

#include <cstddef>

#include "platform/framework/FrameworkApi.h"

namespace tq {

// For each byte value whether it is the lead byte of a double-byte character.
struct LeadByteTable {
  bool lead[256];
};

// On Windows the lead bytes of GetACP(), read once when the library is loaded. Elsewhere 0x81 to
// 0xFE, the lead bytes of both code pages that the terminal runs in, 950 and 936.
extern TQFRAMEWORK_API const LeadByteTable leadBytes;

inline bool IsLeadByte(unsigned char byte) {
  return byte >= 0x80 && leadBytes.lead[byte];
}
inline bool IsLeadByte(char byte) {
  return IsLeadByte(static_cast<unsigned char>(byte));
}

// Bytes of the character that starts at `at`, 1 or 2. `at` is before `end`.
inline size_t CharLength(const char* at, const char* end) {
  return IsLeadByte(*at) && end - at > 1 && at[1] != '\0' ? 2 : 1;
}

// The character behind the one that starts at `at`; `end` at most.
inline const char* NextChar(const char* at, const char* end) {
  return at + CharLength(at, end);
}

// Whether a character starts at `at`; false for a trail. `text` starts with a whole character; `at`
// is in the text or its terminating NUL. Looks back over directly preceding lead bytes only.
TQFRAMEWORK_API bool IsCharStart(const char* text, const char* at);

// The start of the character in front of `at`, which is a character start; `text` when there is
// none.
TQFRAMEWORK_API const char* PreviousChar(const char* text, const char* at);

// The length of the longest run of whole characters at the start of `text` within `limit` bytes.
TQFRAMEWORK_API size_t CutLength(const char* text, size_t length, size_t limit);

// Copies `text` into a record's field of `size` bytes: cut at a whole character, NUL-terminated,
// the rest of the field zero, so that records compare as bytes. Returns the bytes of text copied. A
// size of 0 copies nothing.
TQFRAMEWORK_API size_t CopyCut(char* dest, size_t size, const char* text);

template <size_t SIZE> size_t CopyCut(char (&dest)[SIZE], const char* text) {
  return CopyCut(dest, SIZE, text);
}

// A single-byte character in the other case; anything but an ASCII letter is returned unchanged.
// Not for trail bytes: callers go by whole characters.
inline char ToUpperLetter(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}
inline char ToLowerLetter(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// Compares without regard to case: negative, 0 or positive. The order is that of the lower-case
// bytes, taken as unsigned.
TQFRAMEWORK_API int CompareNoCase(const char* left, const char* right);

// Equality without regard to case, for texts of known lengths; different lengths are unequal at
// once.
TQFRAMEWORK_API bool EqualNoCase(const char* left, size_t leftLength, const char* right,
                                 size_t rightLength);

// The first and the last single-byte character `wanted` in [text, end); null when there is none. A
// trail byte of that value does not count. `text` starts with a whole character.
TQFRAMEWORK_API const char* FindChar(const char* text, const char* end, char wanted);
TQFRAMEWORK_API const char* FindLastChar(const char* text, const char* end, char wanted);

// The first occurrence of the `length` bytes of `wanted` in [text, end) as whole characters; null
// when there is none. An empty `wanted` is found at `text`.
TQFRAMEWORK_API const char* FindText(const char* text, const char* end, const char* wanted,
                                     size_t length);

} // namespace tq
