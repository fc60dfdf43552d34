// The dialogs. Something must end them: see PrepareServices in Subject.h.
#include "tests/operations/Operations.h"

#include "symbolid/ListID.h"

namespace operations {
namespace {

using Manager = CTQSymbolListMgr;

} // namespace

Table DialogOperations() {
  return {
      {"DoSearchFinIndi(HWND__*, CString const&, CString&, CString&)",
       [](Manager&, const Arguments& a) {
         CString name;
         CString code;
         Manager::DoSearchFinIndi(nullptr, a.text, name, code);
       }},
      {"DoSearchCommIndi(HWND__*, CString const&, CString&, CString&, CString const&, "
       "CString const&, InfoType)",
       [](Manager&, const Arguments& a) {
         CString name;
         CString code;
         Manager::DoSearchCommIndi(nullptr, a.text, name, code, a.name, a.symbols,
                                   static_cast<InfoType>(10));
       }},
      {"DoSearchOptionIndi(HWND__*, CString const&, CString&, CString&, CString&)",
       [](Manager&, const Arguments& a) {
         CString out[3];
         Manager::DoSearchOptionIndi(nullptr, a.text, out[0], out[1], out[2]);
       }},
      {"DoSymbolListUI(CTQSymbolListMgr*, CSymbolTableMgr*, HWND__*)",
       [](Manager& m, const Arguments& a) {
         Manager::DoSymbolListUI(a.nulls ? nullptr : &m, m.GetSymbolTableMgr(), nullptr);
       }},
      {"DoCloudSymbolListUI(CTQSymbolListMgr*, CSymbolTableMgr*, HWND__*)",
       [](Manager& m, const Arguments& a) {
         m.DoCloudSymbolListUI(a.nulls ? nullptr : &m, m.GetSymbolTableMgr(), nullptr);
       }},
      {"DoGroupListUI(CTQSymbolListMgr*, CSymbolTableMgr*, CSymbolList*, int, CWnd*, int)",
       [](Manager& m, const Arguments& a) {
         CSymbolList list;
         list.SetID(a.id);
         Manager::DoGroupListUI(&m, m.GetSymbolTableMgr(), a.nulls ? nullptr : &list, a.flag,
                                nullptr, 0);
       }},
      {"DoCloudGroupListUI(CTQSymbolListMgr*, CSymbolTableMgr*, CSymbolList*, int, CWnd*, int)",
       [](Manager& m, const Arguments& a) {
         CSymbolList list;
         list.SetID(a.id);
         m.DoCloudGroupListUI(&m, m.GetSymbolTableMgr(), a.nulls ? nullptr : &list, a.flag, nullptr,
                              0);
       }},
      {"DoGroupSymbolAdd(CTQSymbolListMgr*, CSymbolTableMgr*, CWnd*, char const*)",
       [](Manager& m, const Arguments& a) {
         Manager::DoGroupSymbolAdd(&m, m.GetSymbolTableMgr(), nullptr, a.Text(a.text));
       }},
      {"DoSymbolAddUI(CTQSymbolListMgr*, CSymbolTableMgr*, HWND__*, CString const&, CString "
       "const&)",
       [](Manager& m, const Arguments& a) {
         Manager::DoSymbolAddUI(&m, m.GetSymbolTableMgr(), nullptr, a.text, a.id);
       }},
      {"DoSearchUI(CTQSymbolListMgr*, CSymbolTableMgr*, HWND__*, CString const&, SymbolInfo*, int, "
       "CListID*)",
       [](Manager& m, const Arguments& a) {
         SymbolInfo found = {};
         CListID place;
         place.SetData(ListIDGroup, a.id, 0);
         Manager::DoSearchUI(&m, m.GetSymbolTableMgr(), nullptr, a.text, a.nulls ? nullptr : &found,
                             a.flag, a.nulls ? nullptr : &place);
       }},
      {"DoSelectUI(CTQSymbolListMgr*, CSymbolTableMgr*, HWND__*, int*, CString&, int, bool)",
       [](Manager& m, const Arguments& a) {
         int kind = a.kind;
         CString text = a.id;
         Manager::DoSelectUI(&m, m.GetSymbolTableMgr(), nullptr, a.nulls ? nullptr : &kind, text, 0,
                             a.flag != 0);
       }},
      {"EndDomodal(HWND__*, int)",
       [](Manager&, const Arguments& a) { Manager::EndDomodal(nullptr, a.number); }},
  };
}

} // namespace operations
