// What the scan of XML text sees in a byte. Internal.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tq {

// Classes of bytes, as bits, so that one look-up tells whether a byte ends a run.
enum ByteClass : std::uint16_t {
  NotAscii = 1,
  Forbidden = 2, // control characters
  Less = 4,
  Ampersand = 8,
  Apostrophe = 16,
  Quotation = 32,
  Greater = 64,
  Closer = 128, // '-', ']' and '?', which begin the end of comment, CDATA section and instruction
  NameStart = 256, // ASCII that a name may begin with
  NamePart = 512,  // ASCII that may stand anywhere else in it
  Blank = 1024,
};

constexpr std::array<std::uint16_t, 256> BuildByteClasses() {
  std::array<std::uint16_t, 256> classes{};
  for (unsigned byte = 0; byte < 0x20; ++byte)
    classes[byte] = Forbidden;
  for (unsigned byte = 0x80; byte < 0x100; ++byte)
    classes[byte] = NotAscii;
  classes['<'] = Less;
  classes['&'] = Ampersand;
  classes['\''] = Apostrophe;
  classes['"'] = Quotation;
  classes['>'] = Greater;
  classes['-'] = classes[']'] = classes['?'] = Closer;
  for (const char c : {' ', '\t', '\n', '\r'})
    classes[static_cast<unsigned char>(c)] = Blank;
  for (unsigned letter = 'A'; letter <= 'Z'; ++letter)
    classes[letter] = classes[letter + ('a' - 'A')] = NameStart | NamePart;
  classes['_'] = classes[':'] = NameStart | NamePart;
  for (unsigned digit = '0'; digit <= '9'; ++digit)
    classes[digit] = NamePart;
  classes['-'] |= NamePart;
  classes['.'] = NamePart;
  return classes;
}

inline constexpr auto kByteClasses = BuildByteClasses();

inline unsigned ClassOf(char byte) {
  return kByteClasses[static_cast<unsigned char>(byte)];
}

inline constexpr std::ptrdiff_t kBlockSize = 32;

constexpr std::uint64_t InEachByte(unsigned char byte) {
  return byte * 0x0101010101010101U;
}

// The high bit of a byte is set in the result where the byte is not plain: beyond ASCII, a control
// character, '<', '>', '&' or a quotation mark of either kind. It may be set for plain bytes above
// such a one too. Subtracting sets the high bit of a byte that is smaller; '&' and '\'' differ in
// the lowest bit, '<' and '>' in the next.
inline std::uint64_t MarkSpecial(std::uint64_t bytes) {
  constexpr std::uint64_t one = InEachByte(1);
  return bytes | (bytes - InEachByte(0x20)) | (((bytes | one) ^ InEachByte('\'')) - one) |
         (((bytes | InEachByte(2)) ^ InEachByte('>')) - one) | ((bytes ^ InEachByte('"')) - one);
}

// True when none of kBlockSize bytes is special: then only the inside of a comment, a CDATA section
// or a tag would stop in the block. Symbol strings are long, and this takes them many bytes at a
// time.
inline bool IsPlainBlock(const char* block) {
  std::uint64_t words[kBlockSize / 8];
  std::memcpy(words, block, sizeof words);
  const std::uint64_t special =
      MarkSpecial(words[0]) | MarkSpecial(words[1]) | MarkSpecial(words[2]) | MarkSpecial(words[3]);
  return (special & InEachByte(0x80)) == 0;
}

} // namespace tq
