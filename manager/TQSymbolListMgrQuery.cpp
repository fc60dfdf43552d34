// Looking at the lists.
#include "exchanges/SymbolInfos.h"
#include "manager/ManagerState.h"
#include "manager/TQSymbolListMgr.h"

int CTQSymbolListMgr::GetSymbolListCount(int kind) noexcept {
  tq::CheckCall("GetSymbolListCount");
  return state_->ListsOf(kind).GetSize();
}

int CTQSymbolListMgr::GetTQSymbolListCount(int kind) noexcept {
  tq::CheckCall("GetTQSymbolListCount");
  return GetSymbolListCount(kind);
}

int CTQSymbolListMgr::GetSymbolList(CPtrArray& out, int kind) noexcept {
  tq::CheckCall("GetSymbolList");
  state_->ListsOf(kind).AppendCopies(out);
  return tq::ManagerState::HasKind(kind);
}

int CTQSymbolListMgr::GetSymbolList(CString id, CSymbolList** out, int kind) noexcept {
  tq::CheckCall("GetSymbolList", "id", id);
  if (out == nullptr)
    return 0;
  *out = state_->ListsOf(kind).Find(id);
  return *out != nullptr;
}

int CTQSymbolListMgr::GetTQSymbolListInfo(int index, TQSymbolListInfo* out, int kind) noexcept {
  tq::CheckCall("GetTQSymbolListInfo");
  const CSymbolList* const list = state_->ListsOf(kind).At(index);
  if (list == nullptr || out == nullptr)
    return 0;
  list->GetListInfo(out);
  return 1;
}

int CTQSymbolListMgr::GetSymbolListInfo(int index, CString& id, CString& name, CString& symbols,
                                        int kind) noexcept {
  tq::CheckCall("GetSymbolListInfo");
  CSymbolList* const list = state_->ListsOf(kind).At(index);
  if (list == nullptr)
    return 0;
  id = list->GetID();
  name = list->GetName();
  symbols = list->GetIDs();
  return 1;
}

int CTQSymbolListMgr::GetSymbolListName(const CString& id, CString& name, int kind) noexcept {
  tq::CheckCall("GetSymbolListName", "id", id);
  return GetTQSymbolListName(id, name, kind);
}

int CTQSymbolListMgr::GetTQSymbolListName(const char* id, CString& name, int kind) noexcept {
  tq::CheckCall("GetTQSymbolListName", "id", id);
  // The id may be the text of `name` itself.
  const CSymbolList* const list = state_->ListsOf(kind).Find(id);
  name = list == nullptr ? CString() : list->GetName();
  return list != nullptr;
}

int CTQSymbolListMgr::GetSymbolListIDs(int kind, const CString& id, CString& symbols,
                                       CStringArray* tokens) noexcept {
  tq::CheckCall("GetSymbolListIDs", "id", id);
  constexpr int kDefaultList = 0;
  const tq::UserLists& user = state_->userLists;
  CSymbolList* const list =
      kind == kDefaultList ? user.Lists().At(user.DefaultIndex()) : state_->ListsOf(kind).Find(id);
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
  tq::CheckCall("GetSymoblIDList", "id", id);
  // Before `out` is emptied, which may be the id's own object.
  CSymbolList* const list = state_->ListsOf(kind).Find(id);
  out.Empty();
  if (list == nullptr)
    return 0;
  list->JoinRows(out);
  return 1;
}

int CTQSymbolListMgr::GetTQSymbolCount(const char* id, int kind) noexcept {
  tq::CheckCall("GetTQSymbolCount", "id", id);
  CSymbolList* const list = state_->ListsOf(kind).Find(id);
  return list == nullptr ? 0 : list->GetCount();
}

int CTQSymbolListMgr::GetTQSymbolInfo(const char* id, int entry, SymbolInfo* out,
                                      int kind) noexcept {
  tq::CheckCall("GetTQSymbolInfo", "id", id);
  CSymbolList* const list = state_->ListsOf(kind).Find(id);
  return list != nullptr && list->GetAt(entry, out);
}

int CTQSymbolListMgr::GetSymbolInfos(int exchId, int subId, SymbolInfo** list,
                                     int* count) noexcept {
  tq::CheckCall("GetSymbolInfos");
  return VLGetSymbolInfos2(exchId, subId, list, count, 0);
}

std::shared_ptr<const SymbolInfo[]> CTQSymbolListMgr::ShareAllSymbolInfos(int* count) noexcept {
  tq::CheckCall("ShareAllSymbolInfos");
  return count == nullptr ? nullptr : state_->allSymbols.Share(count);
}

int CTQSymbolListMgr::GetAllSymbolInfos(SymbolInfo** out, int* count) noexcept {
  tq::CheckCall("GetAllSymbolInfos");
  return state_->allSymbols.Copy(out, count);
}

void CTQSymbolListMgr::FreeSymbolInfos(SymbolInfo* infos) noexcept {
  tq::AllSymbols::Free(infos);
}

int CTQSymbolListMgr::GetSymbolInfo(const char* symbol, ExchInfo* exchanges, int exchangeCount,
                                    SymbolInfo* out) noexcept {
  tq::CheckCall("GetSymbolInfo", "symbol", symbol);
  return tq::ReadSymbolInfo(symbol, exchanges, exchangeCount, state_->defaultExchanges,
                            state_->symbolTables, out);
}

int CTQSymbolListMgr::GetBaseAttrs(const char* symbols, BaseAttr** list, int* count) noexcept {
  tq::CheckCall("GetBaseAttrs", "symbols", symbols);
  constexpr int kAllAttributes = 1;
  return VLGetBaseAttrs(symbols, list, count, kAllAttributes);
}

int CTQSymbolListMgr::IsValidSymbol(const CString& text, SymbolInfo* info) noexcept {
  tq::CheckCall("IsValidSymbol", "text", text);
  return tq::FindValidSymbol(text, state_->bCN, state_->symbolTables, info);
}
