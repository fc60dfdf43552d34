// The memory of one table's items: one block for those that are loaded together, more blocks as
// symbols are added later, and places of removed ones used again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "symboltable/SymbolItem.h"

namespace tq {

class ItemArena {
public:
  ItemArena() = default;
  // With the items, which stay where they are. One that was moved from can only be assigned to.
  ItemArena(ItemArena&&) = default;
  ItemArena& operator=(ItemArena&&) = default;

  // Gives back all memory and makes one block of `count` places. No item may be left.
  void Reset(std::size_t count);

  // A place for an item, by number. The caller constructs the item there before it takes another.
  std::uint32_t TakePlace();
  // The item's destructor has run, or it was never constructed; the place may be taken again.
  void ReturnPlace(std::uint32_t number);

  void* PlaceAt(std::uint32_t number) const {
    return number < firstCount_ ? &first_[number] : LaterPlaceAt(number);
  }
  CSymbolItem* At(std::uint32_t number) const { return static_cast<CSymbolItem*>(PlaceAt(number)); }

  // Heap bytes held.
  std::size_t Footprint() const;

private:
  static constexpr std::uint32_t kLaterCount = 64; // items in a later block

  struct alignas(CSymbolItem) Place {
    std::byte bytes[sizeof(CSymbolItem)];
  };
  using Block = std::unique_ptr<Place[]>;

  static Block MakeBlock(std::size_t count);
  void* LaterPlaceAt(std::uint32_t number) const;

  Block first_;
  std::uint32_t firstCount_ = 0;
  std::vector<Block> later_;
  std::uint32_t taken_ = 0; // places that were ever taken
  std::vector<std::uint32_t> returned_;
};

} // namespace tq
