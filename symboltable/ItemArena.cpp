#include "symboltable/ItemArena.h"

namespace tq {

ItemArena::Block ItemArena::MakeBlock(std::size_t count) {
  return std::make_unique_for_overwrite<Place[]>(count);
}

void* ItemArena::LaterPlaceAt(std::uint32_t number) const {
  const std::uint32_t later = number - firstCount_;
  return &later_[later / kLaterCount][later % kLaterCount];
}

void ItemArena::Reset(std::size_t count) {
  later_.clear();
  later_.shrink_to_fit();
  returned_.clear();
  returned_.shrink_to_fit();
  taken_ = 0;
  firstCount_ = static_cast<std::uint32_t>(count);
  first_ = count != 0 ? MakeBlock(count) : Block();
}

std::uint32_t ItemArena::TakePlace() {
  if (!returned_.empty()) {
    const std::uint32_t number = returned_.back();
    returned_.pop_back();
    return number;
  }
  if (taken_ >= firstCount_ && (taken_ - firstCount_) / kLaterCount == later_.size())
    later_.push_back(MakeBlock(kLaterCount));
  return taken_++;
}

void ItemArena::ReturnPlace(std::uint32_t number) {
  returned_.push_back(number);
}

std::size_t ItemArena::Footprint() const {
  return (firstCount_ + later_.size() * kLaterCount) * sizeof(CSymbolItem) +
         later_.capacity() * sizeof(Block) + returned_.capacity() * sizeof(std::uint32_t);
}

} // namespace tq
