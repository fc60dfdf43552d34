// The lists of kind 6. They live beside the user's lists and are never saved with them.
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "groups/TradingTable.h"
#include "symbollist/IdString.h"
#include "symbollist/LibraryString.h"
#include "symbollist/ListArray.h"
#include "symbollist/ListIndex.h"
#include "symbollist/ListKind.h"
#include "symbollist/ListName.h"
#include "symbollist/NewListId.h"
#include "symbollist/Notify.h"
#include "symbollist/TQSymbolListMgr.h"
#include "symboltable/ServiceArray.h"

namespace {

// The terminal knows this reason: do not change.
constexpr char kReasonTrading[] = "TSSymbolList";

// A kind that has no lists: what CheckValidSymbolList says of an id alone.
constexpr int kNoKind = 0;

struct SystemList {
  CString id;
  CString name;
  CString symbols;
};

// Equal for ids that are equal ignoring letter case.
std::string Folded(CString id) {
  id.MakeLower();
  return std::string(id.GetString(), static_cast<size_t>(id.GetLength()));
}

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
                                      const CString& symbols, int allowEmpty) {
  if (TradingTable() == nullptr || (symbols.IsEmpty() && allowEmpty == 0))
    return 0;
  return AddTradingList(id, kind, name, symbols, nullptr);
}

// With the index of the lists of kind 6, which the new list is put into, or without.
int CTQSymbolListMgr::AddTradingList(const CString& id, int kind, const CString& name,
                                     const CString& symbols, tq::ListIndex* index) {
  const CString suffix = "-" + tq::LibraryString(tq::kStringUpdate);
  const auto taken = [&](const CString& wanted) {
    return index != nullptr ? index->HasName(wanted) : CheckNameExist(wanted, 0, -1, kind) != 0;
  };
  CString freeName;
  const auto allowed = [&] {
    const bool idTaken = index != nullptr && index->FindById(id) >= 0;
    if (name.IsEmpty() || idTaken ||
        CheckValidSymbolList(id, index != nullptr ? kNoKind : kind) != 0)
      return false;
    freeName = tq::SuffixedName(name, suffix, taken);
    return !taken(freeName);
  };
  if (!allowed())
    return 0;
  const CString listId = id.IsEmpty() ? tq::NewListId() : id;
  if (listId.IsEmpty())
    return 0;
  const unsigned changes = tradingListChanges_;
  auto list = std::make_unique<CSymbolList>();
  AddKnownSymbols(*list, symbols);
  if (changes != tradingListChanges_) {
    // The terminal worked on the lists while the service was asked.
    index = nullptr;
    if (TradingTable() == nullptr || !allowed())
      return 0;
  }
  list->SetID(listId);
  list->SetName(freeName);
  const int position = tradingLists_.Add(list.release());
  ++tradingListChanges_;
  if (index != nullptr)
    index->Add(*tq::ListAt(tradingLists_, position), position);
  return 1;
}

int CTQSymbolListMgr::UpdateTSSymbolList(const CString& id, int kind, const CString& name,
                                         const CString& symbols, int allowEmpty) {
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

int CTQSymbolListMgr::DeleteTSSymbolList(CString id) {
  const int index = TradingTable() == nullptr ? -1 : tq::FindListById(tradingLists_, id);
  if (index < 0)
    return 0;
  const std::unique_ptr<CSymbolList> list(tq::ListAt(tradingLists_, index));
  tradingLists_.RemoveAt(index);
  ++tradingListChanges_;
  return 1;
}

// As DeleteTSSymbolList for each account of a trading system, in one pass: there may be thousands.
void CTQSymbolListMgr::DeleteAccountLists(const CString& tsId) {
  const tq::CTS* const system = tradingTable_->Find(tsId);
  if (system == nullptr || system->accounts.empty())
    return;
  std::unordered_map<std::string, int> wanted; // how many of each id, for ids need not differ
  for (const tq::CAccount& account : system->accounts)
    ++wanted[Folded(account.ListId())];
  int kept = 0;
  for (int i = 0; i < tradingLists_.GetSize(); ++i) {
    CSymbolList* const list = tq::ListAt(tradingLists_, i);
    const auto found = wanted.find(Folded(list->GetID()));
    if (found != wanted.end() && found->second-- > 0)
      delete list;
    else
      tradingLists_[kept++] = list;
  }
  tradingLists_.SetSize(kept);
  ++tradingListChanges_;
}

void CTQSymbolListMgr::ClearTSSymbolList() {
  if (TradingTable() != nullptr)
    DestroyTradingLists();
}

void CTQSymbolListMgr::DestroyTradingLists() {
  tq::DestroyLists(tradingLists_);
  ++tradingListChanges_;
}

void CTQSymbolListMgr::BuildTSListToSymbolList() {
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
