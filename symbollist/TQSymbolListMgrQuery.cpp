// The manager's lists in memory: adding, clearing, looking.
#include "symbollist/TQSymbolListMgr.h"

namespace {

// Persisted by callers and spoken by the services: do not change.
constexpr int kUserLists = 1;
constexpr int kTradingLists = 6;
constexpr int kCloudLists = 8;

CSymbolList* ListAt(const CPtrArray& lists, int index) {
  return static_cast<CSymbolList*>(lists.GetAt(index));
}

void Destroy(CPtrArray& lists) {
  for (int i = 0; i < lists.GetSize(); ++i)
    delete ListAt(lists, i);
  lists.RemoveAll();
}

} // namespace

void CTQSymbolListMgr::ClearSymbolList() { Destroy(lists_); }

void CTQSymbolListMgr::ClearTSSymbolList() { Destroy(tradingLists_); }

void CTQSymbolListMgr::ClearCloudSymbolList() { Destroy(cloudLists_); }

int CTQSymbolListMgr::AddTQSymbolList(CSymbolList* source, int append) {
  if (source == nullptr)
    return 0;
  AdoptSymbolList(new CSymbolList(*source), append);
  return 1;
}

void CTQSymbolListMgr::AdoptSymbolList(CSymbolList* list, int append) {
  if (append == 0)
    lists_.InsertAt(0, list);
  else
    lists_.Add(list);
}

CPtrArray* CTQSymbolListMgr::ListsOf(int kind) {
  switch (kind) {
  case kUserLists:
    return &lists_;
  case kTradingLists:
    return &tradingLists_;
  case kCloudLists:
    return &cloudLists_;
  default:
    return nullptr;
  }
}

int CTQSymbolListMgr::GetSymbolListCount(int kind) {
  const CPtrArray* lists = ListsOf(kind);
  return lists == nullptr ? 0 : lists->GetSize();
}

int CTQSymbolListMgr::GetTQSymbolListInfo(int index, TQSymbolListInfo* out, int kind) {
  const CPtrArray* lists = ListsOf(kind);
  if (lists == nullptr || out == nullptr || index < 0 || index >= lists->GetSize())
    return 0;
  ListAt(*lists, index)->GetListInfo(out);
  return 1;
}

int CTQSymbolListMgr::GetSymbolList(CString id, CSymbolList** out, int kind) {
  if (out == nullptr)
    return 0;
  *out = nullptr;
  const CPtrArray* lists = ListsOf(kind);
  for (int i = 0; lists != nullptr && i < lists->GetSize(); ++i) {
    if (ListAt(*lists, i)->IsSameID(id)) {
      *out = ListAt(*lists, i);
      return 1;
    }
  }
  return 0;
}
