#include "symboltable/TableSlots.h"

#include <utility>

#include "symboltable/UpperText.h"

namespace tq {
namespace {

constexpr std::size_t NameMask = 255;

// The entry of the slot for which isName(slot) holds, or the free entry where it belongs.
template <typename Index, typename IsName>
std::size_t Probe(const Index& index, const SymbolKey& name, IsName isName) {
  std::size_t at = name.hash & NameMask;
  while (index[at] != 0 && !isName(index[at] - 1))
    at = (at + 1) & NameMask;
  return at;
}

// Enters a slot under its name unless a lower slot has that name already.
template <typename Index, typename IsName>
void Enter(Index& index, const SymbolKey& name, int slot, IsName isName) {
  std::uint8_t& entry = index[Probe(index, name, isName)];
  if (entry == 0)
    entry = static_cast<std::uint8_t>(slot + 1);
}

} // namespace

TableSlots::TableSlots() = default;
TableSlots::~TableSlots() = default;

int TableSlots::FirstFree(int from) const {
  for (int slot = from; slot < Count; ++slot)
    if (At(slot) == nullptr)
      return slot;
  return None;
}

void TableSlots::Put(int slot, std::unique_ptr<CSymbolTable> table) {
  tables_[static_cast<std::size_t>(slot)] = std::move(table);
  Reindex();
}

void TableSlots::Remove(int slot) {
  Put(slot, nullptr);
}

void TableSlots::Clear() {
  for (auto& table : tables_)
    table.reset();
  Reindex();
}

void TableSlots::Forget() {
  for (auto& table : tables_)
    static_cast<void>(table.release());
  Reindex();
}

// The slots are gone through upwards, so that of equal names the lowest slot keeps the entry.
void TableSlots::Reindex() {
  byName_.fill(0);
  byUpperName_.fill(0);
  for (int slot = 0; slot < Count; ++slot) {
    if (At(slot) == nullptr)
      continue;
    const SymbolKey name = MakeKey(NameAt(slot));
    nameHeads_[static_cast<std::size_t>(slot)] = {name.head, name.text.size()};
    Enter(byName_, name, slot, [&](int other) { return IsNameAt(other, name); });
    CString upper = At(slot)->ExchName();
    upper.MakeUpper();
    std::string& upperName = upperNames_[static_cast<std::size_t>(slot)];
    upperName = ViewOf(upper);
    Enter(byUpperName_, MakeKey(upperName), slot,
          [&](int other) { return UpperNameAt(other) == upperName; });
  }
  FindDefaults();
}

void TableSlots::FindDefaults() {
  defaults_.clear();
  for (const int exchId : defaultIds_)
    if (const int slot = FindId(exchId); slot != None)
      defaults_.push_back(At(slot));
}

void TableSlots::SetDefaults(std::vector<int> exchIds) {
  defaultIds_ = std::move(exchIds);
  FindDefaults();
}

int TableSlots::FindName(std::string_view exchName) const {
  const SymbolKey name = MakeKey(exchName);
  return byName_[Probe(byName_, name, [&](int slot) { return IsNameAt(slot, name); })] - 1;
}

int TableSlots::FindId(int exchId) const {
  for (int slot = 0; slot < Count; ++slot)
    if (At(slot) != nullptr && At(slot)->ExchId() == exchId)
      return slot;
  return None;
}

bool TableSlots::HasNameNoCase(std::string_view exchName) const {
  CString copy = ToCString(exchName);
  UpperBuffer buffer;
  const std::string_view upper = UpperCased(copy, buffer);
  const std::size_t at =
      Probe(byUpperName_, MakeKey(upper), [&](int slot) { return UpperNameAt(slot) == upper; });
  return byUpperName_[at] != 0;
}

} // namespace tq
