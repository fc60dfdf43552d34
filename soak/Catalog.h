// All operations of the interface with their families, and arguments at random.
#pragma once

#include <vector>

#include "soak/Ledger.h"
#include "soak/Lists.h"
#include "soak/Random.h"
#include "tests/operations/Operations.h"

namespace soak {

struct Entry {
  operations::Operation operation;
  Family family;
};

// In the order of the tables.
const std::vector<Entry>& Catalog();
// The one with that signature; the program ends when there is none.
const Entry& EntryOf(const char* signature);

// The directories of a life below its own, where Init and ReLoadList find list files.
inline constexpr const char* kDirectories[] = {"one", "two"};

struct Taste {
  std::string directory;
  bool hostile = false; // texts that no list file can carry
};
operations::Arguments ArgumentsFor(Random& random, const Taste& taste, const Lists& lists);

} // namespace soak
