// The manager's symbol tables. They are fetched for each call, since a nested one may replace them.
#include "symboltable/SymbolTableMgr.h"

#include "platform/services/tqStock.h"
#include "tests/operations/Operations.h"

namespace operations {
namespace {

using Manager = CTQSymbolListMgr;

template <typename Use> void With(Manager& m, Use use) {
  if (CSymbolTableMgr* const tables = m.GetSymbolTableMgr())
    use(*tables);
}

void LookUpTexts(CSymbolTableMgr& tables, const Arguments& a, int field) {
  CString text;
  tables.LookUpSymbolGetString(field, a.text, a.Text(a.exchange), text);
}

void LookUpNumbers(Manager& m, const Arguments& a, int field) {
  int number = 0;
  With(m, [&](CSymbolTableMgr& t) { t.LookUpSymbolGetInt(field, a.text, a.exchange, number); });
}

// What the tables hold, what they request as text, and what trading data answers.
constexpr int kFields[] = {FieldSymbolId,       FieldSymbolName, FieldExchangeName,
                           FieldReferencePrice, FieldTradeCode,  FieldContractSize};

Table LifeCycle() {
  return {
      // Init alone drops existing tables for good.
      {"CSymbolTableMgr::Init()",
       [](Manager& m, const Arguments&) {
         With(m, [](CSymbolTableMgr& t) { t.CleanALL(); });
         With(m, [](CSymbolTableMgr& t) { t.Init(); });
       }},
      {"CSymbolTableMgr::InitAllSymbolTable()",
       [](Manager& m, const Arguments&) {
         With(m, [](CSymbolTableMgr& t) { t.InitAllSymbolTable(); });
       }},
      {"CSymbolTableMgr::InitAuthorizedExch()",
       [](Manager& m, const Arguments&) {
         With(m, [](CSymbolTableMgr& t) { t.InitAuthorizedExch(); });
       }},
      {"CSymbolTableMgr::InitDefaultExchList(CUIntArray&)",
       [](Manager& m, const Arguments& a) {
         CUIntArray ids;
         ids.Add(static_cast<unsigned>(a.type));
         With(m, [&](CSymbolTableMgr& t) { t.InitDefaultExchList(ids); });
       }},
      {"CSymbolTableMgr::CleanALL()",
       [](Manager& m, const Arguments&) { With(m, [](CSymbolTableMgr& t) { t.CleanALL(); }); }},
      {"CSymbolTableMgr::RebuildSymbolTable()",
       [](Manager& m, const Arguments& a) {
         With(m, [](CSymbolTableMgr& t) { t.RebuildSymbolTable(); });
         if (a.flag == 0)
           return;
         With(m, [](CSymbolTableMgr& t) { t.CleanALL(); });
         With(m, [](CSymbolTableMgr& t) { t.RebuildSymbolTable(); });
       }},
      {"CSymbolTableMgr::RebuildSymbolTable(CString const&, int)",
       [](Manager& m, const Arguments& a) {
         With(m, [&](CSymbolTableMgr& t) { t.RebuildSymbolTable(a.Text(a.exchange), a.type); });
       }},
  };
}

Table Updates() {
  return {
      {"CSymbolTableMgr::AddSymbols(int, char const*, int)",
       [](Manager& m, const Arguments& a) {
         const std::string records = a.Records();
         With(m, [&](CSymbolTableMgr& t) {
           t.AddSymbols(a.type, a.nulls ? nullptr : records.data(), a.recordCount);
         });
       }},
      {"CSymbolTableMgr::UpdateSymbols(int, char const*, int)",
       [](Manager& m, const Arguments& a) {
         const std::string records = a.Records();
         With(m, [&](CSymbolTableMgr& t) {
           t.UpdateSymbols(a.type, a.nulls ? nullptr : records.data(), a.recordCount);
         });
       }},
      {"CSymbolTableMgr::RemoveSymbols(int, char const*, int)",
       [](Manager& m, const Arguments& a) {
         const std::string records = a.Records();
         With(m, [&](CSymbolTableMgr& t) {
           t.RemoveSymbols(a.type, a.nulls ? nullptr : records.data(), a.recordCount);
         });
       }},
  };
}

Table Exchanges() {
  return {
      {"CSymbolTableMgr::FindExchID(int, CString&)",
       [](Manager& m, const Arguments& a) {
         CString name;
         With(m, [&](CSymbolTableMgr& t) { t.FindExchID(a.type, name); });
       }},
      {"CSymbolTableMgr::IsAuthorizedExch(CString const&)",
       [](Manager& m, const Arguments& a) {
         With(m, [&](CSymbolTableMgr& t) { t.IsAuthorizedExch(a.exchange); });
       }},
      {"CSymbolTableMgr::IsSupportUJKExch()",
       [](Manager& m, const Arguments&) {
         With(m, [](CSymbolTableMgr& t) { t.IsSupportUJKExch(); });
       }},
      {"CSymbolTableMgr::MapExchIDsToExchName(CString const&)",
       [](Manager& m, const Arguments& a) {
         With(m, [](CSymbolTableMgr& t) { t.MapExchIDsToExchName("1,10,2"); });
         With(m, [&](CSymbolTableMgr& t) { t.MapExchIDsToExchName(a.text); });
       }},
      {"CSymbolTableMgr::GetSymbolAndExchID(CString const&)",
       [](Manager& m, const Arguments& a) {
         With(m, [&](CSymbolTableMgr& t) { t.GetSymbolAndExchID(a.text); });
       }},
      {"CSymbolTableMgr::HandleDefaultExchangeSymbol(CString const&)",
       [](Manager& m, const Arguments& a) {
         With(m, [&](CSymbolTableMgr& t) { t.HandleDefaultExchangeSymbol(a.text); });
       }},
      {"CSymbolTableMgr::GetDefaultExchange(CString const&, CString&)",
       [](Manager& m, const Arguments& a) {
         CString name;
         With(m, [&](CSymbolTableMgr& t) { t.GetDefaultExchange(a.text, name); });
       }},
  };
}

Table LookUps() {
  return {
      {"CSymbolTableMgr::LookUpNameGetSymbolID(CString const&, CString&)",
       [](Manager& m, const Arguments& a) {
         CString id;
         With(m, [&](CSymbolTableMgr& t) { t.LookUpNameGetSymbolID(a.name, id); });
       }},
      {"CSymbolTableMgr::LookUpSymbolGetString(int, CString, CString, CString&)",
       [](Manager& m, const Arguments& a) {
         for (const int field : kFields)
           With(m, [&](CSymbolTableMgr& t) { LookUpTexts(t, a, field); });
       }},
      {"CSymbolTableMgr::LookUpSymbolGetInt(int, CString, CString, int&)",
       [](Manager& m, const Arguments& a) {
         for (const int field : kFields)
           LookUpNumbers(m, a, field);
       }},
      {"CSymbolTableMgr::LookUpSymbolGetValue(int, CString, CString, long&)",
       [](Manager& m, const Arguments& a) {
         long value = 0;
         With(m, [&](CSymbolTableMgr& t) {
           t.LookUpSymbolGetValue(FieldPreviousClose, a.text, "", value);
         });
       }},
      {"CSymbolTableMgr::LookUpSymbolGetExAttr(int, CString, CString, long&)",
       [](Manager& m, const Arguments& a) {
         long value = 0;
         With(m, [&](CSymbolTableMgr& t) {
           t.LookUpSymbolGetExAttr(FieldTradingStatus, a.text, a.exchange, value);
         });
       }},
  };
}

} // namespace

Table SymbolTableOperations() {
  Table all = LifeCycle();
  for (const Table& part : {Updates(), Exchanges(), LookUps()})
    all.insert(all.end(), part.begin(), part.end());
  all.push_back(
      {"GetSymbolTableMgr() const", [](Manager& m, const Arguments&) { m.GetSymbolTableMgr(); }});
  return all;
}

} // namespace operations
