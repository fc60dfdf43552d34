// Editing of whole lists. Each operation that reports a change saves the working file first, then
// writes its log line, then tells the terminal.
#include <algorithm>
#include <memory>
#include <vector>

#include "symbollist/ListArray.h"
#include "symbollist/ListKind.h"
#include "symbollist/ListName.h"
#include "symbollist/Log.h"
#include "symbollist/NewListId.h"
#include "symbollist/Notify.h"
#include "symbollist/StorableText.h"
#include "symbollist/TQSymbolListMgr.h"
#include "symboltable/MovedSymbols.h"

namespace {

constexpr int kListExists = 1;
constexpr int kListBearsName = 2;

struct Renamed {
  CSymbolList* list;
  CString before;
  CString now;
};

// Plain substrings of the whole string, not ids: an old id that is a part of a longer one changes
// inside that one too. Callers rename whole families of ids by their common start.
CString ReplacedIn(CString ids, const CStringArray& oldIds, const CStringArray& newIds) {
  const int pairs = std::min(oldIds.GetSize(), newIds.GetSize());
  for (int k = 0; k < pairs; ++k)
    ids.Replace(oldIds[k], newIds[k]);
  return ids;
}

} // namespace

int CTQSymbolListMgr::AddSymbolList(const CString& id, int /*unused*/, const CString& name,
                                    const CString& symbols, int append, int overwrite) {
  // Name and symbols as they are going to be kept: what the file cannot hold does not make a name
  // another one, and is no symbol.
  const CString keptName = tq::StorableText(name);
  const CString keptSymbols = tq::StorableText(symbols);
  if (keptName.IsEmpty() || keptSymbols.IsEmpty() || !tq::IsKeptWhole(id))
    return 0;
  const int found = id.IsEmpty() ? 0 : CheckIDandName(id, keptName, tq::kUserLists);
  if ((found & kListExists) == 0) {
    if (AddNewList(id, keptName, keptSymbols, append) == 0)
      return 0;
  } else {
    // A list of another name is overwritten only when the caller says so; its name stays.
    if ((found & kListBearsName) == 0 && overwrite == 0)
      return 0;
    tq::ListAt(lists_, tq::FindListById(lists_, id))->Update1(keptSymbols);
  }
  if (defaultIndex_ == -1)
    defaultIndex_ = 0;
  SaveSymbolList();
  tq::LogLine(tq::kLogChange, "Add SymbolList");
  tq::Notify(tq::kNotifyUserLists, "");
  return 1;
}

int CTQSymbolListMgr::AddNewList(const CString& id, const CString& name, const CString& symbols,
                                 int append) {
  const CString freeName = AdjustFileName(name);
  if (CheckNameExist(freeName, 0, -1, tq::kUserLists) != 0)
    return 0;
  const CString listId = id.IsEmpty() ? tq::NewListId() : id;
  if (listId.IsEmpty())
    return 0;
  PutNewList(listId, freeName, symbols, append);
  return 1;
}

void CTQSymbolListMgr::PutNewList(const CString& id, const CString& name, const CString& symbols,
                                  int append) {
  CPtrArray before;
  before.Copy(lists_);
  auto list = std::make_unique<CSymbolList>();
  list->Update1(symbols);
  list->SetID(id);
  list->SetName(name);
  ReplaceSymbolListExchID(list.get(), tq::kMovedFromExchange, tq::kMovedToExchange);
  // While the symbols were resolved the terminal may have added this very list, or one of its name.
  if (!std::equal(before.begin(), before.end(), lists_.begin(), lists_.end())) {
    if (CSymbolList* const other = FindUserList(id)) {
      other->Update1(symbols);
      return;
    }
    list->SetName(AdjustFileName(name));
  }
  PutSymbolList(list.release(), append);
}

int CTQSymbolListMgr::AddTQSymbolList(CSymbolList* source, int append) {
  if (source == nullptr)
    return 0;
  PutSymbolList(CopyMoved(*source), append);
  return 1;
}

// A copy for the manager, with moved symbols renamed in both lists. In the caller's too, on
// purpose: it goes on showing what was stored. The caller's list may be the manager's own, which
// the terminal can delete while the service is asked: it is not looked at after that.
CSymbolList* CTQSymbolListMgr::CopyMoved(CSymbolList& source) {
  auto copy = std::make_unique<CSymbolList>(source);
  CString ids = source.GetIDs();
  if (ReplaceSymbolListExchID(ids, tq::kMovedFromExchange, tq::kMovedToExchange) != 0) {
    source.Update1(ids);
    copy->Update1(ids);
  }
  return copy.release();
}

void CTQSymbolListMgr::PutSymbolList(CSymbolList* list, int append) {
  if (append == 0)
    lists_.InsertAt(0, list);
  else
    lists_.Add(list);
}

int CTQSymbolListMgr::SetSymbolList(CPtrArray* lists) {
  if (lists == nullptr)
    return 0;
  CPtrArray copies;
  for (int i = 0; i < lists->GetSize(); ++i) {
    if (CSymbolList* source = tq::ListAt(*lists, i))
      copies.Add(CopyMoved(*source));
  }
  // Only now the old ones go: the caller may have handed over lists of the manager itself, and a
  // save by the terminal, while symbols were resolved, must not have found a part of the new ones.
  tq::DestroyLists(lists_);
  lists_.Copy(copies);
  if (defaultIndex_ < 0 && !lists_.IsEmpty())
    defaultIndex_ = 0;
  else
    defaultIndex_ = std::min(defaultIndex_, lists_.GetUpperBound());
  return 1;
}

int CTQSymbolListMgr::DeleteSymbolList(CString id) {
  const int index = tq::FindListById(lists_, id);
  if (index < 0)
    return 0;
  // Only deleting the default list itself, as the last one, moves the index. A list deleted in
  // front of it leaves the index, which then means the next list: terminals rely on that.
  if (index == defaultIndex_ && index == lists_.GetUpperBound())
    --defaultIndex_;
  delete tq::ListAt(lists_, index);
  lists_.RemoveAt(index);
  SaveSymbolList();
  return 1;
}

int CTQSymbolListMgr::ReplaceID(CStringArray* oldIds, CStringArray* newIds) {
  if (oldIds == nullptr || newIds == nullptr)
    return 0;
  // All strings first: the lists that the terminal adds while one is resolved are not renamed, and
  // none is renamed twice.
  std::vector<Renamed> renamed;
  for (int i = 0; i < lists_.GetSize(); ++i) {
    CSymbolList* list = tq::ListAt(lists_, i);
    renamed.push_back({list, list->GetIDs(), ReplacedIn(list->GetIDs(), *oldIds, *newIds)});
  }
  int changed = 0;
  for (size_t i = 0; i < renamed.size(); ++i) {
    const Renamed& each = renamed[i];
    if (each.now != each.before && tq::IsAmong(lists_, each.list, static_cast<int>(i)) &&
        each.list->GetIDs() == each.before)
      changed |= each.list->Update1(each.now);
  }
  if (changed == 0)
    return 0;
  SaveSymbolList();
  tq::LogLine(tq::kLogChange, "ReplaceID");
  tq::Notify(tq::kNotifyUserLists, "");
  return 1;
}

CString CTQSymbolListMgr::AdjustFileName(CString name) {
  return tq::FreeName(tq::StorableText(name), [this](const CString& wanted) {
    return tq::FindListByName(lists_, wanted) >= 0;
  });
}
