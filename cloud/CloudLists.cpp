#include "cloud/CloudLists.h"

#include <memory>
#include <utility>

#include "cloud/CloudeListUtil.h"
#include "groups/GroupList.h"
#include "idlist/StorableText.h"
#include "platform/Log.h"
#include "platform/Notify.h"
#include "platform/System.h"

namespace tq {
namespace {

// The pieces between the commas, without the empty ones.
CString WithoutEmptyPieces(const CString& symbols) {
  CString pieces;
  for (int start = 0; start <= symbols.GetLength();) {
    const int comma = symbols.Find(',', start);
    const int end = comma < 0 ? symbols.GetLength() : comma;
    if (end > start) {
      if (!pieces.IsEmpty())
        pieces += ',';
      pieces.Append(symbols.GetString() + start, end - start);
    }
    start = end + 1;
  }
  return pieces;
}

} // namespace

void CloudLists::Set(const CString& id, const CString& name, const CString& symbols) {
  LogLine(kLogChange, "CTQSymbolListMgr::SetCloudeList ListName=%s, Symbols=%s", name.GetString(),
          symbols.GetString());
  const CloudList& list = map_.Set(id, name, symbols);
  Update(list.info.ID, name, symbols, true);
}

void CloudLists::SetInMap(const CString& id, const CString& name, const CString& symbols) {
  LogLine(kLogChange, "CTQSymbolListMgr::UpdateCloudSymbolList ListName=%s, Symbols=%s",
          name.GetString(), symbols.GetString());
  map_.Set(id, name, symbols);
}

void CloudLists::Update(const CString& id, const CString& name, const CString& symbols,
                        bool allowEmpty) {
  CSymbolList* const list = lists_.Find(id);
  if (list == nullptr) {
    Add(id, name, symbols, allowEmpty);
    return;
  }
  list->Update1(symbols);
  Notify(kNotifyCloudLists, "");
}

int CloudLists::Add(const CString& id, const CString& name, const CString& symbols,
                    bool allowEmpty) {
  if (StorableText(name).IsEmpty() || (symbols.IsEmpty() && !allowEmpty))
    return 0;
  if (lists_.ProblemsOfNewId(id) != 0)
    return 0;
  const CString listId = id.IsEmpty() ? NewGuidText() : id;
  if (listId.IsEmpty())
    return 0;
  const unsigned changes = lists_.Changes();
  auto list = std::make_unique<CSymbolList>();
  list->Update1(WithoutEmptyPieces(symbols));
  // The terminal may have added one itself while the symbols were resolved.
  if (changes != lists_.Changes() && lists_.ProblemsOfNewId(id) != 0)
    return 0;
  list->SetID(listId);
  list->SetName(name);
  lists_.AddLast(std::move(list));
  return 1;
}

void CloudLists::UpdateGroup(void* handle) const {
  auto* const group = static_cast<CGroupList*>(handle);
  const auto alive = KeepAlive(group);
  if (group == nullptr || group->GetSubCount() > 0)
    return;
  const CString id = group->GetInfo().szID;
  CCloudeListUtil::TakeOver(*group, map_, id, "CTQSymbolListMgr::UpdateCloudGroup");
}

void CloudLists::RefreshGroups(CGroupMgr& cloudGroups) const {
  CCloudeListUtil::Refresh(cloudGroups, map_);
}

} // namespace tq
