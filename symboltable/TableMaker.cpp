#include "symboltable/TableMaker.h"

#include <utility>

#include "symbolid/UpperId.h"
#include "symboltable/ExchangeService.h"

namespace tq {

int MakeTable(TableSlots& slots, int from, const CString& exchName, int exchId, int& loaded) {
  const std::string_view name = ViewOf(exchName);
  if (slots.FirstFree(from) == TableSlots::kNone)
    return TableSlots::kNone;
  const bool known = slots.FindName(name) != TableSlots::kNone;
  auto table = std::make_unique<CSymbolTable>(exchName, exchId);
  table->SetAuthorized(IsEntitled(exchId));
  loaded = table->Load();
  // Looked for again: the free slot of before may hold a table by now.
  int slot = known ? TableSlots::kNone : slots.FindName(name);
  if (slot == TableSlots::kNone)
    slot = slots.FirstFree(from);
  if (slot != TableSlots::kNone)
    slots.Put(slot, std::move(table));
  return slot;
}

int MakeTable(TableSlots& slots, const CString& exchName, int exchId) {
  CString name = exchName;
  int loaded = 0;
  if (slots.FirstFree() == TableSlots::kNone || (name.IsEmpty() && !ReadExchangeName(exchId, name)))
    return 0;
  return MakeTable(slots, 0, name, exchId, loaded) != TableSlots::kNone && loaded;
}

} // namespace tq
