// From a key's hash to the nodes that may carry it: an open-addressing table of node numbers.
//
// It knows hashes and numbers only; the caller says which node is the right one. One entry is eight
// bytes, so that a look-up mostly touches one cache line here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace tq {

class KeyIndex {
public:
  // Empties the index and makes room for `count` keys, so that adding them moves nothing.
  void Reset(std::size_t count);

  // The first node in the probe order of `hash` for which isMatch(node) holds; NoNode when none.
  static constexpr std::uint32_t NoNode = 0xffffffffu;
  template <typename IsMatch> std::uint32_t Find(std::uint32_t hash, IsMatch isMatch) const {
    if (size_ == 0)
      return NoNode;
    for (std::size_t at = hash & mask_; entries_[at].node != NoNode; at = (at + 1) & mask_)
      if (entries_[at].hash == hash && isMatch(entries_[at].node))
        return entries_[at].node;
    return NoNode;
  }

  // Adds a node whose key is not in the index.
  void Add(std::uint32_t hash, std::uint32_t node);
  // Takes out a node that is in the index.
  void Remove(std::uint32_t hash, std::uint32_t node);
  // Puts another node with the same key in a node's place.
  void Replace(std::uint32_t hash, std::uint32_t node, std::uint32_t successor);

  // Heap bytes held.
  std::size_t Footprint() const { return entries_ ? (mask_ + 1) * sizeof(Entry) : 0; }

private:
  struct Entry {
    std::uint32_t hash;
    std::uint32_t node;
  };

  std::size_t PositionOf(std::uint32_t hash, std::uint32_t node) const;
  void Allocate(std::size_t capacity);
  void Put(Entry entry);
  void Grow();

  std::unique_ptr<Entry[]> entries_;
  std::size_t mask_ = 0;
  std::size_t size_ = 0;
};

} // namespace tq
