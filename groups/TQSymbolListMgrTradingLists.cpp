// The lists of kind 6. They live beside the user's lists and are never saved with them.
#include <memory>

#include "groups/TradingTable.h"
#include "symbollist/IdString.h"
#include "symbollist/LibraryString.h"
#include "symbollist/ListArray.h"
#include "symbollist/ListKind.h"
#include "symbollist/ListName.h"
#include "symbollist/NewListId.h"
#include "symbollist/Notify.h"
#include "symbollist/TQSymbolListMgr.h"
#include "symboltable/ServiceArray.h"

namespace {

// The terminal knows this reason: do not change.
constexpr char kReasonTrading[] = "TSSymbolList";

// Gives an empty list those of the symbols that the service knows, as one question: the service leaves
// unknown ids out and answers in order, so its records are the list. When it fails it knows none.
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
  if (tradingTable_ == nullptr || name.IsEmpty() || (symbols.IsEmpty() && allowEmpty == 0))
    return 0;
  if (CheckValidSymbolList(id, kind) != 0)
    return 0;
  const auto taken = [&](const CString& wanted) {
    return CheckNameExist(wanted, 0, -1, kind) != 0;
  };
  const CString suffix = "-" + tq::LibraryString(tq::kStringUpdate);
  const CString freeName = tq::SuffixedName(name, suffix, taken);
  if (taken(freeName))
    return 0;
  const CString listId = id.IsEmpty() ? tq::NewListId() : id;
  if (listId.IsEmpty())
    return 0;
  auto list = std::make_unique<CSymbolList>();
  AddKnownSymbols(*list, symbols);
  list->SetID(listId);
  list->SetName(freeName);
  tradingLists_.Add(list.release());
  return 1;
}

int CTQSymbolListMgr::UpdateTSSymbolList(const CString& id, int kind, const CString& name,
                                         const CString& symbols, int allowEmpty) {
  if (tradingTable_ == nullptr)
    return 0;
  CSymbolList* list = FindList(id, tq::kTradingLists);
  if (list == nullptr)
    return AddTSSymbolList(id, kind, name, symbols, allowEmpty);
  // The whole string, ids that the service does not know yet included: they get no row until it does.
  list->Update1(symbols);
  tq::Notify(tq::kNotifyUserLists, kReasonTrading);
  return 1;
}

int CTQSymbolListMgr::DeleteTSSymbolList(CString id) {
  const int index = tq::FindListById(tradingLists_, id);
  if (index < 0)
    return 0;
  delete tq::ListAt(tradingLists_, index);
  tradingLists_.RemoveAt(index);
  return 1;
}

void CTQSymbolListMgr::BuildTSListToSymbolList() {
  if (tradingTable_ == nullptr)
    return;
  ClearTSSymbolList();
  for (const tq::CTS& system : tradingTable_->Systems()) {
    const CString id = system.Id();
    DeleteTSSymbolList(id);
    AddTSSymbolList(id, tq::kTradingLists, system.Name(), system.MergedHoldings(), 0);
  }
}
