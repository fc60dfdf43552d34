// Names of elements, attributes and instructions: what XML takes for one, and how names travel
// through the DOM that the DOMs would treat differently. Internal.
//
// The library asks for plain ASCII names without a prefix only. Every other name (with a colon,
// with characters beyond ASCII) is handed to the DOM as kForeignNameMark and its bytes in
// hexadecimal: no DOM then has to agree with another one about namespaces, unbound prefixes or the
// letters of a language, and two names are equal to the DOM exactly when they are equal in the
// file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/xml/XmlText.h"

namespace tq {

inline constexpr std::string_view kForeignNameMark = "_._";
// What a foreign name begins with that declares a namespace prefix: "xmlns:".
inline constexpr std::string_view kForeignDeclarationMark = "_._786D6C6E733A";

// Whether XML allows the character, which is beyond ASCII, in a name; `first`: as its first one.
bool IsNameCharacter(char32_t character, bool first);

// Appends the form in which a foreign name travels.
void AppendForeignName(std::string_view name, std::string& out);
// Reads it back into the file's bytes. False for a name that travels as it stands.
bool ReadForeignName(std::string_view name, std::string& bytes);

// The different names of one text, up to kXmlNameLimit. Nothing is allocated.
class XmlNameTable {
public:
  // False when the name would be one too many. The bytes must outlive the table.
  bool Add(std::string_view name);

private:
  // A power of two, never full.
  static constexpr std::size_t kPlaces = std::size_t{2} * kXmlNameLimit;
  std::array<std::string_view, kPlaces> names_{};
  int count_ = 0;
};

} // namespace tq
