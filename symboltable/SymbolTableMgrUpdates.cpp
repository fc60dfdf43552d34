// How the symbol tables follow the service's exchanges and symbols.
#include <algorithm>
#include <set>
#include <string_view>

#include "symbolid/UpperId.h"
#include "symboltable/ExchangeService.h"
#include "symboltable/SymbolRecords.h"
#include "symboltable/SymbolTableMgr.h"
#include "symboltable/TableMaker.h"

int CSymbolTableMgr::AddSymbols(int exchId, const char* symbols, int count) noexcept {
  const tq::ExchangeTables::Use slots(*slots_);
  const int slot = slots->FindId(exchId);
  if (slot == tq::ExchangeTables::kNone)
    return tq::MakeTable(*slots, CString(), exchId);
  const tq::SymbolRecords records(symbols, count);
  return records.Count() == 0 || slots->At(slot)->Add(records.Joined());
}

int CSymbolTableMgr::UpdateSymbols(int exchId, const char* symbols, int count) noexcept {
  const tq::ExchangeTables::Use slots(*slots_);
  const int slot = slots->FindId(exchId);
  if (slot == tq::ExchangeTables::kNone)
    return tq::MakeTable(*slots, CString(), exchId);
  const tq::SymbolRecords records(symbols, count);
  return records.Count() == 0 || slots->At(slot)->Update(records.Joined());
}

int CSymbolTableMgr::RemoveSymbols(int exchId, const char* symbols, int count) noexcept {
  const int slot = MapToSymbolTableIndex(exchId);
  if (slot == tq::ExchangeTables::kNone)
    return 0;
  const tq::SymbolRecords records(symbols, count);
  for (int i = 0; i < records.Count(); ++i)
    slots_->At(slot)->Remove(records.At(i));
  return 1;
}

int CSymbolTableMgr::RebuildSymbolTable() noexcept {
  const tq::ExchangeTables::Use slots(*slots_);
  const tq::ExchangeList list;
  if (!list.Result())
    return 0;
  const std::span<const ExchInfo> exchanges = list.Records();
  std::set<std::string_view> unknown;
  for (const ExchInfo& exchange : exchanges)
    unknown.insert(tq::NameOf(exchange));
  for (int slot = 0; slot < tq::ExchangeTables::kCount; ++slot)
    if (const CSymbolTable* const table = slots->At(slot);
        table != nullptr && unknown.erase(tq::ViewOf(table->ExchName())) == 0)
      slots->Remove(slot);

  // One counter is both the position in the service's list and the slot where the search for a free
  // one starts. So when occupied slots are passed over, the exchanges in between wait for a later
  // call. This is how the terminal's tables have always filled up: do not part the two.
  std::set<std::string_view> made;
  int position = 0;
  for (; position < static_cast<int>(exchanges.size()); ++position) {
    const ExchInfo& exchange = exchanges[static_cast<std::size_t>(position)];
    const std::string_view name = tq::NameOf(exchange);
    // A table that was not made here the terminal made meanwhile.
    if (!unknown.contains(name) ||
        (!made.contains(name) && slots->FindName(name) != tq::ExchangeTables::kNone))
      continue;
    int loaded = 0;
    const int slot = tq::MakeTable(*slots, position, tq::ToCString(name), exchange.id, loaded);
    if (slot == tq::ExchangeTables::kNone)
      return 0;
    made.insert(name);
    position = std::max(position, slot);
  }
  return 1;
}

int CSymbolTableMgr::RebuildSymbolTable(const CString& exchName, int exchId) noexcept {
  constexpr int allExchanges = -1;
  if (exchId == allExchanges)
    return RebuildSymbolTable();
  const tq::ExchangeTables::Use slots(*slots_);
  const int slot = slots->Find(tq::ViewOf(exchName), exchId);
  return slot == tq::ExchangeTables::kNone ? tq::MakeTable(*slots, exchName, exchId)
                                           : slots->At(slot)->Load();
}
