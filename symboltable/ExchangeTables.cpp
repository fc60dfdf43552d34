#include "symboltable/ExchangeTables.h"

#include <utility>

#include "symbolid/UpperId.h"

namespace tq {
ExchangeTables::ExchangeTables() = default;
ExchangeTables::~ExchangeTables() = default;

int ExchangeTables::FirstFree(int from) const {
  for (int slot = from; slot < kCount; ++slot)
    if (At(slot) == nullptr)
      return slot;
  return kNone;
}

void ExchangeTables::Delete(std::unique_ptr<ExchangeTables> slots) {
  slots->Clear();
  if (slots->uses_ == 0)
    return;
  slots->ownerless_ = true;
  static_cast<void>(slots.release());
}

void ExchangeTables::EndUse() {
  if (--uses_ != 0)
    return;
  takenOut_.clear();
  if (ownerless_)
    delete this;
}

void ExchangeTables::TakeOut(std::size_t slot) {
  if (uses_ != 0 && tables_[slot] != nullptr)
    takenOut_.push_back(std::move(tables_[slot]));
  tables_[slot].reset();
}

void ExchangeTables::Put(int slot, std::unique_ptr<CSymbolTable> table) {
  const auto place = static_cast<std::size_t>(slot);
  TakeOut(place);
  tables_[place] = std::move(table);
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

// Enters a slot under its name unless a lower slot, entered before, has that name already.
template <typename IsName>
void ExchangeTables::Enter(NameIndex& index, std::string_view name, int slot, IsName isName) {
  std::size_t at = NameHash(PackHead(name));
  for (; index[at] != 0; at = (at + 1) % kNameIndexSize)
    if (isName(index[at] - 1))
      return;
  index[at] = static_cast<std::uint8_t>(slot + 1);
}

void ExchangeTables::Reindex() {
  byName_.fill(0);
  byUpperName_.fill(0);
  for (int slot = 0; slot < kCount; ++slot) {
    if (At(slot) == nullptr)
      continue;
    const std::string_view name = NameAt(slot);
    const PackedText head = PackHead(name);
    nameHeads_[static_cast<std::size_t>(slot)] = {head, name.size()};
    Enter(byName_, name, slot, [&](int other) { return IsNameAt(other, name, head); });
    CString upper = At(slot)->ExchName();
    upper.MakeUpper();
    std::string& upperName = upperNames_[static_cast<std::size_t>(slot)];
    upperName = ViewOf(upper);
    Enter(byUpperName_, upperName, slot,
          [&](int other) { return UpperNameAt(other) == upperName; });
  }
  FindDefaults();
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
  const PackedText head = PackHead(exchName);
  std::size_t at = NameHash(head);
  while (byName_[at] != 0 && !IsNameAt(byName_[at] - 1, exchName, head))
    at = (at + 1) % kNameIndexSize;
  return byName_[at] - 1;
}

int ExchangeTables::FindId(int exchId) const {
  for (int slot = 0; slot < kCount; ++slot)
    if (At(slot) != nullptr && At(slot)->ExchId() == exchId)
      return slot;
  return kNone;
}

bool ExchangeTables::HasUpperName(std::string_view upperName) const {
  std::size_t at = NameHash(PackHead(upperName));
  while (byUpperName_[at] != 0 && UpperNameAt(byUpperName_[at] - 1) != upperName)
    at = (at + 1) % kNameIndexSize;
  return byUpperName_[at] != 0;
}

} // namespace tq
