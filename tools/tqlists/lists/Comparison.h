// What differs between two files of lists.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tools/tqlists/formats/Entries.h"

namespace tqlists {

// The lists of one file.
struct Lists {
  std::vector<List> lists;
  int defaultList = -1;

  // The name of the list shown first; empty when there is none.
  std::string DefaultId() const;
};

struct Move {
  std::string entry;
  std::size_t from = 0; // places in the list, from 1
  std::size_t to = 0;
};

// A list that both files have, by its identifier.
struct Change {
  std::string id;
  std::string name;    // in the second file
  std::string oldName; // in the first
  std::vector<std::string> added;
  std::vector<std::string> removed;
  std::vector<Move> moved;
};

struct Comparison {
  std::vector<List> added;
  std::vector<List> removed;
  std::vector<Change> changed;
  bool otherOrder = false; // of the lists that both have
  std::string oldDefault;  // identifiers; equal when the same list is shown first
  std::string newDefault;

  bool IsSame() const {
    return added.empty() && removed.empty() && changed.empty() && !otherOrder &&
           oldDefault == newDefault;
  }
};

// Lists are matched by their identifiers, without regard to letter case; entries as they are
// written.
Comparison Compare(const Lists& before, const Lists& after);

// What became of the entries of one list. As few as possible count as moved.
Change CompareEntries(const List& before, const List& after);

} // namespace tqlists
