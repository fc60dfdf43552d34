// A position in XML text that moves on through checked characters only, and what the text becomes on
// the way to the DOM. Internal to the scan (XmlScan.h).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/xml/XmlScan.h"

namespace tq {

// Classes of bytes, as bits, so that one table look-up tells whether a byte ends a run.
enum ByteClass : std::uint16_t {
  NotAscii = 1,
  Forbidden = 2, // control characters
  Less = 4,
  Ampersand = 8,
  Apostrophe = 16,
  Quotation = 32,
  Closer = 64,     // '-', ']' and '?', which begin what ends a comment, CDATA section, instruction
  NameStart = 128, // ASCII that a name may begin with
  NamePart = 256,  // ASCII that a name may go on with
  Blank = 512,
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

class XmlCursor {
public:
  // `rewritten` receives the text for the DOM; see ScanXml.
  XmlCursor(std::string_view text, XmlCharset charset, unsigned codePage, std::string& rewritten)
      : at_(text.data()), end_(at_ + text.size()), copied_(at_), charset_(charset),
        codePage_(codePage), out_(rewritten) {}

  bool AtEnd() const { return at_ == end_; }
  // The class of the byte here; 0 at the end.
  unsigned Class() const { return AtEnd() ? 0 : ClassOf(*at_); }
  bool StartsWith(std::string_view wanted) const {
    return std::string_view(at_, static_cast<std::size_t>(end_ - at_)).starts_with(wanted);
  }

  // Moves over `wanted`; false, without moving, when something else stands here.
  bool Take(std::string_view wanted);
  // Moves over one byte, which is ASCII and no ampersand.
  void TakeByte() { ++at_; }
  // Moves over white space; false when there is none.
  bool TakeBlanks();
  // At an ampersand: moves over it. A character reference into the plane of carried characters is
  // taken whole and becomes "?": it would come out as a double-byte character that nobody wrote.
  void TakeAmpersand();
  // Moves over the characters of a name, perhaps none. `foreign` is set when it has a colon or a
  // character beyond ASCII. False for a character that the encoding or XML does not have in a name.
  bool TakeName(std::string_view& name, bool& foreign);

  // Moves to the next byte of a class in `stops`, or to the end. False at a character that is
  // forbidden or not of the encoding.
  bool SkipTo(unsigned stops);

  // Replaces the `length` bytes in front of the cursor in the rewritten text.
  void ReplaceTaken(std::size_t length, std::string_view with);
  // At the end: completes the rewritten text, if there is one.
  void Finish();

private:
  bool TakeUtf8();
  bool TakeCarried();
  bool TakeBeyondAscii();
  bool TakeNameCharacter(bool first);

  const char* at_;
  const char* const end_;
  const char* copied_; // up to here the text is in out_
  const XmlCharset charset_;
  const unsigned codePage_;
  std::string& out_;
};

} // namespace tq
