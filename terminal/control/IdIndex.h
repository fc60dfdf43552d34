// A hash table from full symbol ids to positions. Ids are ASCII and compared ignoring case, so
// folding a byte never changes half of a double-byte character of an indexed id; a text with such a
// character is not found.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace standin {

class IdIndex {
public:
  static constexpr std::size_t kNotFound = static_cast<std::size_t>(-1);

  // Empties the index and makes room for `count` ids.
  void Reset(std::size_t count);
  // An id that is already in the index keeps its first position. Empty ids and ids of more than 24
  // bytes are not indexed.
  void Add(std::string_view id, std::size_t position);
  std::size_t Find(std::string_view id) const;

private:
  static constexpr std::size_t kKeyWords = 3;
  struct Key {
    std::uint64_t words[kKeyWords] = {};
    bool operator==(const Key&) const = default;
  };
  struct Slot {
    Key key; // all zero: free
    std::size_t position = 0;
  };

  static bool MakeKey(std::string_view id, Key& key);
  // The slot with the key or, if there is none, the free slot for it.
  std::size_t Probe(const Key& key) const;

  std::vector<Slot> slots_; // the size is a power of two, and at most half are taken
};

} // namespace standin
