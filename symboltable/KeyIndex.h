// The hash table of a symbol table: from a key to the node that carries it.
//
// Open addressing in groups of slots. A group has a tag, one byte of the hash, for each of its
// slots, so that a look-up rarely compares a key in vain. Tags, key codes and entries are in
// separate arrays: the tags of a whole market stay in the processor's caches, and of the two other
// arrays a look-up loads one cache line each. Those loads are independent, so their cache misses
// overlap.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>

#include "platform/Compiler.h"
#include "platform/framework/CString.h"
#include "symbolid/SymbolKey.h"

namespace tq {

class KeyIndex {
public:
  // The position of an entry, valid until an entry is added or removed.
  using Slot = std::uint32_t;
  static constexpr Slot kNoSlot = 0xffffffffu;

  // What the index holds for a key. `value` and `text` are the caller's: copies of what a look-up
  // needs of the node, which saves touching the node's memory.
  struct Entry {
    std::uint32_t node;
    std::int32_t value;
    CString text = {};
  };

  // Empties the index and reserves room for `count` keys, so that adding them does not rehash.
  void Reset(std::size_t count);

  // Prefetches what Find reads first, for callers who do other work before they call it.
  void Prefetch(std::uint32_t hash) const {
    if (groupCount_ != 0)
      tq::Prefetch(&groups_[GroupOf(hash)]);
  }

  // The slot of a key; kNoSlot when the index does not hold it. A key longer than its code is
  // compared in full by isMatch(node).
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

  // Adds a key that the index does not hold. hashOf(node) returns the hash of a held node's key.
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
  static constexpr std::uint8_t kNoTag = 0; // marks a free slot

  struct alignas(16) Group {
    std::uint8_t tags[kSlotCount];
    // Overflow bits: an insertion that skips this group because it is full sets the OverflowBit of
    // its hash. A look-up goes on to the next group only where its bit is set. Never cleared, since
    // other keys with that bit may lie in later groups.
    std::uint32_t overflow;

    // A bit for each slot that has this tag.
    unsigned SlotsWith(std::uint8_t tag) const {
      const auto* const bytes = reinterpret_cast<const std::uint8_t*>(this); // the tags come first
      return EqualBytes(bytes, tag) & ((1u << kSlotCount) - 1);
    }
  };
  static_assert(sizeof(Group) == 16); // what EqualBytes reads

  // The upper bits of a hash select the group, the lower ones the tag and the overflow bit.
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
  static std::uint32_t OverflowBit(std::uint32_t hash) { return 1u << (hash >> 8 & 31u); }

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
      if ((group.overflow & OverflowBit(hash)) == 0)
        break;
    }
    return kNoSlot;
  }
  bool HasRoom() const;
  void Put(std::uint32_t hash, PackedText code, Entry entry);

  template <typename HashOf> void Rebuild(HashOf hashOf) {
    const KeyIndex old = std::move(*this);
    // A full index grows by half, so that adding one key at a time stays cheap. One that only has
    // too many tombstones keeps its size.
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
  std::size_t capacity_ = 0; // keys that can be held without a rehash
  std::size_t size_ = 0;
  std::size_t tombstones_ = 0; // removals that left overflow bits behind
};

} // namespace tq
