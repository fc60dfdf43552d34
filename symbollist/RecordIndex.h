// Finds the record that the symbol-data service returned for an id.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/services/VLProxy.h"

namespace tq {

// A record's id, which ends with its field at the latest.
std::string_view IdOf(const SymbolInfo& record);

// Refers to the service's array, which must outlive it. The service answers in the order of the
// request, so the next record is nearly always the one wanted; only when it is not (an unknown id,
// a repeated one, another order, another letter case) is a hash index over all records built.
class RecordIndex {
public:
  explicit RecordIndex(std::span<const SymbolInfo> records) : records_(records) {}

  // The record whose id is `id`, or else one whose id differs from it in letter case only: lists
  // may have an id in another case than the service, and some services tell "PFDa" from "PFDA". Of
  // several alike the last. Null when there is none.
  const SymbolInfo* Find(std::string_view id);

private:
  void Build();
  size_t StartOf(std::string_view id) const;

  std::span<const SymbolInfo> records_;
  size_t next_ = 0;
  std::vector<uint32_t> slots_; // 0: free, else record number + 1
};

} // namespace tq
