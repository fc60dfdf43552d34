// The lists of kind 6. They live beside the user's lists and are never saved with them.
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "accounts/TradingTable.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/LibraryString.h"
#include "platform/Notify.h"
#include "platform/ServiceArray.h"
#include "symbollist/IdString.h"
#include "symbollist/ListKind.h"
#include "symbollist/ListName.h"
#include "symbollist/NewListId.h"
#include "symbollist/NoCaseText.h"
#include "symbollist/OwnedLists.h"

namespace {

// The terminal knows this reason: do not change.
constexpr char kReasonTrading[] = "TSSymbolList";

struct SystemList {
  CString id;
  CString name;
  CString symbols;
};

// Gives an empty list those of the symbols that the service knows, as one question: the service
// leaves unknown ids out and answers in order, so its records are the list. When it fails it knows
// none.
void AddKnownSymbols(CSymbolList& list, const CString& symbols) {
  CStringArray tokens;
  const tq::SplitIds split = tq::SplitIdString(symbols, tokens);
  const CString ids = split.plain ? symbols : tq::LookupString(symbols);
  SymbolInfo* records = nullptr;
  int count = 0;
  if (!ids.IsEmpty() && VLGetSymbolInfos(ids, &records, &count) != 0)
    list.Update2(records, count);
  else if (records != nullptr)
    VLFree(records);
}

} // namespace

int CTQSymbolListMgr::AddTSSymbolList(const CString& id, int kind, const CString& name,
                                      const CString& symbols, int allowEmpty) noexcept {
  if (TradingTable() == nullptr || name.IsEmpty() || (symbols.IsEmpty() && allowEmpty == 0))
    return 0;
  const CString suffix = "-" + tq::LibraryString(tq::kStringUpdate);
  const auto taken = [&](const CString& wanted) {
    return CheckNameExist(wanted, 0, -1, kind) != 0;
  };
  CString freeName;
  const auto allowed = [&] {
    if (CheckValidSymbolList(id, kind) != 0)
      return false;
    freeName = tq::SuffixedName(name, suffix, taken);
    return !taken(freeName);
  };
  if (!allowed())
    return 0;
  const CString listId = id.IsEmpty() ? tq::NewListId() : id;
  if (listId.IsEmpty())
    return 0;
  const unsigned changes = tradingLists_->Changes();
  auto list = std::make_unique<CSymbolList>();
  AddKnownSymbols(*list, symbols);
  // The terminal may have worked on the lists while the service was asked.
  if (changes != tradingLists_->Changes() && (TradingTable() == nullptr || !allowed()))
    return 0;
  list->SetID(listId);
  list->SetName(freeName);
  tradingLists_->AddLast(std::move(list));
  return 1;
}

int CTQSymbolListMgr::UpdateTSSymbolList(const CString& id, int kind, const CString& name,
                                         const CString& symbols, int allowEmpty) noexcept {
  if (TradingTable() == nullptr)
    return 0;
  CSymbolList* list = FindList(id, tq::kTradingLists);
  if (list == nullptr)
    return AddTSSymbolList(id, kind, name, symbols, allowEmpty);
  // The whole string, ids that the service does not know yet included: they get no row until it
  // does.
  list->Update1(symbols);
  tq::Notify(tq::kNotifyUserLists, kReasonTrading);
  return 1;
}

int CTQSymbolListMgr::DeleteTSSymbolList(CString id) noexcept {
  CSymbolList* const list = TradingTable() == nullptr ? nullptr : tradingLists_->Find(id);
  if (list == nullptr)
    return 0;
  tradingLists_->Delete(list);
  return 1;
}

// As DeleteTSSymbolList for each account of a trading system, in one pass: there may be thousands.
void CTQSymbolListMgr::DeleteAccountLists(const CString& tsId) {
  const tq::CTS* const system = tradingTable_->Find(tsId);
  if (system == nullptr || system->accounts.empty())
    return;
  // How many of each id, for ids need not differ.
  std::unordered_map<std::string, int, tq::NoCaseHash, tq::NoCaseEqual> wanted;
  for (const tq::CAccount& account : system->accounts)
    ++wanted[account.ListId().GetString()];
  tradingLists_->DeleteIf([&wanted](const CSymbolList& list) {
    const auto found = wanted.find(std::string_view(list.GetID()));
    return found != wanted.end() && found->second-- > 0;
  });
}

void CTQSymbolListMgr::ClearTSSymbolList() noexcept {
  if (TradingTable() != nullptr)
    tradingLists_->Destroy();
}

void CTQSymbolListMgr::BuildTSListToSymbolList() noexcept {
  if (TradingTable() == nullptr)
    return;
  ClearTSSymbolList();
  std::vector<SystemList> lists; // copies: the table may change while symbols are asked for
  for (const tq::CTS& system : tradingTable_->Systems())
    lists.push_back({system.Id(), system.Name(), system.MergedHoldings()});
  for (const SystemList& list : lists) {
    DeleteTSSymbolList(list.id);
    AddTSSymbolList(list.id, tq::kTradingLists, list.name, list.symbols, 0);
  }
}
