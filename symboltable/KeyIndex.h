// From a key's hash to the node that carries it: an open-addressing table of node numbers.
//
// It knows hashes and numbers only; the caller says which node is the right one. Entries stand in groups of
// a cache line, each with one byte of the hash, so that a look-up touches one line here and hardly ever
// a node that is not the right one.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>

#include "symboltable/PackedText.h"

namespace tq {

class KeyIndex {
public:
  static constexpr std::uint32_t NoNode = 0xffffffffu;

  // Empties the index and makes room for `count` keys, so that adding them moves nothing.
  void Reset(std::size_t count);

  // Fetches what Find looks at first, for callers who go on with other work.
  void Prefetch(std::uint32_t hash) const {
    if (groupCount_ != 0)
      __builtin_prefetch(&groups_[hash & (groupCount_ - 1)]);
  }

  // The node with that hash for which isMatch(node) holds; NoNode when there is none.
  template <typename IsMatch> std::uint32_t Find(std::uint32_t hash, IsMatch isMatch) const {
    for (std::size_t probed = 0, at = hash; probed < groupCount_; ++probed, ++at) {
      const Group& group = groups_[at & (groupCount_ - 1)];
      for (std::uint64_t slots = group.SlotsWith(TagOf(hash)); slots != 0; slots &= slots - 1) {
        const std::uint32_t node = group.nodes[Group::FirstOf(slots)];
        if (isMatch(node))
          return node;
      }
      if ((group.passed & PassedBit(hash)) == 0)
        break;
    }
    return NoNode;
  }

  // Adds a node whose key is not in the index. hashOf(node) is the hash of a node that is.
  template <typename HashOf> void Add(std::uint32_t hash, std::uint32_t node, HashOf hashOf) {
    if (!HasRoom())
      Rebuild(hashOf);
    Put(hash, node);
    ++size_;
  }
  // Takes out a node that is in the index.
  void Remove(std::uint32_t hash, std::uint32_t node);
  // Puts another node with the same key in a node's place.
  void Replace(std::uint32_t hash, std::uint32_t node, std::uint32_t successor);

  // Heap bytes held.
  std::size_t Footprint() const { return groupCount_ * sizeof(Group); }

private:
  static constexpr int SlotCount = 12;
  static constexpr std::uint8_t NoTag = 0; // the slot is free

  struct alignas(64) Group {
    std::uint8_t tags[SlotCount];
    // Which hashes went past this group when it was full, by their PassedBit. Never taken back: what
    // they look for may still stand behind.
    std::uint32_t passed;
    std::uint32_t nodes[SlotCount];

    // A bit for each slot with that tag; FirstOf is the slot of the lowest one.
    std::uint64_t SlotsWith(std::uint8_t tag) const;
    static std::size_t FirstOf(std::uint64_t slots);
    int SlotOf(std::uint32_t hash, std::uint32_t node) const; // -1 when it is not here
  };

  struct Place {
    Group& group;
    int slot;
  };

  static std::uint8_t TagOf(std::uint32_t hash) {
    const auto tag = static_cast<std::uint8_t>(hash >> 24);
    return tag == NoTag ? 1 : tag;
  }
  static std::uint32_t PassedBit(std::uint32_t hash) { return 1u << (hash >> 19 & 31u); }

  bool HasRoom() const;
  void Put(std::uint32_t hash, std::uint32_t node);
  Place PlaceOf(std::uint32_t hash, std::uint32_t node);

  template <typename HashOf> void Rebuild(HashOf hashOf) {
    const std::unique_ptr<Group[]> old = std::move(groups_);
    const std::size_t oldCount = groupCount_;
    const std::size_t size = size_;
    Reset(size + 1);
    for (std::size_t i = 0; i < oldCount; ++i)
      for (int slot = 0; slot < SlotCount; ++slot)
        if (old[i].tags[slot] != NoTag)
          Put(hashOf(old[i].nodes[slot]), old[i].nodes[slot]);
    size_ = size;
  }

  std::unique_ptr<Group[]> groups_;
  std::size_t groupCount_ = 0; // 0 or a power of two
  std::size_t size_ = 0;
  std::size_t worn_ = 0; // nodes removed from groups whose passed bits have stayed
};

inline std::uint64_t KeyIndex::Group::SlotsWith(std::uint8_t tag) const {
  std::uint64_t first;
  std::uint32_t rest;
  std::memcpy(&first, tags, sizeof first);
  std::memcpy(&rest, tags + sizeof first, sizeof rest);
  // The first eight slots have the lowest bit of a byte, the others the next one. No tag is 0, as what
  // `rest` lacks of eight bytes is.
  return BytesEqual(first, tag) >> 7 | BytesEqual(rest, tag) >> 6;
}

inline std::size_t KeyIndex::Group::FirstOf(std::uint64_t slots) {
  const auto bit = static_cast<std::size_t>(std::countr_zero(slots));
  return bit / 8 + bit % 8 * 8;
}

} // namespace tq
