#include "symbollist/RecordIndex.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <string_view>

namespace tq {
namespace {

std::string_view IdOf(const SymbolInfo& record) {
  return {record.id, strnlen(record.id, sizeof(record.id))};
}

} // namespace

const SymbolInfo* RecordIndex::Find(const char* id) {
  if (slots_.empty()) {
    if (next_ < records_.size() && IdOf(records_[next_]) == id)
      return &records_[next_++];
    if (records_.empty())
      return nullptr;
    Build();
  }
  const uint32_t found = slots_[Slot(id)];
  return found == 0 ? nullptr : &records_[found - 1];
}

void RecordIndex::Build() {
  slots_.assign(std::bit_ceil(records_.size() * 2), 0);
  for (size_t i = 0; i < records_.size(); ++i) {
    char id[sizeof(SymbolInfo::id) + 1] = {};
    std::memcpy(id, records_[i].id, sizeof(SymbolInfo::id));
    slots_[Slot(id)] = static_cast<uint32_t>(i) + 1;
  }
}

uint32_t RecordIndex::Slot(const char* id) const {
  const size_t mask = slots_.size() - 1;
  size_t slot = std::hash<std::string_view>{}(id)&mask;
  while (slots_[slot] != 0 && IdOf(records_[slots_[slot] - 1]) != id)
    slot = (slot + 1) & mask;
  return static_cast<uint32_t>(slot);
}

} // namespace tq
