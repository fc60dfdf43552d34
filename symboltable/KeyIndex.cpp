#include "symboltable/KeyIndex.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace tq {
namespace {

constexpr std::size_t SmallestCapacity = 16;

// At most five entries of eight are taken: a miss then ends after some four entries.
bool IsTooFull(std::size_t size, std::size_t capacity) {
  return size * 8 > capacity * 5;
}

std::size_t CapacityFor(std::size_t count) {
  const std::size_t capacity = std::bit_ceil(std::max(count, SmallestCapacity));
  return IsTooFull(count, capacity) ? capacity * 2 : capacity;
}

} // namespace

void KeyIndex::Allocate(std::size_t capacity) {
  entries_ = std::make_unique_for_overwrite<Entry[]>(capacity);
  std::fill_n(entries_.get(), capacity, Entry{0, NoNode});
  mask_ = capacity - 1;
}

void KeyIndex::Reset(std::size_t count) {
  entries_.reset();
  mask_ = 0;
  size_ = 0;
  if (count != 0)
    Allocate(CapacityFor(count));
}

void KeyIndex::Put(Entry entry) {
  std::size_t at = entry.hash & mask_;
  while (entries_[at].node != NoNode)
    at = (at + 1) & mask_;
  entries_[at] = entry;
}

void KeyIndex::Grow() {
  const std::unique_ptr<Entry[]> old = std::move(entries_);
  const std::size_t oldCapacity = old ? mask_ + 1 : 0;
  Allocate(CapacityFor(size_ + 1));
  for (std::size_t at = 0; at < oldCapacity; ++at)
    if (old[at].node != NoNode)
      Put(old[at]);
}

void KeyIndex::Add(std::uint32_t hash, std::uint32_t node) {
  if (!entries_ || IsTooFull(size_ + 1, mask_ + 1))
    Grow();
  Put({hash, node});
  ++size_;
}

std::size_t KeyIndex::PositionOf(std::uint32_t hash, std::uint32_t node) const {
  std::size_t at = hash & mask_;
  while (entries_[at].node != node)
    at = (at + 1) & mask_;
  return at;
}

void KeyIndex::Remove(std::uint32_t hash, std::uint32_t node) {
  std::size_t hole = PositionOf(hash, node);
  // Entries behind the hole that may stand there move up, so that no mark of the removal is left
  // and the index stays as quick after years of updates as after loading.
  for (std::size_t at = (hole + 1) & mask_; entries_[at].node != NoNode; at = (at + 1) & mask_) {
    const std::size_t wanted = entries_[at].hash & mask_;
    if (((at - wanted) & mask_) < ((at - hole) & mask_))
      continue;
    entries_[hole] = entries_[at];
    hole = at;
  }
  entries_[hole].node = NoNode;
  --size_;
}

void KeyIndex::Replace(std::uint32_t hash, std::uint32_t node, std::uint32_t successor) {
  entries_[PositionOf(hash, node)].node = successor;
}

} // namespace tq
