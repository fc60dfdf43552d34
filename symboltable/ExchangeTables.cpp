#include "symboltable/ExchangeTables.h"

#include <utility>

#include "symbolid/PackedText.h"

namespace tq {

ExchangeTables::ExchangeTables() = default;
ExchangeTables::~ExchangeTables() = default;

int ExchangeTables::FirstFree(int from) const {
  for (int slot = from; slot < kCount; ++slot)
    if (At(slot) == nullptr)
      return slot;
  return kNone;
}

void ExchangeTables::Delete(std::unique_ptr<ExchangeTables> tables) {
  tables->Clear();
  if (tables->uses_ == 0)
    return;
  tables->ownerless_ = true;
  static_cast<void>(tables.release());
}

void ExchangeTables::EndUse() {
  if (--uses_ != 0)
    return;
  removed_.clear();
  if (ownerless_)
    delete this;
}

void ExchangeTables::TakeOut(std::size_t slot) {
  if (uses_ != 0 && tables_[slot] != nullptr)
    removed_.push_back(std::move(tables_[slot]));
  tables_[slot].reset();
}

void ExchangeTables::Put(int slot, std::unique_ptr<CSymbolTable> table) {
  const auto index = static_cast<std::size_t>(slot);
  TakeOut(index);
  tables_[index] = std::move(table);
  Reindex();
}

void ExchangeTables::Remove(int slot) {
  Put(slot, nullptr);
}

void ExchangeTables::Clear() {
  for (std::size_t slot = 0; slot < tables_.size(); ++slot)
    TakeOut(slot);
  Reindex();
}

void ExchangeTables::Forget() {
  for (auto& table : tables_)
    static_cast<void>(table.release());
  Reindex();
}

void ExchangeTables::Reindex() {
  shortNames_.fill({});
  longNames_.clear();
  upperNames_.clear();
  for (int slot = 0; slot < kCount; ++slot) {
    if (At(slot) == nullptr)
      continue;
    CString name = At(slot)->ExchName();
    AddName(ViewOf(name), slot);
    name.MakeUpper();
    upperNames_.emplace(ViewOf(name));
  }
  FindDefaults();
}

// Called for the lowest slot first. A name that is known already keeps its slot.
void ExchangeTables::AddName(std::string_view name, int slot) {
  if (name.size() > kShortName) {
    longNames_.emplace(name, slot);
    return;
  }
  const std::uint64_t word = PackWord(name);
  ShortName& entry = shortNames_[EntryOf(word, name.size())];
  if (entry.slot == kNone)
    entry = {word, static_cast<std::uint8_t>(name.size()), static_cast<std::int16_t>(slot)};
}

void ExchangeTables::FindDefaults() {
  defaults_.clear();
  for (const int exchId : defaultIds_)
    if (const int slot = FindId(exchId); slot != kNone)
      defaults_.push_back(At(slot));
}

void ExchangeTables::SetDefaults(std::vector<int> exchIds) {
  defaultIds_ = std::move(exchIds);
  FindDefaults();
}

int ExchangeTables::FindName(std::string_view exchName) const {
  if (exchName.size() <= kShortName)
    return FindShort(PackWord(exchName), exchName.size());
  const auto found = longNames_.find(exchName);
  return found == longNames_.end() ? kNone : found->second;
}

int ExchangeTables::FindId(int exchId) const {
  for (int slot = 0; slot < kCount; ++slot)
    if (At(slot) != nullptr && At(slot)->ExchId() == exchId)
      return slot;
  return kNone;
}

} // namespace tq
