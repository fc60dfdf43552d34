// References in XML text: "&amp;", "&#x41;".
#pragma once

#include <cstddef>
#include <string_view>

namespace tq {

struct Reference {
  char32_t character = 0;
  std::size_t length = 0; // of the reference in bytes; 0 when there is none
};

// What stands at the beginning of `text`, an ampersand: one of the five predefined entities or a
// character reference to a character that XML allows.
Reference ReadReference(std::string_view text);

} // namespace tq
