#include "symboltable/TableMaker.h"

#include <utility>

#include "symboltable/ExchangeService.h"
#include "symboltable/UpperText.h"

namespace tq {

int MakeTable(TableSlots& slots, int from, const CString& exchName, int exchId, int& loaded) {
  const std::string_view name = ViewOf(exchName);
  if (slots.FirstFree(from) == TableSlots::None)
    return TableSlots::None;
  const bool known = slots.FindName(name) != TableSlots::None;
  auto table = std::make_unique<CSymbolTable>(exchName, exchId);
  table->SetAuthorized(IsEntitled(exchId));
  loaded = table->Load();
  // Looked for again: the free slot of before may hold a table by now.
  int slot = known ? TableSlots::None : slots.FindName(name);
  if (slot == TableSlots::None)
    slot = slots.FirstFree(from);
  if (slot != TableSlots::None)
    slots.Put(slot, std::move(table));
  return slot;
}

int MakeTable(TableSlots& slots, const CString& exchName, int exchId) {
  CString name = exchName;
  int loaded = 0;
  if (slots.FirstFree() == TableSlots::None || (name.IsEmpty() && !ReadExchangeName(exchId, name)))
    return 0;
  return MakeTable(slots, 0, name, exchId, loaded) != TableSlots::None && loaded;
}

} // namespace tq
