// Text between UTF-8 and the encodings of list files.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Encoding.h"
#include "recovery/ListRecovery.h"

namespace tqlists {

// As a declaration names it: "utf-8", "big5", "gb2312".
const char* NameOf(tq::TextEncoding encoding);

// Whether text is valid UTF-8 without a byte-order mark.
bool IsPlainUtf8(std::string_view text);

// Text of a file, without its byte-order mark, in UTF-8. A file with a mark of UTF-8 or UTF-16 is
// what the mark says. Bytes that are no character are replaced by U+FFFD, and `bad` is given the
// place of each, as an offset in `bytes` where the text is UTF-8 or double-byte, else 0.
std::string DecodeFile(std::string_view bytes, tq::TextEncoding encoding,
                       const std::function<void(std::size_t)>& bad);

// Encodes UTF-8 into one encoding.
class Encoder {
public:
  explicit Encoder(tq::TextEncoding encoding);

  tq::TextEncoding Encoding() const { return encoding_; }
  // A character that the encoding lacks becomes "?", and `lacking` is given it.
  std::string Encode(std::string_view utf8, const std::function<void(char32_t)>& lacking);
  // The longest run of whole characters at the start of encoded text that a list keeps of it within
  // `limit` bytes. A list is kept in a double-byte code page, whatever its file is in.
  std::size_t CutLength(std::string_view encoded, std::size_t limit) const;

private:
  const tq::TextEncoding encoding_;
  tq::CharacterEncoder table_; // unused with UTF-8
};

// A character for a message: itself and its code point, "龜 (U+9F9C)".
std::string Named(char32_t character);

} // namespace tqlists
