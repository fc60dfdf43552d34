// Editing whole lists, and the entries of one list.
#include "idlist/IdString.h"
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/Text.h"

namespace {

int NoteNull(const char* argument) {
  return tq::NoteProblem(TQProblemNull, "%s is null", argument);
}

// What an edit of an entry answers, with a reason when it was not done.
int EntryEdited(int result, const CString& id, int entry) {
  return result != 0 ? result
                     : tq::NoteProblem(TQProblemNoEntry, "the list '%s' has no entry %d",
                                       id.GetString(), entry);
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
  CSymbolList* const list = state_->userLists.Find(id);
  return list == nullptr ? tq::NoteNoList(id) : EntryEdited(list->RemoveEntry(entry), id, entry);
}

int CTQSymbolListMgr::InsertSymbolList(CString id, int position, CString text, int before,
                                       int heading) noexcept {
  const tq::Operation operation("InsertSymbolList", "id,text", id, text);
  return state_->userLists.InsertEntry(id, position, text, before != 0, heading != 0);
}

int CTQSymbolListMgr::SwapSymbolList(CString id, int first, int second) noexcept {
  const tq::Operation operation("SwapSymbolList", "id", id);
  CSymbolList* const list = state_->userLists.Find(id);
  if (list == nullptr)
    return tq::NoteNoList(id);
  if (list->SwapEntries(first, second) != 0)
    return 1;
  return tq::NoteProblem(TQProblemNoEntry,
                         "entries %d and %d of the list '%s' are one, or not both there", first,
                         second, id.GetString());
}

int CTQSymbolListMgr::ReplaceSymbolList(CString id, int entry, CString text) noexcept {
  const tq::Operation operation("ReplaceSymbolList", "id,text", id, text);
  CSymbolList* const list = state_->userLists.Find(id);
  if (list == nullptr)
    return tq::NoteNoList(id);
  if (!tq::IsOneToken(tq::ViewOf(text)))
    tq::NoteProblem(TQProblemEntry, "'%s' is empty or holds a comma", text.GetString());
  return EntryEdited(list->ReplaceEntry(entry, text), id, entry);
}
