#include "symboltable/KeyIndex.h"

#include <algorithm>

namespace tq {
namespace {

// The load factor after a rehash, in tenths. Full groups are rare up to it.
constexpr std::size_t kLoadTenths = 8;
constexpr std::size_t kTenths = 10;

} // namespace

void KeyIndex::Reset(std::size_t count) {
  *this = {};
  if (count == 0)
    return;
  capacity_ = count;
  groupCount_ = count * kTenths / (kSlotCount * kLoadTenths) + 1;
  groups_ = std::make_unique<Group[]>(groupCount_);
  codes_ = std::make_unique_for_overwrite<PackedText[]>(groupCount_ * kSlotCount);
  entries_ = std::make_unique<Entry[]>(groupCount_ * kSlotCount);
}

bool KeyIndex::HasRoom() const {
  return size_ < capacity_ && tombstones_ <= groupCount_ * kSlotCount;
}

void KeyIndex::Put(std::uint32_t hash, PackedText code, Entry entry) {
  for (std::size_t at = GroupOf(hash);; at = Next(at)) {
    Group& group = groups_[at];
    std::uint8_t* const tag = std::find(group.tags, group.tags + kSlotCount, kNoTag);
    if (tag == group.tags + kSlotCount) {
      group.overflow |= OverflowBit(hash);
      continue;
    }
    *tag = TagOf(hash);
    const Slot slot = SlotOf(at, static_cast<std::size_t>(tag - group.tags));
    codes_[slot] = code;
    entries_[slot] = std::move(entry);
    return;
  }
}

void KeyIndex::Remove(Slot slot) {
  Group& group = groups_[slot / kSlotCount];
  group.tags[slot % kSlotCount] = kNoTag;
  entries_[slot] = {};
  --size_;
  if (group.overflow != 0)
    ++tombstones_;
}

} // namespace tq
