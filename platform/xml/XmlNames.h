// Names of elements, attributes and instructions: which characters they may have, and how names
// that the two DOMs would treat differently are encoded. Internal.
//
// The library asks only for plain ASCII names without a prefix. Every other name ("foreign": with a
// colon or characters beyond ASCII) is passed to the DOM as kForeignNameMark and its bytes in
// hexadecimal. So the DOMs need not agree about namespaces, unbound prefixes or name characters,
// and two names are equal in the DOM exactly when they are equal in the file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/xml/XmlText.h"

namespace tq {

inline constexpr std::string_view kForeignNameMark = "_._";
// The start of a foreign name that declares a namespace prefix: "xmlns:".
inline constexpr std::string_view kForeignDeclarationMark = "_._786D6C6E733A";

// Whether XML allows a character beyond ASCII in a name, or with `first` at its start.
bool IsNameCharacter(char32_t character, bool first);

// Appends the encoded form of a foreign name.
void AppendForeignName(std::string_view name, std::string& out);
// Decodes it into the file's bytes. False for a name that is not encoded.
bool ReadForeignName(std::string_view name, std::string& bytes);

// The set of names in one text, up to kXmlNameLimit: a hash table of fixed size, without
// allocation.
class XmlNameTable {
public:
  // False when a new name exceeds the limit. The bytes must outlive the table.
  bool Add(std::string_view name);

private:
  static constexpr std::size_t kBuckets =
      std::size_t{2} * kXmlNameLimit; // a power of two; at most half are used
  std::array<std::string_view, kBuckets> names_{};
  int count_ = 0;
};

} // namespace tq
