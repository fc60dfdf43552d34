// The text of a field in a packed record of the terminal's services.
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace tq {

// Up to the NUL or the end of the field, which need not be terminated.
template <std::size_t SIZE> std::string_view FieldText(const char (&field)[SIZE]) {
  return {field, strnlen(field, SIZE)};
}

} // namespace tq
