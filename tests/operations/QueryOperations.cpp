// Queries about lists and single symbols.
#include "tests/operations/Operations.h"

namespace operations {
namespace {

using Manager = CTQSymbolListMgr;

void CopyLists(Manager& m, const Arguments& a) {
  CPtrArray copies;
  m.GetSymbolList(copies, a.kind);
  for (int i = 0; i < copies.GetSize(); ++i)
    delete static_cast<CSymbolList*>(copies[i]);
}

Table Lists() {
  return {
      {"GetSymbolListCount(int)",
       [](Manager& m, const Arguments& a) { m.GetSymbolListCount(a.kind); }},
      {"GetTQSymbolListCount(int)",
       [](Manager& m, const Arguments& a) { m.GetTQSymbolListCount(a.kind); }},
      {"GetSymbolList(CPtrArray&, int)", CopyLists},
      {"GetSymbolList(CString, CSymbolList**, int)",
       [](Manager& m, const Arguments& a) {
         CSymbolList* list = nullptr;
         m.GetSymbolList(a.id, &list, a.kind);
       }},
      {"GetTQSymbolListInfo(int, TQSymbolListInfo*, int)",
       [](Manager& m, const Arguments& a) {
         TQSymbolListInfo info;
         m.GetTQSymbolListInfo(a.number, a.nulls ? nullptr : &info, a.kind);
       }},
      {"GetSymbolListInfo(int, CString&, CString&, CString&, int)",
       [](Manager& m, const Arguments& a) {
         CString out[3];
         m.GetSymbolListInfo(a.number, out[0], out[1], out[2], a.kind);
       }},
      {"GetSymbolListName(CString const&, CString&, int)",
       [](Manager& m, const Arguments& a) {
         CString name;
         m.GetSymbolListName(a.id, name, a.kind);
       }},
      {"GetTQSymbolListName(char const*, CString&, int)",
       [](Manager& m, const Arguments& a) {
         CString name;
         m.GetTQSymbolListName(a.Text(a.id), name, a.kind);
       }},
      {"GetSymbolListIDs(int, CString const&, CString&, CStringArray*)",
       [](Manager& m, const Arguments& a) {
         CString symbols;
         CStringArray tokens;
         m.GetSymbolListIDs(a.kind, a.id, symbols, a.nulls ? nullptr : &tokens);
       }},
      {"GetSymoblIDList(CString const&, CString&, int)",
       [](Manager& m, const Arguments& a) {
         CString rows;
         m.GetSymoblIDList(a.id, rows, a.kind);
       }},
      {"GetTQSymbolCount(char const*, int)",
       [](Manager& m, const Arguments& a) { m.GetTQSymbolCount(a.Text(a.id), a.kind); }},
      {"GetTQSymbolInfo(char const*, int, SymbolInfo*, int)",
       [](Manager& m, const Arguments& a) {
         SymbolInfo record;
         m.GetTQSymbolInfo(a.Text(a.id), a.number, a.nulls ? nullptr : &record, a.kind);
       }},
  };
}

Table Symbols() {
  return {
      {"GetSymbolInfos(int, int, SymbolInfo**, int*)",
       [](Manager& m, const Arguments& a) {
         SymbolInfo* list = nullptr;
         int count = 0;
         m.GetSymbolInfos(a.type, -1, &list, &count);
         VLFree(list);
       }},
      {"GetAllSymbolInfos(SymbolInfo**, int*)",
       [](Manager& m, const Arguments&) {
         SymbolInfo* list = nullptr;
         int count = 0;
         m.GetAllSymbolInfos(&list, &count);
         Manager::FreeSymbolInfos(list);
       }},
      {"ShareAllSymbolInfos(int*)",
       [](Manager& m, const Arguments& a) {
         int count = 0;
         m.ShareAllSymbolInfos(a.nulls ? nullptr : &count);
       }},
      {"FreeSymbolInfos(SymbolInfo*)",
       [](Manager&, const Arguments&) { Manager::FreeSymbolInfos(nullptr); }},
      {"GetSymbolInfo(char const*, ExchInfo*, int, SymbolInfo*)",
       [](Manager& m, const Arguments& a) {
         SymbolInfo record;
         m.GetSymbolInfo(a.Text(a.text), nullptr, 0, &record);
         m.GetSymbolInfo("6488", nullptr, 0, &record);
       }},
      {"GetBaseAttrs(char const*, BaseAttr**, int*)",
       [](Manager& m, const Arguments& a) {
         BaseAttr* list = nullptr;
         int count = 0;
         m.GetBaseAttrs(a.Text(a.symbols), &list, &count);
         VLFree(list);
       }},
      {"IsValidSymbol(CString const&, SymbolInfo*)",
       [](Manager& m, const Arguments& a) {
         SymbolInfo record;
         m.IsValidSymbol(a.text, a.nulls ? nullptr : &record);
       }},
      {"UpdateExchSymbolChange(int, char const*, short, ExchSymbolUpdateType)",
       [](Manager& m, const Arguments& a) {
         const std::string records = a.Records();
         m.UpdateExchSymbolChange(a.recordCount, a.nulls ? nullptr : records.data(), 1,
                                  static_cast<ExchSymbolUpdateType>(a.flag == 0));
       }},
      {"GetbCN() const", [](Manager& m, const Arguments&) { m.GetbCN(); }},
      {"SetbCN(int)", [](Manager& m, const Arguments& a) { m.SetbCN(a.number); }},
  };
}

} // namespace

Table QueryOperations() {
  Table all = Lists();
  const Table symbols = Symbols();
  all.insert(all.end(), symbols.begin(), symbols.end());
  return all;
}

} // namespace operations
