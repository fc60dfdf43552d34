// The system's character tables: between Unicode and the double-byte code pages.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tq {

// Code pages that text of the library's files may be in, by their Windows numbers.
inline constexpr unsigned kCodePageBig5 = 950;
inline constexpr unsigned kCodePageGbk = 936;

// The process's ANSI code page: GetACP() on Windows; elsewhere 950 while the terminal runs in
// Traditional Chinese and 936 while it does not. Any thread.
unsigned AnsiCodePage();

// Decodes text of kCodePageBig5 or kCodePageGbk into `utf8`, which is replaced. The text is built
// of whole characters of that code page (AnsiCharLength). One that the system's table does not
// assign becomes "?" or a character of the private use area, which no other code page has. False
// when the system has no such table.
bool DecodeText(unsigned codePage, std::string_view text, std::string& utf8);

// Encodes single characters into one code page. Create one for a text, not for a character.
class CharacterEncoder {
public:
  explicit CharacterEncoder(unsigned codePage);
  ~CharacterEncoder();
  CharacterEncoder(const CharacterEncoder&) = delete;
  CharacterEncoder& operator=(const CharacterEncoder&) = delete;

  // Writes the bytes of `character` (a Unicode scalar value) and returns their number, 1 or 2. A
  // character that the code page lacks is "?"; none is replaced by one that only looks like it. The
  // private use area is lacking too: its characters are one machine's own.
  std::size_t Encode(char32_t character, char (&bytes)[2]);

private:
  // The same, but 0 for a character that the code page lacks. The body's own.
  std::size_t EncodeAssigned(char32_t character, char (&bytes)[2]);

  unsigned codePage_;
  void* table_; // the body's own
};

} // namespace tq
