// What an operation may do to the user's lists and their files, by its description in the manager's
// header. Whatever an operation does beyond that, services and disk failing or not, is a loss.
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "soak/Lists.h"
#include "tests/operations/Operations.h"

namespace soak {

struct Promise {
  bool replaces = false; // the lists may be others altogether
  bool loads = false;    // those of a file: what the files held before may not be in memory
  bool adds = false;
  bool changes = false; // names and symbols of any list
  bool removes = false; // any list
  bool orders = false;
  bool indexes = false;          // the list shown first
  bool saves = false;            // writes list files
  std::set<std::string> changed; // lists, in lower case
  std::set<std::string> removed;

  // Both operations ran.
  void Join(const Promise& other);
};

// `agrees`: the user answers questions with yes.
Promise PromiseOf(std::string_view signature, const operations::Arguments& arguments, bool agrees);

// In words how the lists differ in a way that was not promised; else empty.
std::string Broken(const Promise& promise, const Lists& before, const Lists& after);

} // namespace soak
