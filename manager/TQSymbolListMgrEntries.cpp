// Editing of the entries of one list. In memory only: the caller saves.
#include "manager/TQSymbolListMgr.h"
#include "platform/Text.h"
#include "symbollist/IdString.h"
#include "symbollist/OwnedLists.h"
#include "symbollist/StorableText.h"

CSymbolList* CTQSymbolListMgr::FindUserList(const char* id) {
  return lists_->Find(id);
}

int CTQSymbolListMgr::DeleteSymbolList(CString id, int entry) noexcept {
  CSymbolList* list = FindUserList(id);
  return list == nullptr ? 0 : list->RemoveEntry(entry);
}

int CTQSymbolListMgr::InsertSymbolList(CString id, int position, CString text, int before,
                                       int heading) noexcept {
  // Cleaned before the ":" is put behind it: a heading of nothing is no heading. And before the
  // list is looked for: what is left out is logged, and the terminal may delete lists meanwhile.
  const CString kept = tq::StorableText(text);
  CSymbolList* list = FindUserList(id);
  if (list == nullptr || !tq::IsOneToken(tq::ViewOf(kept)))
    return 0;
  return list->InsertEntry(position, heading != 0 ? kept + ":" : kept, before != 0);
}

int CTQSymbolListMgr::SwapSymbolList(CString id, int first, int second) noexcept {
  CSymbolList* list = FindUserList(id);
  return list == nullptr ? 0 : list->SwapEntries(first, second);
}

int CTQSymbolListMgr::ReplaceSymbolList(CString id, int entry, CString text) noexcept {
  CSymbolList* list = FindUserList(id);
  return list == nullptr ? 0 : list->ReplaceEntry(entry, text);
}
