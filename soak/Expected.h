// What some operations do exactly, when nothing else runs within them and no disk fails.
#pragma once

#include <string>
#include <string_view>

#include "soak/Lists.h"
#include "tests/operations/Operations.h"

namespace soak {

struct Outcome {
  std::string_view signature;
  const operations::Arguments& arguments;
  const Lists& before;
  const Lists& after;
  const std::string &working, &backup; // the files' bytes afterwards; empty without a directory
  bool hasDirectory;
};

bool IsExact(std::string_view signature);
// In words what is not as it should be; else empty.
std::string Unexpected(const Outcome& outcome);

} // namespace soak
