#include "symboltable/TableMaker.h"

#include <utility>

#include "symbolid/UpperId.h"
#include "symboltable/ExchangeService.h"

namespace tq {

int MakeTable(ExchangeTables& slots, int from, const CString& exchName, int exchId, int& loaded) {
  const std::string_view name = ViewOf(exchName);
  if (slots.FirstFree(from) == ExchangeTables::kNone)
    return ExchangeTables::kNone;
  const bool known = slots.FindName(name) != ExchangeTables::kNone;
  auto table = std::make_unique<CSymbolTable>(exchName, exchId);
  table->SetAuthorized(IsEntitled(exchId));
  loaded = table->Load();
  // Looked for again: the free slot of before may hold a table by now.
  int slot = known ? ExchangeTables::kNone : slots.FindName(name);
  if (slot == ExchangeTables::kNone)
    slot = slots.FirstFree(from);
  if (slot != ExchangeTables::kNone)
    slots.Put(slot, std::move(table));
  return slot;
}

int MakeTable(ExchangeTables& slots, const CString& exchName, int exchId) {
  CString name = exchName;
  int loaded = 0;
  if (slots.FirstFree() == ExchangeTables::kNone ||
      (name.IsEmpty() && !ReadExchangeName(exchId, name)))
    return 0;
  return MakeTable(slots, 0, name, exchId, loaded) != ExchangeTables::kNone && loaded;
}

} // namespace tq
