// Finds the record that the symbol-data service returned for an id.
//
// A hash table with open addressing instead of a standard container: lists with an unknown id
// build one each time they are resolved, and a node for each record would cost more than the
// look-ups.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/services/VLProxy.h"

namespace tq {

// A record's id; the field need not be terminated.
std::string_view IdOf(const SymbolInfo& record);

// Refers to the service's array, which must outlive it. The service answers in the order of the
// request, so nearly always the next record is the right one. The hash table is built lazily, at
// the first id for which it is not (unknown, repeated, out of order, in another letter case).
class RecordIndex {
public:
  explicit RecordIndex(std::span<const SymbolInfo> records) : records_(records) {}

  // The record with exactly this id, or else one whose id differs only in letter case: lists may
  // spell an id differently from the service, and some services distinguish "PFDa" from "PFDA". The
  // last one when there are several, null when there is none.
  const SymbolInfo* Find(std::string_view id);

private:
  void Build();
  size_t StartOf(std::string_view id) const;

  std::span<const SymbolInfo> records_;
  size_t next_ = 0;
  std::vector<uint32_t> slots_; // 0: free, else record number + 1
};

} // namespace tq
