// Text encodings: the structure of UTF-8, UTF-16 and the double-byte code pages, and the system's
// tables between Unicode and the code pages.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tq {

// ---- Structure ----

// Length in bytes of the UTF-8 character at `at`, whose first byte is above 0x7F; 0 when it is
// invalid (overlong, a surrogate, beyond Unicode, truncated by `end`) or a character that XML
// excludes (U+FFFE, U+FFFF).
std::size_t Utf8CharLength(const char* at, const char* end);

// Decodes the valid UTF-8 character at `at` and moves `at` behind it.
char32_t TakeUtf8Char(const char*& at);

// Writes the four bytes of a character from U+10000 on; returns the address behind them.
char* PutUtf8Char(char32_t character, char* bytes);

// Appends any character, a Unicode scalar value.
void AppendUtf8(char32_t character, std::string& utf8);

// Length in bytes, 1 or 2, of the character of an ANSI code page at `at`, whose first byte is above
// 0x7F; 0 when the bytes cannot be one. Only the structure of the code page counts, not which
// characters are assigned: users define their own.
std::size_t AnsiCharLength(unsigned codePage, const char* at, const char* end);

// Whether a file begins with the UTF-16 byte-order mark of either byte order. That of UTF-32 does
// not count.
bool IsUtf16(std::string_view file);

// Replaces `utf8` by the text of such a file, without its mark. False for an odd number of bytes or
// an unpaired surrogate.
bool DecodeUtf16(std::string_view file, std::string& utf8);

// ---- The system's tables ----

// Code pages that text of the library's files may be in, by their Windows numbers.
inline constexpr unsigned kCodePageBig5 = 950;
inline constexpr unsigned kCodePageGbk = 936;

// The process's ANSI code page: GetACP() on Windows; elsewhere 950 while the terminal runs in
// Traditional Chinese and 936 while it does not. Any thread.
unsigned AnsiCodePage();

// Decodes text of kCodePageBig5 or kCodePageGbk, which is structurally valid (AnsiCharLength), and
// replaces `utf8` by it. A character that the system's table does not assign becomes "?" or a
// character of the private use area, which no other code page has. False when the system has no
// such table.
bool DecodeText(unsigned codePage, std::string_view text, std::string& utf8);

// Encodes single characters into one code page. Creating one is expensive: use one for a text.
class CharacterEncoder {
public:
  explicit CharacterEncoder(unsigned codePage);
  ~CharacterEncoder();
  CharacterEncoder(const CharacterEncoder&) = delete;
  CharacterEncoder& operator=(const CharacterEncoder&) = delete;

  // Writes the bytes of `character` (a Unicode scalar value) and returns their number, 1 or 2. A
  // character that the code page lacks becomes "?", never one that looks similar. Characters of the
  // private use area count as lacking, for their meaning differs from machine to machine.
  std::size_t Encode(char32_t character, char (&bytes)[2]);

private:
  // As Encode, but returns 0 for a character that the code page lacks. In the system's body.
  std::size_t EncodeAssigned(char32_t character, char (&bytes)[2]);

  unsigned codePage_;
  void* table_; // the system's
};

} // namespace tq
