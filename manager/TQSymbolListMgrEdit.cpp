// Editing whole lists, and the entries of one list.
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"

int CTQSymbolListMgr::AddSymbolList(const CString& id, int /*unused*/, const CString& name,
                                    const CString& symbols, int append, int overwrite) noexcept {
  return state_->userLists.Add(id, name, symbols, append != 0, overwrite != 0);
}

int CTQSymbolListMgr::AddTQSymbolList(CSymbolList* source, int append) noexcept {
  if (source == nullptr)
    return 0;
  state_->userLists.PutCopy(*source, append != 0);
  return 1;
}

int CTQSymbolListMgr::SetSymbolList(CPtrArray* lists) noexcept {
  if (lists == nullptr)
    return 0;
  state_->userLists.Replace(*lists);
  return 1;
}

int CTQSymbolListMgr::DeleteSymbolList(CString id) noexcept {
  return state_->userLists.Delete(id);
}

int CTQSymbolListMgr::ReplaceID(CStringArray* oldIds, CStringArray* newIds) noexcept {
  return oldIds != nullptr && newIds != nullptr && state_->userLists.ReplaceIds(*oldIds, *newIds);
}

CString CTQSymbolListMgr::AdjustFileName(CString name) noexcept {
  return state_->userLists.FreeName(name);
}

int CTQSymbolListMgr::DeleteSymbolList(CString id, int entry) noexcept {
  CSymbolList* const list = state_->userLists.Find(id);
  return list == nullptr ? 0 : list->RemoveEntry(entry);
}

int CTQSymbolListMgr::InsertSymbolList(CString id, int position, CString text, int before,
                                       int heading) noexcept {
  return state_->userLists.InsertEntry(id, position, text, before != 0, heading != 0);
}

int CTQSymbolListMgr::SwapSymbolList(CString id, int first, int second) noexcept {
  CSymbolList* const list = state_->userLists.Find(id);
  return list == nullptr ? 0 : list->SwapEntries(first, second);
}

int CTQSymbolListMgr::ReplaceSymbolList(CString id, int entry, CString text) noexcept {
  CSymbolList* const list = state_->userLists.Find(id);
  return list == nullptr ? 0 : list->ReplaceEntry(entry, text);
}
