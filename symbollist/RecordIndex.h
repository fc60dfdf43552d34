// Finds the record that the symbol-data service returned for an id.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/services/VLProxy.h"

namespace tq {

// Refers to the service's array, which must outlive it. The service answers in the order of the
// request, so the next record is nearly always the one wanted; only when it is not (an unknown id, a
// repeated one, another order) is a hash index over all records built.
class RecordIndex {
public:
  explicit RecordIndex(std::span<const SymbolInfo> records) : records_(records) {}

  // The record whose id is `id`, or null. Of several with one id, the last.
  const SymbolInfo* Find(const char* id);

private:
  void Build();
  uint32_t Slot(const char* id) const;

  std::span<const SymbolInfo> records_;
  size_t next_ = 0;
  std::vector<uint32_t> slots_; // 0: free, else record number + 1
};

} // namespace tq
