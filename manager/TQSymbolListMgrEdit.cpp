// Editing whole lists, and the entries of one list.
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"

namespace {

int NoteNull(const char* argument) {
  return tq::NoteProblem(TQProblemNull, "%s is null", argument);
}

} // namespace

int CTQSymbolListMgr::AddSymbolList(const CString& id, int /*unused*/, const CString& name,
                                    const CString& symbols, int append, int overwrite) noexcept {
  const tq::Operation operation("AddSymbolList", "id,name,symbols", id, name, symbols);
  return state_->userLists.Add(id, name, symbols, append != 0, overwrite != 0);
}

int CTQSymbolListMgr::AddTQSymbolList(CSymbolList* source, int append) noexcept {
  const tq::Operation operation("AddTQSymbolList");
  if (source == nullptr)
    return NoteNull("source");
  state_->userLists.PutCopy(*source, append != 0);
  return 1;
}

int CTQSymbolListMgr::SetSymbolList(CPtrArray* lists) noexcept {
  const tq::Operation operation("SetSymbolList");
  if (lists == nullptr)
    return NoteNull("lists");
  state_->userLists.Replace(*lists);
  return 1;
}

int CTQSymbolListMgr::DeleteSymbolList(CString id) noexcept {
  const tq::Operation operation("DeleteSymbolList", "id", id);
  return state_->userLists.Delete(id);
}

int CTQSymbolListMgr::ReplaceID(CStringArray* oldIds, CStringArray* newIds) noexcept {
  const tq::Operation operation("ReplaceID");
  if (oldIds == nullptr || newIds == nullptr)
    return NoteNull("one of the arrays");
  return state_->userLists.ReplaceIds(*oldIds, *newIds);
}

CString CTQSymbolListMgr::AdjustFileName(CString name) noexcept {
  tq::CheckCall("AdjustFileName", "name", name);
  return state_->userLists.FreeName(name);
}

int CTQSymbolListMgr::DeleteSymbolList(CString id, int entry) noexcept {
  const tq::Operation operation("DeleteSymbolList", "id", id);
  return state_->userLists.DeleteEntry(id, entry);
}

int CTQSymbolListMgr::InsertSymbolList(CString id, int position, CString text, int before,
                                       int heading) noexcept {
  const tq::Operation operation("InsertSymbolList", "id,text", id, text);
  return state_->userLists.InsertEntry(id, position, text, before != 0, heading != 0);
}

int CTQSymbolListMgr::SwapSymbolList(CString id, int first, int second) noexcept {
  const tq::Operation operation("SwapSymbolList", "id", id);
  return state_->userLists.SwapEntries(id, first, second);
}

int CTQSymbolListMgr::ReplaceSymbolList(CString id, int entry, CString text) noexcept {
  const tq::Operation operation("ReplaceSymbolList", "id,text", id, text);
  return state_->userLists.ReplaceEntry(id, entry, text);
}
