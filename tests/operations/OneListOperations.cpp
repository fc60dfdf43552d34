// Operations on a list of the manager's, and on other exported classes as far as they ask the
// services or the manager. The list is fetched for each call, since a nested one may delete it.
#include "symbolid/ListID.h"
#include "symbolid/OptFutID.h"
#include "tests/operations/Operations.h"

namespace operations {
namespace {

using Manager = CTQSymbolListMgr;

template <typename Use> void With(Manager& m, const Arguments& a, Use use) {
  CSymbolList* list = nullptr;
  m.GetSymbolList(a.id, &list, a.kind);
  if (list != nullptr)
    use(*list);
}

void AdoptRecords(Manager& m, const Arguments& a) {
  SymbolInfo* records = nullptr;
  int count = 0;
  VLGetSymbolInfos(a.symbols, &records, &count);
  CSymbolList* list = nullptr;
  m.GetSymbolList(a.id, &list, a.kind);
  if (list != nullptr && records != nullptr)
    list->Update2(records, count);
  else
    VLFree(records);
}

Table Rows() {
  return {
      {"CIDList::GetCount()",
       [](Manager& m, const Arguments& a) { With(m, a, [](CSymbolList& l) { l.GetCount(); }); }},
      {"CIDList::GetAt(int, SymbolInfo*)",
       [](Manager& m, const Arguments& a) {
         SymbolInfo record;
         With(m, a, [&](CSymbolList& l) { l.GetAt(a.number, &record); });
       }},
      {"CIDList::Update3()",
       [](Manager& m, const Arguments& a) { With(m, a, [](CSymbolList& l) { l.Update3(); }); }},
      {"CIDList::Update2(SymbolInfo*, int)", AdoptRecords},
      {"CIDList::Update1(CString const&)",
       [](Manager& m, const Arguments& a) {
         With(m, a, [&](CSymbolList& l) { l.Update1(a.symbols); });
       }},
      {"CIDList::JoinRows(CString&)",
       [](Manager& m, const Arguments& a) {
         CString rows;
         With(m, a, [&](CSymbolList& l) { l.JoinRows(rows); });
       }},
      {"CIDList::Holds(CString const&) const",
       [](Manager& m, const Arguments& a) {
         With(m, a, [&](CSymbolList& l) { l.Holds(a.text); });
       }},
  };
}

Table Edits() {
  return {
      {"CIDList::RemoveEntry(int)",
       [](Manager& m, const Arguments& a) {
         With(m, a, [&](CSymbolList& l) { l.RemoveEntry(a.number); });
       }},
      {"CIDList::SwapEntries(int, int)",
       [](Manager& m, const Arguments& a) {
         With(m, a, [&](CSymbolList& l) { l.SwapEntries(a.number, a.other); });
       }},
      {"CIDList::ReplaceEntry(int, CString const&)",
       [](Manager& m, const Arguments& a) {
         With(m, a, [&](CSymbolList& l) { l.ReplaceEntry(a.number, a.text); });
       }},
      {"CIDList::InsertEntry(int, CString const&, bool)",
       [](Manager& m, const Arguments& a) {
         With(m, a, [&](CSymbolList& l) { l.InsertEntry(a.number, a.text, a.flag != 0); });
       }},
      {"CSymbolList::CSymbolList(CSymbolList const&)",
       [](Manager& m, const Arguments& a) {
         With(m, a, [](CSymbolList& l) { const CSymbolList copy(l); });
       }},
      {"CSymbolList::ToXml(CString&)",
       [](Manager& m, const Arguments& a) {
         CString text;
         With(m, a, [&](CSymbolList& l) { l.ToXml(text); });
       }},
  };
}

Table Others() {
  return {
      {"CListID::SetNameAndList(CTQSymbolListMgr*)",
       [](Manager& m, const Arguments& a) {
         CListID id;
         id.SetData(static_cast<ListIDType>(a.kind), a.id, 0);
         id.SetNameAndList(a.nulls ? nullptr : &m);
       }},
      {"COptFutID::MergeID2(CString&, char&, CString const&, char, CString const&, char, int, "
       "CSymbolTableMgr*)",
       [](Manager& m, const Arguments& a) {
         CString text;
         char side = '-';
         COptFutID id;
         id.MergeID2(text, side, "TXO21000L6", 'B', "TXO21000X6", 'B', a.flag,
                     a.nulls ? nullptr : m.GetSymbolTableMgr());
       }},
      {"COptFutID::GetFutureWeek(CString const&, int&, CString&, CString&)",
       [](Manager&, const Arguments& a) {
         int week = 0;
         CString out[2];
         COptFutID().GetFutureWeek("TF.TXFL6", week, out[0], out[1]);
         COptFutID().GetFutureWeek(a.text, week, out[0], out[1]);
       }},
  };
}

} // namespace

Table OneListOperations() {
  Table all = Rows();
  for (const Table& part : {Edits(), Others()})
    all.insert(all.end(), part.begin(), part.end());
  return all;
}

} // namespace operations
