// Editing of the user's lists. Each operation that reports a change saves the working file first,
// then writes its log line, then tells the terminal.
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "idlist/IdString.h"
#include "idlist/StorableText.h"
#include "platform/Log.h"
#include "platform/Notify.h"
#include "platform/Text.h"
#include "platform/diagnostics/Operation.h"
#include "symbollist/ListIds.h"
#include "symbollist/ListName.h"
#include "symbollist/ReplaceIds.h"
#include "symbollist/UserLists.h"

namespace tq {
namespace {

int NoteNoEntry(const CString& id, int entry) {
  return NoteProblem(TQProblemNoEntry, "the list '%s' has no entry %d", id.GetString(), entry);
}

} // namespace

int UserLists::Add(const CString& id, const CString& name, const CString& symbols, bool append,
                   bool overwrite) {
  // Name and symbols as they are going to be kept: what the file cannot hold does not make a name
  // another one, and is no symbol.
  const CString keptName = StorableText(name);
  const CString keptSymbols = StorableText(symbols);
  if (keptName.IsEmpty())
    return NoteProblem(TQProblemName, "the name is empty");
  if (keptSymbols.IsEmpty())
    return NoteProblem(TQProblemSymbols, "there are no symbols");
  if (!IsKeptWhole(id))
    return NoteProblem(TQProblemId, "no list can bear the identifier '%s'", id.GetString());
  CSymbolList* const list = id.IsEmpty() ? nullptr : Find(id);
  if (list == nullptr) {
    if (!AddNew(id, keptName, keptSymbols, append))
      return 0;
  } else {
    // A list of another name is overwritten only when the caller says so; its name stays.
    if (!list->IsSameName(keptName) && !overwrite)
      return NoteProblem(TQProblemTaken, "the list '%s' has another name, '%s'", id.GetString(),
                         list->GetName().GetString());
    list->Update1(keptSymbols);
  }
  EnsureDefault();
  Save();
  LogLine(kLogChange, "Add SymbolList");
  Notify(kNotifyUserLists, "");
  return 1;
}

bool UserLists::AddNew(const CString& id, const CString& name, const CString& symbols,
                       bool append) {
  const CString freeName = FreeName(name);
  if (lists_.HasName(freeName)) {
    NoteProblem(TQProblemTaken, "lists have the name '%s' and all of its numbers",
                name.GetString());
    return false;
  }
  const CString listId = IdOfNewList(id);
  if (listId.IsEmpty()) {
    NoteProblem(TQProblemId, "the system gives no new identifier");
    return false;
  }
  Put(listId, freeName, symbols, append);
  return true;
}

void UserLists::Put(const CString& id, const CString& name, const CString& symbols, bool append) {
  const unsigned before = lists_.Changes();
  auto list = std::make_unique<CSymbolList>();
  list->Update1(symbols);
  list->SetID(id);
  list->SetName(name);
  RenameMovedIn(*list, rename_);
  // While the symbols were resolved the terminal may have added this very list, or one of its name.
  if (lists_.Changes() != before) {
    if (CSymbolList* const other = Find(id)) {
      other->Update1(symbols);
      return;
    }
    list->SetName(FreeName(name));
  }
  Insert(std::move(list), append);
}

void UserLists::PutCopy(CSymbolList& source, bool append) {
  Insert(CopyMoved(source, rename_), append);
}

void UserLists::Insert(std::unique_ptr<CSymbolList> list, bool append) {
  if (append)
    lists_.AddLast(std::move(list));
  else
    lists_.AddFirst(std::move(list));
}

void UserLists::Replace(const CPtrArray& lists) {
  // Only when all copies are made the old ones go: the caller may have handed over lists of the
  // manager itself, and a save by the terminal, while symbols were resolved, must not have found a
  // part of the new ones.
  lists_.Replace(CopyAllMoved(lists, rename_));
  if (defaultIndex_ < 0 && !lists_.IsEmpty())
    defaultIndex_ = 0;
  else
    defaultIndex_ = std::min(defaultIndex_, lists_.GetSize() - 1);
}

int UserLists::Delete(const CString& id) {
  CSymbolList* const list = Find(id);
  if (list == nullptr)
    return NoteNoList(id);
  // Only deleting the default list itself, as the last one, moves the index. A list deleted in
  // front of it leaves the index, which then means the next list: terminals rely on that.
  const int index = lists_.PositionOf(list);
  if (index == defaultIndex_ && index == lists_.GetSize() - 1)
    --defaultIndex_;
  lists_.Delete(list);
  Save();
  return 1;
}

int UserLists::ReplaceIds(const CStringArray& oldIds, const CStringArray& newIds) {
  // All strings first: the lists that the terminal adds while one is resolved are not renamed, and
  // none is renamed twice.
  std::vector<ReplacedIds> replaced;
  if (!ReplaceInAll(lists_, oldIds, newIds, replaced)) {
    NoteProblem(TQProblemTooMuch, "no list file can hold the lists after it");
    LogLine(kLogChange, "ReplaceID is refused: no list file can hold the lists after it");
    return 0;
  }
  int changed = 0;
  for (size_t i = 0; i < replaced.size(); ++i) {
    const ReplacedIds& each = replaced[i];
    if (each.now != each.before && lists_.Has(each.list, static_cast<int>(i)) &&
        each.list->GetIDs() == each.before)
      changed |= each.list->Update1(each.now);
  }
  // Lists that the terminal took away meanwhile are not taken out of the file for it.
  if (changed == 0 || lists_.IsEmpty())
    return 0;
  Save();
  LogLine(kLogChange, "ReplaceID");
  Notify(kNotifyUserLists, "");
  return 1;
}

CString UserLists::FreeName(const CString& name) const {
  return tq::FreeName(StorableText(name),
                      [this](const CString& wanted) { return lists_.HasName(wanted); });
}

int UserLists::DeleteEntry(const CString& id, int entry) {
  CSymbolList* const list = Find(id);
  if (list == nullptr)
    return NoteNoList(id);
  return list->RemoveEntry(entry) != 0 ? 1 : NoteNoEntry(id, entry);
}

int UserLists::SwapEntries(const CString& id, int first, int second) {
  CSymbolList* const list = Find(id);
  if (list == nullptr)
    return NoteNoList(id);
  if (list->SwapEntries(first, second) != 0)
    return 1;
  return NoteProblem(TQProblemNoEntry,
                     "entries %d and %d of the list '%s' are one, or not both there", first, second,
                     id.GetString());
}

int UserLists::ReplaceEntry(const CString& id, int entry, const CString& text) {
  CSymbolList* const list = Find(id);
  if (list == nullptr)
    return NoteNoList(id);
  if (!IsOneToken(ViewOf(text)))
    NoteProblem(TQProblemEntry, "'%s' is empty or holds a comma", text.GetString());
  return list->ReplaceEntry(entry, text) != 0 ? 1 : NoteNoEntry(id, entry);
}

int UserLists::InsertEntry(const CString& id, int position, const CString& text, bool before,
                           bool heading) {
  // Cleaned before the ":" is put behind it: a heading of nothing is no heading. And before the
  // list is looked for: what is left out is logged, and the terminal may delete lists meanwhile.
  const CString kept = StorableText(text);
  CSymbolList* const list = Find(id);
  if (list == nullptr)
    return NoteNoList(id);
  if (!IsOneToken(ViewOf(kept)))
    return NoteProblem(TQProblemEntry, "'%s' is empty or holds a comma", text.GetString());
  if (!list->InsertEntry(position, heading ? kept + ":" : kept, before))
    return NoteProblem(TQProblemEntry, "the list '%s' has '%s' already, or its rows are not known",
                       id.GetString(), text.GetString());
  return 1;
}

} // namespace tq
