#include "dialogs/EditCommits.h"

#include <memory>
#include <utility>

#include "idlist/ListKind.h"
#include "manager/TQSymbolListMgr.h"
#include "platform/Log.h"
#include "platform/Notify.h"
#include "platform/diagnostics/Operation.h"

namespace tq {
namespace {

// "changed", in Big5 on every system: readers of the logs look for these bytes.
#define TQ_CHANGED " \xA7\xF3\xB0\xCA SymbolList!!"

struct ChangeLines {
  const char* count;
  const char* name;
  const char* other;
};

constexpr ChangeLines kListLines = {
    "DoSymbolListUI" TQ_CHANGED "(nNewSymbolListCnt != nOldSymbolListCnt)",
    "DoSymbolListUI" TQ_CHANGED "(bListNameChange)", "DoSymbolListUI" TQ_CHANGED};
constexpr ChangeLines kCloudLines = {
    "DoCloudSymbolListUI" TQ_CHANGED "(nNewSymbolListCnt != nOldSymbolListCnt)",
    "DoCloudSymbolListUI" TQ_CHANGED "(bListNameChange)", "DoCloudSymbolListUI" TQ_CHANGED};
constexpr char kSymbolAddLine[] = "DoSymbolAddUI" TQ_CHANGED;
constexpr char kGroupSymbolAddLine[] = "DoGroupSymbolAdd" TQ_CHANGED;
constexpr char kSelectLine[] = "DoSelectUI" TQ_CHANGED;

void Report(const char* line, long code, const char* reason) {
  LogLine(kLogChange, "%s", line);
  Notify(code, reason);
}

// Compares by position, since the terminal's pages refer to lists by position: lists that swapped
// places count as renamed.
bool NamesDiffer(const WorkingCopy& stored, const WorkingCopy& copy) {
  if (stored.Count() != copy.Count())
    return false;
  for (int i = 0; i < copy.Count(); ++i) {
    if (stored.At(i).GetName() != copy.At(i).GetName())
      return true;
  }
  return false;
}

void ReportChange(const ChangeLines& lines, long code, bool countChanged, bool nameChanged) {
  if (countChanged)
    Report(lines.count, code, TQReasonListCount);
  else if (nameChanged)
    Report(lines.name, code, TQReasonListNames);
  else
    Report(lines.other, code, "");
}

// By their texts, not by their rows: those may have to be asked for, and the terminal may add lists
// then, which a store behind that would lose.
bool SameList(CSymbolList& left, CSymbolList& right) {
  return left.IsSameID(right.GetID()) && left.GetName() == right.GetName() &&
         left.GetIDs() == right.GetIDs();
}

// Puts a copy of `edited` in the place of the stored list with its id. False when there is none, or
// nothing would change.
bool PutEdited(WorkingCopy& stored, const CSymbolList& edited) {
  auto list = std::make_unique<CSymbolList>(edited);
  const int index = stored.Find(list->GetID());
  if (index < 0 || SameList(stored.At(index), *list))
    return false;
  stored.Replace(index, std::move(list));
  return true;
}

void StoreAndSave(CTQSymbolListMgr& manager, WorkingCopy& copy) {
  CPtrArray lists = copy.Pointers();
  manager.SetSymbolList(&lists);
  copy.ReportKept();
  manager.SaveSymbolList();
  Operation::TakeOverProblem();
}

bool StoreIfModified(CTQSymbolListMgr& manager, WorkingCopy& copy) {
  copy.TakeInChanges(manager);
  int index = -1;
  manager.GetDefaultListIdx(index);
  CPtrArray lists = copy.Pointers();
  if (!manager.IsModifyList(&lists, index))
    return false;
  StoreAndSave(manager, copy);
  return true;
}

} // namespace

void CommitLists(CTQSymbolListMgr& manager, WorkingCopy& copy, int countBefore) {
  copy.TakeInChanges(manager);
  CPtrArray lists = copy.Pointers();
  if (!manager.IsModifyList(&lists, copy.DefaultIndex()))
    return;
  const bool nameChanged = NamesDiffer(WorkingCopy(manager, kUserLists), copy);
  manager.SetDefaultIndex(copy.DefaultIndex()); // SetSymbolList brings it into range
  StoreAndSave(manager, copy);
  copy.Clear();
  ReportChange(kListLines, kNotifyUserLists, manager.GetSymbolListCount(kUserLists) != countBefore,
               nameChanged);
}

void CommitCloudLists(CTQSymbolListMgr& manager, WorkingCopy& copy, int countBefore) {
  copy.TakeInChanges(manager);
  CPtrArray lists = copy.Pointers();
  if (!manager.IsModifyCountList(&lists))
    return;
  const bool nameChanged = NamesDiffer(WorkingCopy(manager, kCloudLists), copy);
  manager.SetCloudSymbolList(&lists, kCloudLists);
  copy.ReportKept();
  for (int i = 0; i < copy.Count(); ++i)
    manager.UpdateCloudSymbolList(copy.At(i).GetID(), copy.At(i).GetName(), copy.At(i).GetIDs());
  copy.Clear();
  ReportChange(kCloudLines, kNotifyCloudLists,
               manager.GetSymbolListCount(kCloudLists) != countBefore, nameChanged);
}

void CommitAddedSymbols(CTQSymbolListMgr& manager, WorkingCopy& copy) {
  if (StoreIfModified(manager, copy))
    Report(kSymbolAddLine, kNotifySymbols, "");
  // Always: the terminal redraws its pages when this dialog has closed, changed or not.
  Notify(kNotifyUserLists, "");
}

void CommitSymbolAddedToLists(CTQSymbolListMgr& manager, WorkingCopy& copy) {
  const bool changed = StoreIfModified(manager, copy);
  copy.Clear();
  if (changed)
    Report(kGroupSymbolAddLine, kNotifyUserLists, "");
}

bool CommitEditedList(CTQSymbolListMgr& manager, const CSymbolList& edited) {
  WorkingCopy stored(manager, kUserLists);
  if (!PutEdited(stored, edited))
    return false;
  StoreAndSave(manager, stored);
  return true;
}

bool CommitEditedCloudList(CTQSymbolListMgr& manager, const CSymbolList& edited) {
  WorkingCopy stored(manager, kCloudLists);
  if (!PutEdited(stored, edited))
    return false;
  CPtrArray lists = stored.Pointers();
  manager.SetCloudSymbolList(&lists, kCloudLists);
  CSymbolList& list = stored.At(stored.Find(edited.GetID()));
  manager.UpdateCloudSymbolList(list.GetID(), list.GetName(), list.GetIDs());
  manager.LoadGroupList(kCloudGroupType);
  return true;
}

void ReportChangedBySelection() {
  Report(kSelectLine, kNotifyUserLists, "");
}

} // namespace tq
