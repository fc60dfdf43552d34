#include "symboltable/ItemArena.h"

namespace tq {

ItemArena::Block ItemArena::MakeBlock(std::size_t count) {
  return std::make_unique_for_overwrite<Cell[]>(count);
}

void* ItemArena::LaterCellAt(std::uint32_t number) const {
  const std::uint32_t later = number - firstCount_;
  return &later_[later / kLaterCount][later % kLaterCount];
}

void ItemArena::Reset(std::size_t count) {
  later_.clear();
  later_.shrink_to_fit();
  free_.clear();
  free_.shrink_to_fit();
  used_ = 0;
  firstCount_ = static_cast<std::uint32_t>(count);
  first_ = count != 0 ? MakeBlock(count) : Block();
}

std::uint32_t ItemArena::Allocate() {
  if (!free_.empty()) {
    const std::uint32_t number = free_.back();
    free_.pop_back();
    return number;
  }
  if (used_ >= firstCount_ && (used_ - firstCount_) / kLaterCount == later_.size())
    later_.push_back(MakeBlock(kLaterCount));
  return used_++;
}

void ItemArena::Free(std::uint32_t number) {
  free_.push_back(number);
}

std::size_t ItemArena::Footprint() const {
  return (firstCount_ + later_.size() * kLaterCount) * sizeof(CSymbolItem) +
         later_.capacity() * sizeof(Block) + free_.capacity() * sizeof(std::uint32_t);
}

} // namespace tq
