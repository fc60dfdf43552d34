// The list file, whole lists, entries, checks, system lists, the import.
#include "tests/operations/CopiesOfLists.h"
#include "tests/operations/Operations.h"

namespace operations {
namespace {

using Manager = CTQSymbolListMgr;

CStringArray Texts(const CString& text) {
  CStringArray texts;
  texts.Add(text);
  return texts;
}

CString FileOf(const Arguments& a, const char* name) {
  return a.directory.IsEmpty() ? CString() : a.directory + name;
}

void Init(Manager& m, const Arguments& a) {
  CStringArray names = Texts(a.name);
  m.Init(a.Text(a.directory), a.other, a.flag, a.flag, a.nulls ? nullptr : &names, a.number,
         a.flag);
}

// The manager's own list as the source, which a nested operation may delete.
void AddOwnList(Manager& m, const Arguments& a) {
  CSymbolList* list = nullptr;
  m.GetSymbolList(a.id, &list, a.kind);
  m.AddTQSymbolList(a.nulls ? nullptr : list, a.flag);
}

void ReplaceId(Manager& m, const Arguments& a) {
  CStringArray before = Texts("2330");
  CStringArray now = Texts(a.text);
  m.ReplaceID(a.nulls ? nullptr : &before, &now);
}

void UpdateSystemLists(Manager& m, const Arguments& a) {
  CMapStringToString symbols;
  CMapStringToString names;
  symbols.SetAt(a.id, a.symbols);
  symbols.SetAt("ZUSYSLIST1", a.symbols);
  names.SetAt(a.id, a.name);
  m.UpdateSystemList(&symbols, a.nulls ? nullptr : &names);
}

Table File() {
  return {
      {"Init(char const*, int, int, int, CStringArray*, int, int)", Init},
      {"LoadSymbolList()", [](Manager& m, const Arguments&) { m.LoadSymbolList(); }},
      {"SaveSymbolList()", [](Manager& m, const Arguments&) { m.SaveSymbolList(); }},
      {"BackupSymbolList()", [](Manager& m, const Arguments&) { m.BackupSymbolList(); }},
      {"RestorSymbolList()", [](Manager& m, const Arguments&) { m.RestorSymbolList(); }},
      {"GetBackSymbolListPath()", [](Manager& m, const Arguments&) { m.GetBackSymbolListPath(); }},
      {"CreateEmptySymbolListFile()",
       [](Manager& m, const Arguments&) { m.CreateEmptySymbolListFile(); }},
      {"DoSaveSymbolList(CString const&)",
       [](Manager& m, const Arguments& a) { m.DoSaveSymbolList(FileOf(a, "\\Third.xml")); }},
      {"DoLoadSymbolList(CString const&)",
       [](Manager& m, const Arguments& a) {
         m.DoLoadSymbolList(FileOf(a, "\\SymbolList_Backup.xml"));
       }},
      {"GetLoadState(TQListFile, int&, CString&) const",
       [](Manager& m, const Arguments& a) {
         int line = 0;
         CString reason;
         m.GetLoadState(static_cast<TQListFile>(a.number), line, reason);
       }},
      {"RepairSymbolList(TQRepairCounts&)",
       [](Manager& m, const Arguments&) {
         TQRepairCounts counts;
         m.RepairSymbolList(counts);
       }},
      {"SetHistory(int)", [](Manager& m, const Arguments& a) { m.SetHistory(a.number + a.other); }},
      {"GetHistory(CStringArray&) const",
       [](Manager& m, const Arguments&) {
         CStringArray days;
         m.GetHistory(days);
       }},
      {"RestoreHistory(CString const&)",
       [](Manager& m, const Arguments&) {
         CStringArray days;
         m.RestoreHistory(m.GetHistory(days) > 0 ? days[0] : CString("20260131"));
       }},
      {"UpdateTQSymbolList()", [](Manager& m, const Arguments&) { m.UpdateTQSymbolList(); }},
      {"ReLoadList(CString const&)",
       [](Manager& m, const Arguments& a) { m.ReLoadList(a.directory); }},
      {"SetDefaultIndex(int)", [](Manager& m, const Arguments& a) { m.SetDefaultIndex(a.number); }},
      {"GetDefaultListIdx(int&)",
       [](Manager& m, const Arguments&) {
         int index = 0;
         m.GetDefaultListIdx(index);
       }},
      {"DoLoadOtherProductList(CString&, int)",
       [](Manager& m, const Arguments& a) {
         CString path = FileOf(a, "\\OldOTVList.xml");
         m.DoLoadOtherProductList(path, a.number);
       }},
      {"LoadOtherProductList()", [](Manager& m, const Arguments&) { m.LoadOtherProductList(); }},
  };
}

Table WholeLists() {
  return {
      {"ClearSymbolList()", [](Manager& m, const Arguments&) { m.ClearSymbolList(); }},
      {"AddSymbolList(CString const&, int, CString const&, CString const&, int, int)",
       [](Manager& m, const Arguments& a) {
         m.AddSymbolList(a.id, a.number, a.name, a.symbols, a.other, a.flag);
       }},
      {"AddTQSymbolList(CSymbolList*, int)", AddOwnList},
      {"SetSymbolList(CPtrArray*)",
       [](Manager& m, const Arguments& a) {
         CopiesOfLists copies(m, a);
         m.SetSymbolList(copies.Lists());
       }},
      {"DeleteSymbolList(CString)",
       [](Manager& m, const Arguments& a) { m.DeleteSymbolList(a.id); }},
      {"ReplaceID(CStringArray*, CStringArray*)", ReplaceId},
      {"AdjustFileName(CString)", [](Manager& m, const Arguments& a) { m.AdjustFileName(a.name); }},
  };
}

Table Entries() {
  return {
      {"DeleteSymbolList(CString, int)",
       [](Manager& m, const Arguments& a) { m.DeleteSymbolList(a.id, a.number); }},
      {"InsertSymbolList(CString, int, CString, int, int)",
       [](Manager& m, const Arguments& a) {
         m.InsertSymbolList(a.id, a.number, a.text, a.other, a.flag == 0);
       }},
      {"SwapSymbolList(CString, int, int)",
       [](Manager& m, const Arguments& a) { m.SwapSymbolList(a.id, a.number, a.other); }},
      {"ReplaceSymbolList(CString, int, CString)",
       [](Manager& m, const Arguments& a) { m.ReplaceSymbolList(a.id, a.number, a.text); }},
  };
}

Table Checks() {
  return {
      {"CheckNameExist(CString const&, int, int, int)",
       [](Manager& m, const Arguments& a) { m.CheckNameExist(a.name, a.flag, a.number, a.kind); }},
      {"CheckIDandName(CString const&, CString const&, int)",
       [](Manager& m, const Arguments& a) { m.CheckIDandName(a.id, a.name, a.kind); }},
      {"CheckSymbolListExist(CString const&, int)",
       [](Manager& m, const Arguments& a) { m.CheckSymbolListExist(a.id, a.kind); }},
      {"CheckListAndNameExist(CString const&, CString const&, int)",
       [](Manager& m, const Arguments& a) { m.CheckListAndNameExist(a.id, a.name, a.kind); }},
      {"IsModifyList(CPtrArray*, int)",
       [](Manager& m, const Arguments& a) {
         CopiesOfLists copies(m, a);
         m.IsModifyList(copies.Lists(), a.number);
       }},
      {"IsModifyCountList(CPtrArray*)",
       [](Manager& m, const Arguments& a) {
         CopiesOfLists copies(m, a);
         m.IsModifyCountList(copies.Lists());
       }},
      {"CheckValidSymbolList(CString const&, int)",
       [](Manager& m, const Arguments& a) { m.CheckValidSymbolList(a.id, a.kind); }},
      {"CutStringAndGetParamBefore(CString&, char, CString&)",
       [](Manager&, const Arguments& a) {
         CString text = a.symbols;
         CString before;
         Manager::CutStringAndGetParamBefore(text, ',', before);
       }},
  };
}

Table SystemLists() {
  return {
      {"LoadSystemList(CStringArray*)",
       [](Manager& m, const Arguments& a) {
         CStringArray names = Texts(a.name);
         m.LoadSystemList(a.nulls ? nullptr : &names);
       }},
      {"IsSystemList(char const*, int)",
       [](Manager& m, const Arguments& a) { m.IsSystemList(a.Text(a.id), a.kind); }},
      {"UpdateSystemList(CString const&, CString const&, CString const&, int&)",
       [](Manager& m, const Arguments& a) {
         int changed = 0;
         m.UpdateSystemList(a.id, a.name, a.symbols, changed);
       }},
      {"UpdateSystemList(int, CString const&, int)",
       [](Manager& m, const Arguments& a) { m.UpdateSystemList(a.number, a.symbols, a.flag); }},
      {"UpdateSystemList(CMapStringToString*, CMapStringToString*)", UpdateSystemLists},
      {"AddExtraTQInfo(CString const&)",
       [](Manager& m, const Arguments& a) { m.AddExtraTQInfo(a.text); }},
      {"RemoveExtraTQInfo(CString const&)",
       [](Manager& m, const Arguments& a) { m.RemoveExtraTQInfo(a.text); }},
      {"GetExtraTQInfo() const", [](Manager& m, const Arguments&) { m.GetExtraTQInfo(); }},
  };
}

} // namespace

Table ListOperations() {
  Table all = File();
  for (const Table& part : {WholeLists(), Entries(), Checks(), SystemLists()})
    all.insert(all.end(), part.begin(), part.end());
  return all;
}

} // namespace operations
