#include "cloud/CloudLists.h"

#include "cloud/CloudeListUtil.h"
#include "groups/GroupList.h"
#include "idlist/StorableText.h"
#include "platform/Log.h"
#include "platform/Notify.h"
#include "platform/Text.h"
#include "platform/diagnostics/Operation.h"

namespace tq {
namespace {

// The pieces between the commas, without the empty ones.
CString WithoutEmptyPieces(const CString& symbols) {
  CString pieces;
  ForEachPiece(ViewOf(symbols), [&pieces](int, std::string_view piece) {
    if (piece.empty())
      return;
    if (!pieces.IsEmpty())
      pieces += ',';
    pieces.Append(piece.data(), static_cast<int>(piece.size()));
  });
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
  if (StorableText(name).IsEmpty())
    return NoteProblem(TQProblemName, "the name is empty");
  if (symbols.IsEmpty() && !allowEmpty)
    return NoteProblem(TQProblemSymbols, "there are no symbols");
  const int added = lists_.AddResolved(
      id, name, [&] { return lists_.ProblemsOfNewId(id) == 0; },
      [&symbols](CSymbolList& list) { list.Update1(WithoutEmptyPieces(symbols)); });
  return added != 0
             ? added
             : NoteProblem(TQProblemId, "no new list can bear the identifier '%s'", id.GetString());
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
