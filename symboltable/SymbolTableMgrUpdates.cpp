// How the symbol tables follow the service's exchanges and symbols.
#include <algorithm>
#include <memory>
#include <set>
#include <string_view>
#include <utility>

#include "platform/Text.h"
#include "symbolid/SymbolRecords.h"
#include "symboltable/ExchangeService.h"
#include "symboltable/ExchangeTables.h"
#include "symboltable/LiveTables.h"
#include "symboltable/SymbolTableMgr.h"

namespace {

using tq::ExchangeTables;

// Makes a table of that exchange, marked as the user's entitlements say, loads it and puts it into
// the first free slot from `from` on. `loaded`: whether loading succeeded. Returns the slot, or
// kNone when none is free: no table was made then. A table of that name that the terminal made
// while the services were asked is replaced.
int MakeTable(ExchangeTables& tables, int from, const CString& exchName, int exchId, int& loaded) {
  const std::string_view name = tq::ViewOf(exchName);
  if (tables.FirstFree(from) == ExchangeTables::kNone)
    return ExchangeTables::kNone;
  const bool known = tables.FindName(name) != ExchangeTables::kNone;
  auto table = std::make_unique<CSymbolTable>(exchName, exchId);
  table->SetAuthorized(tq::IsEntitled(exchId));
  loaded = table->Load();
  // Looked for again: the slot may have been taken while the services were asked.
  int slot = known ? ExchangeTables::kNone : tables.FindName(name);
  if (slot == ExchangeTables::kNone)
    slot = tables.FirstFree(from);
  if (slot != ExchangeTables::kNone)
    tables.Put(slot, std::move(table));
  return slot;
}

// The same in the first free slot, under the service's name for the exchange when `exchName` is
// empty. Returns whether a table was made and loaded.
int MakeTable(ExchangeTables& tables, const CString& exchName, int exchId) {
  CString name = exchName;
  int loaded = 0;
  if (tables.FirstFree() == ExchangeTables::kNone ||
      (name.IsEmpty() && !tq::ReadExchangeName(exchId, name)))
    return 0;
  return MakeTable(tables, 0, name, exchId, loaded) != ExchangeTables::kNone && loaded;
}

} // namespace

int CSymbolTableMgr::AddSymbols(int exchId, const char* symbols, int count) noexcept {
  if (!tq::CheckTables(this, "AddSymbols"))
    return 0;
  const ExchangeTables::Use slots(*slots_);
  const int slot = slots->FindId(exchId);
  if (slot == ExchangeTables::kNone)
    return MakeTable(*slots, CString(), exchId);
  const tq::SymbolRecords records(symbols, count);
  return records.Count() == 0 || slots->At(slot)->Add(records.Joined());
}

int CSymbolTableMgr::UpdateSymbols(int exchId, const char* symbols, int count) noexcept {
  if (!tq::CheckTables(this, "UpdateSymbols"))
    return 0;
  const ExchangeTables::Use slots(*slots_);
  const int slot = slots->FindId(exchId);
  if (slot == ExchangeTables::kNone)
    return MakeTable(*slots, CString(), exchId);
  const tq::SymbolRecords records(symbols, count);
  return records.Count() == 0 || slots->At(slot)->Update(records.Joined());
}

int CSymbolTableMgr::RemoveSymbols(int exchId, const char* symbols, int count) noexcept {
  if (!tq::CheckTables(this, "RemoveSymbols"))
    return 0;
  const int slot = MapToSymbolTableIndex(exchId);
  if (slot == ExchangeTables::kNone)
    return 0;
  const tq::SymbolRecords records(symbols, count);
  for (int i = 0; i < records.Count(); ++i)
    slots_->At(slot)->Remove(records.At(i));
  return 1;
}

int CSymbolTableMgr::RebuildSymbolTable() noexcept {
  if (!tq::CheckTables(this, "RebuildSymbolTable"))
    return 0;
  const ExchangeTables::Use slots(*slots_);
  const tq::ExchangeList list;
  if (!list.Result())
    return 0;
  const std::span<const ExchInfo> exchanges = list.Records();
  std::set<std::string_view> unknown;
  for (const ExchInfo& exchange : exchanges)
    unknown.insert(tq::NameOf(exchange));
  for (int slot = 0; slot < ExchangeTables::kCount; ++slot)
    if (const CSymbolTable* const table = slots->At(slot);
        table != nullptr && unknown.erase(tq::ViewOf(table->ExchName())) == 0)
      slots->Remove(slot);

  // One counter serves as the position in the service's list and as the slot where the search for a
  // free one starts. So when that search skips occupied slots, the exchanges in between wait for a
  // later call. The terminal's tables have always been filled this way: do not separate the two.
  std::set<std::string_view> made;
  int position = 0;
  for (; position < static_cast<int>(exchanges.size()); ++position) {
    const ExchInfo& exchange = exchanges[static_cast<std::size_t>(position)];
    const std::string_view name = tq::NameOf(exchange);
    // A table that was not made in this loop was made by the terminal meanwhile.
    if (!unknown.contains(name) ||
        (!made.contains(name) && slots->FindName(name) != ExchangeTables::kNone))
      continue;
    int loaded = 0;
    const int slot = MakeTable(*slots, position, tq::ToCString(name), exchange.id, loaded);
    if (slot == ExchangeTables::kNone)
      return 0;
    made.insert(name);
    position = std::max(position, slot);
  }
  return 1;
}

int CSymbolTableMgr::RebuildSymbolTable(const CString& exchName, int exchId) noexcept {
  if (!tq::CheckTables(this, "RebuildSymbolTable", "exchName", exchName))
    return 0;
  constexpr int allExchanges = -1;
  if (exchId == allExchanges)
    return RebuildSymbolTable();
  const ExchangeTables::Use slots(*slots_);
  const int slot = slots->Find(tq::ViewOf(exchName), exchId);
  return slot == ExchangeTables::kNone ? MakeTable(*slots, exchName, exchId)
                                       : slots->At(slot)->Load();
}
