// The symbols that a table of results shows: records that somebody else made, kept for as long as
// they are shown. Nothing is copied, however many there are.
#pragma once

#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "platform/ServiceArray.h"

namespace tq {

class SymbolRows {
public:
  // None.
  SymbolRows() = default;
  // What the symbol-data service handed out; released with the last user of it.
  explicit SymbolRows(ServiceArray<SymbolInfo> found)
      : SymbolRows(std::make_shared<ServiceArray<SymbolInfo>>(std::move(found))) {}
  explicit SymbolRows(std::vector<SymbolInfo> records)
      : SymbolRows(std::make_shared<std::vector<SymbolInfo>>(std::move(records))) {}
  // The first `count` records of an array.
  SymbolRows(const std::shared_ptr<const SymbolInfo[]>& records, int count)
      : owner_(records), records_(records.get(), static_cast<std::size_t>(count)) {}

  int Count() const { return static_cast<int>(records_.size()); }
  bool Has(int row) const { return row >= 0 && row < Count(); }
  const SymbolInfo& At(int row) const { return records_[static_cast<std::size_t>(row)]; }
  std::span<const SymbolInfo> All() const { return records_; }

private:
  explicit SymbolRows(const std::shared_ptr<ServiceArray<SymbolInfo>>& found)
      : owner_(found), records_(found->Records()) {}
  explicit SymbolRows(const std::shared_ptr<std::vector<SymbolInfo>>& records)
      : owner_(records), records_(*records) {}

  std::shared_ptr<const void> owner_;
  std::span<const SymbolInfo> records_;
};

} // namespace tq
