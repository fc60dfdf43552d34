// From a full symbol id to a position. Ids are ASCII and compared ignoring case, so folding a byte
// never touches half of a double-byte character of an indexed id, and a text that holds one is not
// found.
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
  // An id that is in already keeps its first position; an empty one, or one of more than 24 bytes,
  // stays out.
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
  // The slot that holds the key or, with all zeros in it, the one that would take it.
  std::size_t Probe(const Key& key) const;

  std::vector<Slot> slots_; // a power of two, at most half of them taken
};

} // namespace standin
