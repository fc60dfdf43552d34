// Lists from trading accounts.
#include "tests/operations/Operations.h"

namespace operations {
namespace {

using Manager = CTQSymbolListMgr;

TqsAccType TypeOf(const Arguments& a) {
  return static_cast<TqsAccType>(a.type);
}

} // namespace

Table TradingOperations() {
  return {
      {"ClearTSSymbolList()", [](Manager& m, const Arguments&) { m.ClearTSSymbolList(); }},
      {"LoadTSList()", [](Manager& m, const Arguments&) { m.LoadTSList(); }},
      {"UpdateTSLogin(CString)", [](Manager& m, const Arguments& a) { m.UpdateTSLogin(a.system); }},
      {"UpDataTSAccHodling(CString, CString, TqsAccType)",
       [](Manager& m, const Arguments& a) {
         m.UpDataTSAccHodling(a.system, a.account, TypeOf(a));
       }},
      {"BuildTSListToSymbolList()",
       [](Manager& m, const Arguments&) { m.BuildTSListToSymbolList(); }},
      {"AddTSSymbolList(CString const&, int, CString const&, CString const&, int)",
       [](Manager& m, const Arguments& a) {
         m.AddTSSymbolList(a.id, a.kind, a.name, a.symbols, a.flag);
       }},
      {"UpdateTSSymbolList(CString const&, int, CString const&, CString const&, int)",
       [](Manager& m, const Arguments& a) {
         m.UpdateTSSymbolList("19801", a.kind, a.name, a.symbols, a.flag);
         m.UpdateTSSymbolList(a.id, a.kind, a.name, a.symbols, a.flag);
       }},
      {"DeleteTSSymbolList(CString)",
       [](Manager& m, const Arguments& a) {
         m.DeleteTSSymbolList("19801");
         m.DeleteTSSymbolList(a.id);
       }},
      {"GetTSAccHodling(CString const&, CString const&, CString&)",
       [](Manager& m, const Arguments& a) {
         CString symbols;
         m.GetTSAccHodling(a.system, a.account, symbols);
       }},
      {"GetTSSymbolLists(CString const&, TqsAccType, CString const&, CString&)",
       [](Manager& m, const Arguments& a) {
         CString symbols;
         m.GetTSSymbolLists(a.system, TypeOf(a), a.account, symbols);
       }},
      {"GetTSSymbolLists(CString const&, TqsAccType, CString&)",
       [](Manager& m, const Arguments& a) {
         CString symbols;
         m.GetTSSymbolLists(a.system, TypeOf(a), symbols);
       }},
  };
}

} // namespace operations
