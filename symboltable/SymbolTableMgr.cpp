// The symbol tables' life cycle.
#include "symboltable/SymbolTableMgr.h"

#include <utility>
#include <vector>

#include "platform/framework/CUIntArray.h"
#include "symboltable/ExchangeService.h"
#include "symboltable/ExchangeTables.h"
#include "symboltable/LiveTables.h"

CSymbolTableMgr::CSymbolTableMgr() noexcept : slots_(std::make_unique<tq::ExchangeTables>()) {
  tq::NoteMade(this);
}

CSymbolTableMgr::~CSymbolTableMgr() {
  tq::NoteGone(this);
  tq::ExchangeTables::Delete(std::move(slots_));
}

int CSymbolTableMgr::Init() noexcept {
  if (!tq::CheckTables(this, "Init"))
    return 0;
  // Tables are forgotten, not deleted, as the header says. CleanALL cannot reach them afterwards.
  slots_->Forget();
  slots_->SetDefaults({});
  return 1;
}

int CSymbolTableMgr::InitAllSymbolTable() noexcept {
  if (!tq::CheckTables(this, "InitAllSymbolTable"))
    return 0;
  const tq::ExchangeTables::Use slots(*slots_);
  const tq::ExchangeList exchanges;
  int result = exchanges.Result();
  int slot = 0;
  for (const ExchInfo& exchange : exchanges.Records()) {
    if (slot == tq::ExchangeTables::kCount)
      break;
    auto table = std::make_unique<CSymbolTable>(tq::ToCString(tq::NameOf(exchange)), exchange.id);
    if (!table->Load())
      result = 0;
    slots->Put(slot++, std::move(table));
  }
  return result;
}

int CSymbolTableMgr::InitAuthorizedExch() noexcept {
  if (!tq::CheckTables(this, "InitAuthorizedExch"))
    return 0;
  const tq::ExchangeTables::Use slots(*slots_);
  int mask[tq::ExchangeTables::kCount] = {};
  if (!GetAuthMask(mask))
    return 0;
  for (int slot = 0; slot < tq::ExchangeTables::kCount; ++slot)
    if (CSymbolTable* const table = slots->At(slot))
      table->SetAuthorized(tq::CanBeEntitled(table->ExchId()) && mask[table->ExchId()] != 0);
  return 1;
}

int CSymbolTableMgr::InitDefaultExchList(CUIntArray& ids) noexcept {
  if (!tq::CheckTables(this, "InitDefaultExchList"))
    return 0;
  std::vector<int> exchIds;
  exchIds.reserve(static_cast<std::size_t>(ids.GetSize()));
  for (int i = 0; i < ids.GetSize(); ++i)
    exchIds.push_back(static_cast<int>(ids[i]));
  slots_->SetDefaults(std::move(exchIds));
  return 1;
}

void CSymbolTableMgr::CleanALL() noexcept {
  if (!tq::CheckTables(this, "CleanALL"))
    return;
  slots_->Clear();
}

CSymbolTable* CSymbolTableMgr::TableAt(int slot) const noexcept {
  return slots_->At(slot);
}
