#include "symboltable/KeyIndex.h"

#include <algorithm>

namespace tq {
namespace {

// Of ten slots at most eight are taken when a group is added for the next: full groups are rare then.
constexpr std::size_t FullestTenths = 8;

} // namespace

void KeyIndex::Reset(std::size_t count) {
  groups_.reset();
  groupCount_ = 0;
  size_ = 0;
  worn_ = 0;
  if (count == 0)
    return;
  constexpr std::size_t tenths = 10;
  groupCount_ = std::bit_ceil(count * tenths / (SlotCount * FullestTenths) + 1);
  groups_ = std::make_unique<Group[]>(groupCount_);
}

bool KeyIndex::HasRoom() const {
  constexpr std::size_t tenths = 10;
  return (size_ + 1) * tenths <= groupCount_ * SlotCount * FullestTenths &&
         worn_ <= groupCount_ * SlotCount;
}

void KeyIndex::Put(std::uint32_t hash, std::uint32_t node) {
  for (std::size_t at = hash;; ++at) {
    Group& group = groups_[at & (groupCount_ - 1)];
    std::uint8_t* const tag = std::find(group.tags, group.tags + SlotCount, NoTag);
    if (tag == group.tags + SlotCount) {
      group.passed |= PassedBit(hash);
      continue;
    }
    *tag = TagOf(hash);
    group.nodes[tag - group.tags] = node;
    return;
  }
}

int KeyIndex::Group::SlotOf(std::uint32_t hash, std::uint32_t node) const {
  for (int slot = 0; slot < SlotCount; ++slot)
    if (tags[slot] == TagOf(hash) && nodes[slot] == node)
      return slot;
  return -1;
}

KeyIndex::Place KeyIndex::PlaceOf(std::uint32_t hash, std::uint32_t node) {
  for (std::size_t at = hash;; ++at) {
    Group& group = groups_[at & (groupCount_ - 1)];
    if (const int slot = group.SlotOf(hash, node); slot >= 0)
      return {group, slot};
  }
}

void KeyIndex::Remove(std::uint32_t hash, std::uint32_t node) {
  const Place place = PlaceOf(hash, node);
  place.group.tags[place.slot] = NoTag;
  --size_;
  if (place.group.passed != 0)
    ++worn_;
}

void KeyIndex::Replace(std::uint32_t hash, std::uint32_t node, std::uint32_t successor) {
  const Place place = PlaceOf(hash, node);
  place.group.nodes[place.slot] = successor;
}

} // namespace tq
