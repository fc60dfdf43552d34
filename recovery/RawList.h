// A list as its bytes stand in the file, before they become text.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "recovery/Finding.h"

namespace tq {

// A fault by its place in the text of the file (FileText.h).
struct RawFault {
  Fault fault = Fault::Empty;
  std::size_t at = 0;
  std::size_t length = 0; // of the damaged piece
};

// An attribute's value, without its quotation marks.
struct RawValue {
  std::string_view bytes;
  bool present = false;
  // The value begins, or ends, at a place where bytes are missing or not to be relied on.
  bool tornFront = false;
  bool tornBack = false;
};

struct RawList {
  std::size_t begin = 0;
  std::size_t end = 0;
  RawValue id;
  RawValue name;
  RawValue symbols;
  bool damaged = false; // it was no well-formed element
  std::vector<RawFault> faults;
};

} // namespace tq
