// The memory of one table's items, in cells that are known by number: one block for the items that
// are loaded together, smaller blocks for items that are added later. Freed cells are used again.
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
  // Takes the items along; they keep their addresses. A moved-from arena can only be assigned to.
  ItemArena(ItemArena&&) = default;
  ItemArena& operator=(ItemArena&&) = default;

  // Frees all memory and allocates one block of `count` cells. All items must have been destroyed.
  void Reset(std::size_t count);

  // Allocates a cell and returns its number. The caller constructs the item in it before the next
  // Allocate.
  std::uint32_t Allocate();
  // Frees a cell. Its item has been destroyed, or was never constructed.
  void Free(std::uint32_t number);

  void* CellAt(std::uint32_t number) const {
    return number < firstCount_ ? &first_[number] : LaterCellAt(number);
  }
  CSymbolItem* At(std::uint32_t number) const { return static_cast<CSymbolItem*>(CellAt(number)); }

  // Heap bytes held.
  std::size_t Footprint() const;

private:
  static constexpr std::uint32_t kLaterCount = 64; // items in a later block

  struct alignas(CSymbolItem) Cell {
    std::byte bytes[sizeof(CSymbolItem)];
  };
  using Block = std::unique_ptr<Cell[]>;

  static Block MakeBlock(std::size_t count);
  void* LaterCellAt(std::uint32_t number) const;

  Block first_;
  std::uint32_t firstCount_ = 0;
  std::vector<Block> later_;
  std::uint32_t used_ = 0; // cells that were ever allocated
  std::vector<std::uint32_t> free_;
};

} // namespace tq
