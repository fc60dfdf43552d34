#include "idlist/RecordIndex.h"

#include <bit>

#include "platform/FieldText.h"
#include "platform/Text.h"
#include "platform/framework/SeededHash.h"

namespace tq {

std::string_view IdOf(const SymbolInfo& record) {
  return FieldText(record.id);
}

const SymbolInfo* RecordIndex::Find(std::string_view id) {
  if (slots_.empty()) {
    if (next_ < records_.size() && IdOf(records_[next_]) == id)
      return &records_[next_++];
    if (records_.empty())
      return nullptr;
    Build();
  }
  const SymbolInfo* alike = nullptr;
  const size_t mask = slots_.size() - 1;
  for (size_t slot = StartOf(id); slots_[slot] != 0; slot = (slot + 1) & mask) {
    const SymbolInfo& record = records_[slots_[slot] - 1];
    if (IdOf(record) == id)
      return &record;
    if (EqualsNoCase(IdOf(record), id))
      alike = &record;
  }
  return alike;
}

void RecordIndex::Build() {
  slots_.assign(std::bit_ceil(records_.size() * 2), 0);
  const size_t mask = slots_.size() - 1;
  for (size_t i = 0; i < records_.size(); ++i) {
    const std::string_view id = IdOf(records_[i]);
    size_t slot = StartOf(id);
    while (slots_[slot] != 0 && IdOf(records_[slots_[slot] - 1]) != id)
      slot = (slot + 1) & mask;
    slots_[slot] = static_cast<uint32_t>(i) + 1;
  }
}

size_t RecordIndex::StartOf(std::string_view id) const {
  return SeededHashNoCase(id) & (slots_.size() - 1);
}

} // namespace tq
