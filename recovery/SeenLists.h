// Which lists of a file have been read, to find those that are there twice, and identifiers for
// those that need one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "recovery/ListRecovery.h"

namespace tq {

class SeenLists {
public:
  enum class Kind {
    New,
    SameId,   // another list has the identifier
    SameList, // a list has the identifier, the name and the symbols
  };

  // Identifiers are compared without regard to the case of ASCII letters, as the library does.
  Kind Look(const RecoveredList& list) const;
  // The number under which the same list was noted; only after SameList.
  int NumberOf(const RecoveredList& list) const;
  void Note(const RecoveredList& list, int number);

  // An identifier in the form of a GUID that no list noted has. It depends on the arguments and on
  // the lists noted alone, so the same file always gives the same identifiers.
  std::string NewId(std::string_view bytes, std::size_t at) const;

private:
  // Hashes instead of texts: memory is bounded by the number of lists.
  using Key = std::pair<std::uint64_t, std::uint64_t>; // of the identifier, of the rest
  static Key KeyOf(const RecoveredList& list);
  bool HasId(std::uint64_t id) const;

  std::map<Key, int> numbers_;
};

} // namespace tq
