// What the symbol tables know of exchanges.
#include <algorithm>

#include "platform/Text.h"
#include "symboltable/ExchangeService.h"
#include "symboltable/ExchangeTables.h"
#include "symboltable/LiveTables.h"
#include "symboltable/SymbolTableMgr.h"

using tq::ExchangeTables;

int CSymbolTableMgr::FindExchID(int exchId, CString& name) noexcept {
  if (!tq::CheckTables(this, "FindExchID"))
    return 0;
  return tq::ReadExchangeName(exchId, name);
}

int CSymbolTableMgr::IsAuthorizedExch(const CString& exchName) noexcept {
  if (!tq::CheckTables(this, "IsAuthorizedExch", "exchName", exchName))
    return 0;
  if (exchName.IsEmpty())
    return 0;
  const int slot = slots_->FindName(tq::ViewOf(exchName));
  return slot != ExchangeTables::kNone && slots_->At(slot)->IsAuthorized();
}

int CSymbolTableMgr::IsSupportUJKExch() noexcept {
  if (!tq::CheckTables(this, "IsSupportUJKExch"))
    return 0;
  int mask[ExchangeTables::kCount] = {};
  return GetAuthMask(mask) &&
         std::ranges::all_of(tq::kFamilyExchanges, [&](int exchId) { return mask[exchId] != 0; });
}

CString CSymbolTableMgr::MapExchIDsToExchName(const CString& exchIds) noexcept {
  if (!tq::CheckTables(this, "MapExchIDsToExchName", "exchIds", exchIds))
    return CString();
  const ExchangeTables::Use slots(*slots_);
  enum class FamilyShown { NotAsked, No, Yes };
  FamilyShown family = FamilyShown::NotAsked;
  const auto isLeftOut = [&](int exchId) {
    if (std::ranges::find(tq::kFamilyExchanges, exchId) == tq::kFamilyExchanges.end())
      return false;
    if (family == FamilyShown::NotAsked)
      family = tq::HasFullMenu() ? FamilyShown::Yes : FamilyShown::No;
    return family == FamilyShown::No;
  };
  CString names;
  tq::ForEachNumber(tq::ViewOf(exchIds), [&](int position, int exchId) {
    const int slot = isLeftOut(exchId) ? ExchangeTables::kNone : slots->FindId(exchId);
    if (slot == ExchangeTables::kNone)
      return;
    // By the position in the input: a first id that is left out leaves its comma behind, and
    // callers rely on that. Do not make it depend on the names written so far.
    if (position > 0)
      names += ',';
    names += slots->At(slot)->ExchName();
  });
  return names;
}

std::pair<CString, CString> CSymbolTableMgr::GetSymbolAndExchID(const CString& id) noexcept {
  if (!tq::CheckTables(this, "GetSymbolAndExchID", "id", id))
    return {};
  const auto [symbol, suffix] = tq::SplitId(tq::ViewOf(id));
  CString upperSuffix = tq::ToCString(suffix);
  upperSuffix.MakeUpper();
  if (suffix.empty() || !slots_->HasUpperName(tq::ViewOf(upperSuffix)))
    return {id, CString()};
  return {tq::ToCString(symbol), tq::ToCString(suffix)};
}

CString CSymbolTableMgr::HandleDefaultExchangeSymbol(const CString& id) noexcept {
  if (!tq::CheckTables(this, "HandleDefaultExchangeSymbol", "id", id))
    return CString();
  const std::pair<CString, CString> parts = GetSymbolAndExchID(id);
  if (parts.second.IsEmpty())
    return id;
  for (const CSymbolTable* table : slots_->Defaults())
    if (table->ExchName() == parts.second)
      return parts.first;
  return id;
}

int CSymbolTableMgr::GetDefaultExchange(const CString& symbol, CString& exchName) noexcept {
  if (!tq::CheckTables(this, "GetDefaultExchange", "symbol", symbol))
    return 0;
  const CSymbolTable* last = nullptr;
  int count = 0;
  for (const CSymbolTable* table : slots_->Defaults()) {
    if (table->FindId(tq::ViewOf(symbol)) == nullptr)
      continue;
    last = table;
    ++count;
  }
  // Assigned last: `exchName` and `symbol` may be the same object.
  if (last != nullptr)
    exchName = last->ExchName();
  return count;
}

int CSymbolTableMgr::IsGetDefaultExchange(const CString& symbol, CString& exchName) noexcept {
  for (const CSymbolTable* table : slots_->Defaults()) {
    if (table->FindId(tq::ViewOf(symbol)) == nullptr)
      continue;
    exchName = table->ExchName();
    return 1;
  }
  return 0;
}

int CSymbolTableMgr::GetExch(const CString& id, CString& exchName) noexcept {
  exchName = GetSymbolAndExchID(id).second;
  return !exchName.IsEmpty();
}

int CSymbolTableMgr::FindSymbolTableIndex(const CString& exchName, int exchId) noexcept {
  return slots_->Find(tq::ViewOf(exchName), exchId);
}

int CSymbolTableMgr::MapToSymbolTableIndex(int exchId) noexcept {
  return slots_->FindId(exchId);
}

int CSymbolTableMgr::GetAuthMask(int mask[128]) noexcept {
  return tq::ReadEntitlements(std::span<int, ExchangeTables::kCount>(mask, ExchangeTables::kCount));
}

int CSymbolTableMgr::IsAuthExch(int exchId) noexcept {
  return tq::IsEntitled(exchId);
}
