// Brings text of a list file into the encoding that is asked for.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Encoding.h"
#include "recovery/ListRecovery.h"
#include "recovery/xml/Charset.h"

namespace tq {

class TextCarrier {
public:
  explicit TextCarrier(TextEncoding to) : to_(to) {}

  // Replaces `out` by an attribute's value as the DOM would return it: references resolved, line
  // ends and tabs blank. An ampersand that is none stays. `text` is whole characters of `from`
  // without control bytes. Text that is in the encoding already keeps its bytes. False when a
  // character became "?" because the encoding, or the system's table, lacks it.
  bool Carry(std::string_view text, Charset from, std::string& out);

private:
  bool Walk(std::string_view text, Charset from, std::string& out);
  bool Append(char32_t character, std::string& out);

  const TextEncoding to_;
  std::optional<CharacterEncoder> encoder_;
  std::string decoded_;
};

// The encoding of texts, and the same of files.
Charset CharsetOf(TextEncoding encoding);

// The length of the longest run of whole characters of `text`, which is in `encoding`, that takes
// at most `limit` bytes in a code page of double-byte characters.
std::size_t CutLengthInCodePage(std::string_view text, TextEncoding encoding, std::size_t limit);

} // namespace tq
