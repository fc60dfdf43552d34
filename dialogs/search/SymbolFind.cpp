#include "dialogs/search/SymbolFind.h"

#include <utility>

#include "platform/SymbolSearch.h"
#include "platform/framework/CUIntArray.h"
#include "symboltable/SymbolTableMgr.h"

namespace tq {
namespace {

// What was read, or nothing when the service failed: the array is not to be looked at then.
SymbolRows RowsOf(int done, ServiceArray<SymbolInfo> found) {
  return done == 0 ? SymbolRows() : SymbolRows(std::move(found));
}

SymbolRows FindByExchangeCode(const CString& code) {
  ServiceArray<SymbolInfo> found("VLEX2ZUID2");
  const int done = VLEX2ZUID2(code, found.List(), found.Count());
  return RowsOf(done, std::move(found));
}

SymbolRows FindInMarket(const DialogSources& sources, const SymbolQuery& query) {
  constexpr int kIdField = 1;
  CSymbolTableMgr* const tables = sources.Tables();
  CString id;
  if (tables == nullptr || query.market.IsEmpty() || query.text.Find('.') >= 0 ||
      tables->LookUpSymbolGetString(kIdField, query.text + "." + query.market, "", id) == 0)
    return {};
  ServiceArray<SymbolInfo> found("VLGetSymbolInfos");
  const int done = VLGetSymbolInfos(id, found.List(), found.Count());
  return RowsOf(done, std::move(found));
}

SymbolRows FindOnExchanges(const DialogSources& sources, const SymbolQuery& query) {
  const int bCN = sources.Manager().GetbCN();
  if (query.exchanges.IsEmpty())
    return SymbolRows(FindOnAllExchanges(query.text, bCN));
  ServiceArray<SymbolInfo> found("VLFindSymbol2");
  const int done = VLFindSymbol2(query.text, query.exchanges, found.List(), found.Count(), 0, bCN);
  return RowsOf(done, std::move(found));
}

} // namespace

CString PreferredExchanges(CTQSymbolListMgr& manager) {
  CUIntArray order;
  manager.GetDefExchOrder(order);
  CString text;
  for (int i = 0; i < order.GetSize(); ++i)
    text.AppendFormat(i == 0 ? "%d" : ",%d", static_cast<int>(order[i]));
  return text;
}

SymbolRows FindSymbols(const DialogSources& sources, const SymbolQuery& query) {
  if (query.text.Left(1) == ".")
    return FindByExchangeCode(query.text.Mid(1));
  SymbolRows found = FindInMarket(sources, query);
  return found.Count() > 0 ? found : FindOnExchanges(sources, query);
}

} // namespace tq
