// From a key to the node that carries it: an open-addressing table.
//
// Entries stand in groups, each with one byte of the hash for every entry, so that a look-up hardly
// ever looks at an entry that is not the right one. These bytes, the codes of the keys and what
// stands under them lie in arrays of their own: the first stays in the processor's caches even for
// a whole market, and of the others a look-up touches a cache line each, without waiting for one to
// know the other.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>

#include "platform/Compiler.h"
#include "platform/framework/CString.h"
#include "symboltable/SymbolKey.h"

namespace tq {

class KeyIndex {
public:
  // An entry's place; it is good until an entry is added or removed.
  using Slot = std::uint32_t;
  static constexpr Slot kNoSlot = 0xffffffffu;

  // What stands under a key.
  struct Entry {
    std::uint32_t node;
    std::int32_t value; // the caller's, at hand without the node
    CString text = {};  // the same
  };

  // Empties the index and makes room for `count` keys, so that adding them moves nothing.
  void Reset(std::size_t count);

  // Fetches what Find looks at first, for callers who go on with other work.
  void Prefetch(std::uint32_t hash) const {
    if (groupCount_ != 0)
      tq::Prefetch(&groups_[GroupOf(hash)]);
  }

  // The entry with that key; kNoSlot when there is none. Keys that are longer than their codes are
  // told apart by isMatch(node).
  template <typename IsMatch> Slot Find(const SymbolKey& key, IsMatch isMatch) const {
    if (key.text.size() <= kCodedBytes)
      return FindCode(key.code, key.hash);
    return Search(key.code, key.hash, isMatch);
  }
  // The same for a key that is not longer than its code.
  Slot FindCode(PackedText code, std::uint32_t hash) const {
    return Search(code, hash, [](std::uint32_t) { return true; });
  }
  const Entry& At(Slot slot) const { return entries_[slot]; }
  Entry& At(Slot slot) { return entries_[slot]; }

  // Adds a node whose key is not in the index. hashOf(node) is the hash of a node that is.
  template <typename HashOf> void Add(const SymbolKey& key, Entry entry, HashOf hashOf) {
    if (!HasRoom())
      Rebuild(hashOf);
    Put(key.hash, key.code, std::move(entry));
    ++size_;
  }
  void Remove(Slot slot);
  bool IsEmpty() const { return size_ == 0; }

  // Heap bytes held.
  std::size_t Footprint() const {
    return groupCount_ * (sizeof(Group) + kSlotCount * (sizeof(PackedText) + sizeof(Entry)));
  }

private:
  static constexpr std::size_t kSlotCount = 12;
  static constexpr std::uint8_t kNoTag = 0; // the slot is free

  struct alignas(16) Group {
    std::uint8_t tags[kSlotCount];
    // Which hashes went past this group when it was full, by their PassedBit. Never taken back:
    // what they look for may still stand behind.
    std::uint32_t passed;

    // A bit for each slot with that tag.
    unsigned SlotsWith(std::uint8_t tag) const {
      return EqualBytes(tags, tag) & ((1u << kSlotCount) - 1);
    }
  };

  // The upper bits of a hash choose the group, others the tag and the passed bit.
  std::size_t GroupOf(std::uint32_t hash) const {
    return static_cast<std::size_t>(std::uint64_t{hash} * groupCount_ >> 32);
  }
  std::size_t Next(std::size_t at) const { return at + 1 == groupCount_ ? 0 : at + 1; }
  static Slot SlotOf(std::size_t group, std::size_t at) {
    return static_cast<Slot>(group * kSlotCount + at);
  }
  static std::uint8_t TagOf(std::uint32_t hash) {
    const auto tag = static_cast<std::uint8_t>(hash);
    return tag == kNoTag ? 1 : tag;
  }
  static std::uint32_t PassedBit(std::uint32_t hash) { return 1u << (hash >> 8 & 31u); }

  template <typename IsMatch>
  Slot Search(PackedText code, std::uint32_t hash, IsMatch isMatch) const {
    std::size_t at = GroupOf(hash);
    for (std::size_t probed = 0; probed < groupCount_; ++probed, at = Next(at)) {
      const Group& group = groups_[at];
      for (unsigned hits = group.SlotsWith(TagOf(hash)); hits != 0; hits &= hits - 1) {
        const Slot slot = SlotOf(at, static_cast<std::size_t>(std::countr_zero(hits)));
        if (codes_[slot] == code && isMatch(entries_[slot].node))
          return slot;
      }
      if ((group.passed & PassedBit(hash)) == 0)
        break;
    }
    return kNoSlot;
  }
  bool HasRoom() const;
  void Put(std::uint32_t hash, PackedText code, Entry entry);

  template <typename HashOf> void Rebuild(HashOf hashOf) {
    const KeyIndex old = std::move(*this);
    // Half as many again: an index that grows by ones is not made anew for each of them. Where
    // removals have only worn it out it stays as large as it was.
    Reset(old.size_ < old.capacity_ ? old.capacity_ : old.size_ + old.size_ / 2 + 1);
    for (std::size_t i = 0; i < old.groupCount_ * kSlotCount; ++i)
      if (old.groups_[i / kSlotCount].tags[i % kSlotCount] != kNoTag)
        Put(hashOf(old.entries_[i].node), old.codes_[i], old.entries_[i]);
    size_ = old.size_;
  }

  std::unique_ptr<Group[]> groups_;
  std::unique_ptr<PackedText[]> codes_;
  std::unique_ptr<Entry[]> entries_;
  std::size_t groupCount_ = 0;
  std::size_t capacity_ = 0; // keys that there is room for
  std::size_t size_ = 0;
  std::size_t worn_ = 0; // entries removed from groups whose passed bits have stayed
};

} // namespace tq
