// The identity of a list of the manager's: its name and ids as the manager has them now.
#include "idlist/ListKind.h"
#include "manager/TQSymbolListMgr.h"
#include "symbolid/ListID.h"

int CListID::SetNameAndList(const CString& name, CTQSymbolListMgr* mgr) noexcept {
  if (mgr == nullptr || type_ != ListIDUserList)
    return 0;
  CString current;
  CString list;
  if (!mgr->GetTQSymbolListName(id_, current, tq::kUserLists))
    current = name;
  if (!mgr->GetSymoblIDList(id_, list, tq::kUserLists))
    list.Empty();
  return SetNameAndList(current, list);
}

int CListID::SetNameAndList(CTQSymbolListMgr* mgr) noexcept {
  return SetNameAndList(CString(), mgr);
}
