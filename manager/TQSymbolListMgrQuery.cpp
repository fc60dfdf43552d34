// Looking at the lists.
#include "manager/TQSymbolListMgr.h"
#include "symbollist/IdString.h"
#include "symbollist/ListKind.h"
#include "symbollist/OwnedLists.h"

const tq::OwnedLists* CTQSymbolListMgr::ListsOf(int kind) const {
  switch (kind) {
  case tq::kUserLists:
    return lists_;
  case tq::kTradingLists:
    return tradingLists_;
  case tq::kCloudLists:
    return cloudLists_;
  default:
    return nullptr;
  }
}

CSymbolList* CTQSymbolListMgr::FindList(const char* id, int kind) const {
  const tq::OwnedLists* lists = ListsOf(kind);
  return lists == nullptr ? nullptr : lists->Find(id);
}

int CTQSymbolListMgr::GetSymbolListCount(int kind) noexcept {
  const tq::OwnedLists* lists = ListsOf(kind);
  return lists == nullptr ? 0 : lists->GetSize();
}

int CTQSymbolListMgr::GetTQSymbolListCount(int kind) noexcept {
  return GetSymbolListCount(kind);
}

int CTQSymbolListMgr::GetSymbolList(CPtrArray& out, int kind) noexcept {
  const tq::OwnedLists* lists = ListsOf(kind);
  if (lists == nullptr)
    return 0;
  for (int i = 0; i < lists->GetSize(); ++i)
    out.Add(new CSymbolList(*tq::ListAt(*lists, i)));
  return 1;
}

int CTQSymbolListMgr::GetSymbolList(CString id, CSymbolList** out, int kind) noexcept {
  if (out == nullptr)
    return 0;
  *out = FindList(id, kind);
  return *out != nullptr;
}

int CTQSymbolListMgr::GetTQSymbolListInfo(int index, TQSymbolListInfo* out, int kind) noexcept {
  const tq::OwnedLists* lists = ListsOf(kind);
  if (lists == nullptr || out == nullptr || index < 0 || index >= lists->GetSize())
    return 0;
  tq::ListAt(*lists, index)->GetListInfo(out);
  return 1;
}

int CTQSymbolListMgr::GetSymbolListInfo(int index, CString& id, CString& name, CString& symbols,
                                        int kind) noexcept {
  const tq::OwnedLists* lists = ListsOf(kind);
  if (lists == nullptr || index < 0 || index >= lists->GetSize())
    return 0;
  CSymbolList* list = tq::ListAt(*lists, index);
  id = list->GetID();
  name = list->GetName();
  symbols = list->GetIDs();
  return 1;
}

int CTQSymbolListMgr::GetSymbolListName(const CString& id, CString& name, int kind) noexcept {
  return GetTQSymbolListName(id, name, kind);
}

int CTQSymbolListMgr::GetTQSymbolListName(const char* id, CString& name, int kind) noexcept {
  // The id may be the text of `name` itself.
  const CSymbolList* list = FindList(id, kind);
  name = list == nullptr ? CString() : list->GetName();
  return list != nullptr;
}

int CTQSymbolListMgr::GetSymbolListIDs(int kind, const CString& id, CString& symbols,
                                       CStringArray* tokens) noexcept {
  constexpr int kDefaultList = 0;
  CSymbolList* list = nullptr;
  int index = 0;
  if (kind != kDefaultList)
    list = FindList(id, kind);
  else if (GetDefaultListIdx(index) != 0 && index < lists_->GetSize())
    list = tq::ListAt(*lists_, index);
  if (tokens != nullptr)
    tokens->RemoveAll();
  if (list == nullptr) {
    symbols.Empty();
    return 0;
  }
  symbols = list->GetIDs();
  if (tokens != nullptr)
    tokens->Copy(list->GetTokens());
  return 1;
}

int CTQSymbolListMgr::GetSymoblIDList(const CString& id, CString& out, int kind) noexcept {
  // Before `out` is emptied, which may be the id's own object.
  CSymbolList* list = FindList(id, kind);
  out.Empty();
  if (list == nullptr)
    return 0;
  list->JoinRows(out);
  return 1;
}

int CTQSymbolListMgr::GetTQSymbolCount(const char* id, int kind) noexcept {
  CSymbolList* list = FindList(id, kind);
  return list == nullptr ? 0 : list->GetCount();
}

int CTQSymbolListMgr::GetTQSymbolInfo(const char* id, int entry, SymbolInfo* out,
                                      int kind) noexcept {
  CSymbolList* list = FindList(id, kind);
  return list != nullptr && list->GetAt(entry, out);
}

int CTQSymbolListMgr::GetSymbolInfos(int exchId, int subId, SymbolInfo** list,
                                     int* count) noexcept {
  return VLGetSymbolInfos2(exchId, subId, list, count, 0);
}

int CTQSymbolListMgr::GetBaseAttrs(const char* symbols, BaseAttr** list, int* count) noexcept {
  constexpr int kAllAttributes = 1;
  return VLGetBaseAttrs(symbols, list, count, kAllAttributes);
}
