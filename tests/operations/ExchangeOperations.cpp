// Default exchanges, the order of exchanges, all symbols, lots, moved symbols.
#include "tests/operations/Operations.h"

namespace operations {
namespace {

using Manager = CTQSymbolListMgr;

CUIntArray Exchanges(const Arguments& a) {
  CUIntArray ids;
  ids.Add(static_cast<unsigned>(a.type));
  ids.Add(2);
  return ids;
}

Table Defaults() {
  return {
      {"InitDefaultExchange()", [](Manager& m, const Arguments&) { m.InitDefaultExchange(); }},
      {"LoadDefaultExchange(CUIntArray&, int, char const*)",
       [](Manager& m, const Arguments& a) {
         CUIntArray ids;
         m.LoadDefaultExchange(ids, a.number, a.Text(a.text));
       }},
      {"DoLoadDefaultExchange(CUIntArray&)",
       [](Manager&, const Arguments&) {
         CUIntArray ids;
         Manager::DoLoadDefaultExchange(ids);
       }},
      {"DoLoadUserDefaultExchange(CUIntArray&)",
       [](Manager& m, const Arguments&) {
         CUIntArray ids;
         m.DoLoadUserDefaultExchange(ids);
       }},
      {"ClearDefaultExchangeData()",
       [](Manager& m, const Arguments&) { m.ClearDefaultExchangeData(); }},
      {"GetDefaultExchange(int)",
       [](Manager& m, const Arguments&) {
         if (m.GetDefaultExchangeCount() > 0)
           m.GetDefaultExchange(m.GetDefaultExchangeCount() - 1);
       }},
      {"GetDefaultExchangeCount()",
       [](Manager& m, const Arguments&) { m.GetDefaultExchangeCount(); }},
      {"IsDefaultExchange(int)",
       [](Manager& m, const Arguments& a) { m.IsDefaultExchange(a.type); }},
      {"IsDefaultExchangeChange()",
       [](Manager& m, const Arguments&) { m.IsDefaultExchangeChange(); }},
      {"ReLoadDefaultExch(int)",
       [](Manager& m, const Arguments& a) { m.ReLoadDefaultExch(a.flag); }},
      {"UpdateDefaultExch(CUIntArray&)",
       [](Manager& m, const Arguments& a) {
         CUIntArray ids = Exchanges(a);
         m.UpdateDefaultExch(ids);
       }},
      {"SetUseUserDefExch(int)",
       [](Manager& m, const Arguments& a) { m.SetUseUserDefExch(a.number); }},
      {"IsUseUserDefExch() const", [](Manager& m, const Arguments&) { m.IsUseUserDefExch(); }},
  };
}

Table Order() {
  return {
      {"LoadDefExchOrder(CUIntArray&)",
       [](Manager& m, const Arguments& a) {
         CUIntArray order = Exchanges(a);
         m.LoadDefExchOrder(order);
       }},
      {"GetDefExchOrder(CUIntArray&)",
       [](Manager& m, const Arguments&) {
         CUIntArray order;
         m.GetDefExchOrder(order);
       }},
      {"CheckExchOrder(CUIntArray&)",
       [](Manager&, const Arguments& a) {
         CUIntArray order = Exchanges(a);
         Manager::CheckExchOrder(order);
       }},
      {"SortAllSymbolByExch()", [](Manager& m, const Arguments&) { m.SortAllSymbolByExch(); }},
      {"CheckAllSymbolByExch()", [](Manager& m, const Arguments&) { m.CheckAllSymbolByExch(); }},
      {"GetTradeLotSize(CString const&, CSymbolTableMgr*, JT_DEAL)",
       [](Manager& m, const Arguments& a) {
         Manager::GetTradeLotSize(a.text, m.GetSymbolTableMgr(), static_cast<JT_DEAL>(a.number));
       }},
      {"ReplaceSymbolListExchID(CString&, CString const&, CString const&)",
       [](Manager& m, const Arguments& a) {
         CString ids = a.symbols;
         m.ReplaceSymbolListExchID(ids, a.exchange, "TE");
       }},
      {"ReplaceSymbolListExchID(CSymbolList*, CString const&, CString const&)",
       [](Manager& m, const Arguments& a) {
         CSymbolList* list = nullptr;
         m.GetSymbolList(a.id, &list, a.kind);
         if (list != nullptr)
           list->Update1(a.symbols);
         m.GetSymbolList(a.id, &list, a.kind); // it may have been deleted meanwhile
         m.ReplaceSymbolListExchID(list, a.exchange, "TE");
       }},
  };
}

} // namespace

Table ExchangeOperations() {
  Table all = Defaults();
  const Table order = Order();
  all.insert(all.end(), order.begin(), order.end());
  return all;
}

} // namespace operations
