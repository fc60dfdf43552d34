// Editing of whole lists. Each operation that reports a change saves the working file first, then
// writes its log line, then tells the terminal.
#include <algorithm>
#include <memory>
#include <vector>

#include "manager/TQSymbolListMgr.h"
#include "platform/Log.h"
#include "platform/Notify.h"
#include "platform/xml/XmlText.h"
#include "symbollist/BoundedReplace.h"
#include "symbollist/ListFile.h"
#include "symbollist/ListKind.h"
#include "symbollist/ListName.h"
#include "symbollist/NewListId.h"
#include "symbollist/OwnedLists.h"
#include "symbollist/StorableText.h"
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
// inside that one too. Callers rename whole families of ids by their common start. False when the
// string would be longer than `limit` bytes on the way.
bool ReplaceIn(CString& ids, const CStringArray& oldIds, const CStringArray& newIds, size_t limit) {
  const int pairs = std::min(oldIds.GetSize(), newIds.GetSize());
  for (int k = 0; k < pairs; ++k) {
    if (!tq::ReplaceWithin(ids, oldIds[k], newIds[k], limit))
      return false;
  }
  return true;
}

// The strings of all lists before and after. False when the lists would be more than a list file
// can hold, or than they are already: a few pairs that double the text would take all memory.
bool RenameAll(const CPtrArray& lists, const CStringArray& oldIds, const CStringArray& newIds,
               std::vector<Renamed>& renamed) {
  size_t length = tq::ListFileLength(lists);
  const size_t limit = std::max(tq::kXmlSizeLimit, length);
  for (int i = 0; i < lists.GetSize(); ++i) {
    CSymbolList* const list = tq::ListAt(lists, i);
    const CString before = list->GetIDs();
    const size_t others = length - static_cast<size_t>(before.GetLength());
    CString now = before;
    if (!ReplaceIn(now, oldIds, newIds, limit - others))
      return false;
    length = others + static_cast<size_t>(now.GetLength());
    renamed.push_back({list, before, now});
  }
  return true;
}

} // namespace

int CTQSymbolListMgr::AddSymbolList(const CString& id, int /*unused*/, const CString& name,
                                    const CString& symbols, int append, int overwrite) noexcept {
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
    lists_->Find(id)->Update1(keptSymbols);
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
  const unsigned before = lists_->Changes();
  auto list = std::make_unique<CSymbolList>();
  list->Update1(symbols);
  list->SetID(id);
  list->SetName(name);
  ReplaceSymbolListExchID(list.get(), tq::kMovedFromExchange, tq::kMovedToExchange);
  // While the symbols were resolved the terminal may have added this very list, or one of its name.
  if (lists_->Changes() != before) {
    if (CSymbolList* const other = FindUserList(id)) {
      other->Update1(symbols);
      return;
    }
    list->SetName(AdjustFileName(name));
  }
  PutSymbolList(list.release(), append);
}

int CTQSymbolListMgr::AddTQSymbolList(CSymbolList* source, int append) noexcept {
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
  if (ReplaceSymbolListExchID(ids, tq::kMovedFromExchange, tq::kMovedToExchange) != 0)
    source.UpdateWithCopy(ids, *copy);
  return copy.release();
}

void CTQSymbolListMgr::PutSymbolList(CSymbolList* list, int append) {
  if (append == 0)
    lists_->AddFirst(std::unique_ptr<CSymbolList>(list));
  else
    lists_->AddLast(std::unique_ptr<CSymbolList>(list));
}

int CTQSymbolListMgr::SetSymbolList(CPtrArray* lists) noexcept {
  if (lists == nullptr)
    return 0;
  CPtrArray copies;
  for (int i = 0; i < lists->GetSize(); ++i) {
    if (CSymbolList* source = tq::ListAt(*lists, i))
      copies.Add(CopyMoved(*source));
  }
  // Only now the old ones go: the caller may have handed over lists of the manager itself, and a
  // save by the terminal, while symbols were resolved, must not have found a part of the new ones.
  lists_->Replace(copies);
  if (defaultIndex_ < 0 && !lists_->IsEmpty())
    defaultIndex_ = 0;
  else
    defaultIndex_ = std::min(defaultIndex_, lists_->GetUpperBound());
  return 1;
}

int CTQSymbolListMgr::DeleteSymbolList(CString id) noexcept {
  CSymbolList* const list = lists_->Find(id);
  if (list == nullptr)
    return 0;
  // Only deleting the default list itself, as the last one, moves the index. A list deleted in
  // front of it leaves the index, which then means the next list: terminals rely on that.
  const int index = lists_->PositionOf(list);
  if (index == defaultIndex_ && index == lists_->GetUpperBound())
    --defaultIndex_;
  lists_->Delete(list);
  SaveSymbolList();
  return 1;
}

int CTQSymbolListMgr::ReplaceID(CStringArray* oldIds, CStringArray* newIds) noexcept {
  if (oldIds == nullptr || newIds == nullptr)
    return 0;
  // All strings first: the lists that the terminal adds while one is resolved are not renamed, and
  // none is renamed twice.
  std::vector<Renamed> renamed;
  if (!RenameAll(*lists_, *oldIds, *newIds, renamed)) {
    tq::LogLine(tq::kLogChange, "ReplaceID is refused: no list file can hold the lists after it");
    return 0;
  }
  int changed = 0;
  for (size_t i = 0; i < renamed.size(); ++i) {
    const Renamed& each = renamed[i];
    if (each.now != each.before && tq::IsAmong(*lists_, each.list, static_cast<int>(i)) &&
        each.list->GetIDs() == each.before)
      changed |= each.list->Update1(each.now);
  }
  // Lists that the terminal took away meanwhile are not taken out of the file for it.
  if (changed == 0 || lists_->IsEmpty())
    return 0;
  SaveSymbolList();
  tq::LogLine(tq::kLogChange, "ReplaceID");
  tq::Notify(tq::kNotifyUserLists, "");
  return 1;
}

CString CTQSymbolListMgr::AdjustFileName(CString name) noexcept {
  return tq::FreeName(tq::StorableText(name),
                      [this](const CString& wanted) { return lists_->HasName(wanted); });
}
