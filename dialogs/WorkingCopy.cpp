#include "dialogs/WorkingCopy.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <unordered_map>
#include <utility>

#include "manager/TQSymbolListMgr.h"
#include "platform/LibraryString.h"
#include "platform/Log.h"
#include "platform/Text.h"
#include "symbollist/ListIndex.h"

namespace tq {

CString DisplayName(const CSymbolList& list) {
  return list.GetFlag() != 0 ? list.GetName() + LibraryString(kStringSystemList) : list.GetName();
}

WorkingCopy::WorkingCopy(CTQSymbolListMgr& manager, int kind) : kind_(kind) {
  CPtrArray copies;
  manager.GetSymbolList(copies, kind);
  for (int i = 0; i < copies.GetSize(); ++i)
    lists_.emplace_back(static_cast<CSymbolList*>(copies[i]));
  manager.GetDefaultListIdx(defaultIndex_);
  Committed();
}

WorkingCopy::Known WorkingCopy::Of(CSymbolList& list) {
  return {list.GetID(), list.GetName(), list.GetIDs()};
}

bool WorkingCopy::IsAs(CSymbolList& list, const Known& known) {
  return list.GetID() == known.id && list.GetName() == known.name && list.GetIDs() == known.symbols;
}

void WorkingCopy::Committed() {
  known_.clear();
  for (const auto& list : lists_)
    known_.push_back(Of(*list));
  knownDefault_ = defaultIndex_;
  knownDefaultId_ = DefaultId();
}

bool WorkingCopy::AreKnown(const Lists& lists) const {
  return std::equal(lists.begin(), lists.end(), known_.begin(), known_.end(),
                    [](const auto& list, const Known& known) { return IsAs(*list, known); });
}

bool WorkingCopy::IsUntouched() const {
  return defaultIndex_ == knownDefault_ && AreKnown(lists_);
}

CString WorkingCopy::DefaultId() const {
  return defaultIndex_ >= 0 && defaultIndex_ < Count() ? At(defaultIndex_).GetID() : CString();
}

// The lists of each identifier: those that were known, and those of this copy. Lists may share one;
// such are only counted, for nobody can tell which is which.
class WorkingCopy::Changes {
public:
  explicit Changes(const WorkingCopy& copy) {
    for (const Known& known : copy.known_) {
      Entry& entry = entries_[KeyOf(known.id)];
      entry.known = &known;
      ++entry.knownCount;
    }
    for (int i = 0; i < copy.Count(); ++i) {
      Entry& entry = entries_[KeyOf(copy.At(i).GetID())];
      entry.place = i;
      ++entry.count;
    }
  }

  // Whether this list of the manager's, one after the other, is one that nobody knew.
  bool IsNew(const CSymbolList& list) {
    Entry& entry = entries_[KeyOf(list.GetID())];
    return ++entry.seen > std::max(entry.knownCount, entry.count);
  }
  // The place of the list in the copy when others changed it and the user did not, else -1.
  int ChangedPlace(const WorkingCopy& copy, CSymbolList& list) {
    const Entry& entry = entries_[KeyOf(list.GetID())];
    const bool isAlone = entry.knownCount == 1 && entry.count == 1;
    return isAlone && !IsAs(list, *entry.known) && IsAs(copy.At(entry.place), *entry.known)
               ? entry.place
               : -1;
  }

private:
  struct Entry {
    const Known* known = nullptr;
    int place = -1;
    int knownCount = 0;
    int count = 0;
    int seen = 0;
  };
  static std::string KeyOf(const CString& id) { return std::string(ViewOf(id)); }

  std::unordered_map<std::string, Entry, NoCaseHash, NoCaseEqual> entries_;
};

bool WorkingCopy::TakeInChanges(CTQSymbolListMgr& manager) {
  if (kind_ == 0)
    return true;
  history_.Clear();
  WorkingCopy now(manager, kind_);
  if (IsUntouched()) {
    const bool same = AreKnown(now.lists_);
    now.keepsSteps_ = keepsSteps_;
    *this = std::move(now);
    return same;
  }
  Changes changes(*this);
  Lists fresh;
  for (auto& list : now.lists_) {
    const int place = changes.ChangedPlace(*this, *list);
    if (changes.IsNew(*list))
      fresh.push_back(std::move(list));
    else if (place >= 0)
      Replace(place, std::move(list));
  }
  kept_ = static_cast<int>(fresh.size());
  std::move(fresh.begin(), fresh.end(), std::back_inserter(lists_));
  TakeInDefault(now);
  return true;
}

void WorkingCopy::ReportKept() {
  if (kept_ > 0)
    LogLine(kLogChange, "Lists added while others were edited, kept: %d", kept_);
  kept_ = 0;
}

void WorkingCopy::TakeInDefault(const WorkingCopy& now) {
  if (now.defaultIndex_ == knownDefault_ || DefaultId() != knownDefaultId_)
    return;
  const int place = Find(now.knownDefaultId_);
  if (place >= 0)
    defaultIndex_ = place;
}

int WorkingCopy::Find(const char* id) const {
  for (int i = 0; i < Count(); ++i) {
    if (At(i).IsSameID(id))
      return i;
  }
  return -1;
}

void WorkingCopy::Clear() {
  lists_.clear();
  history_.Clear();
}

CPtrArray WorkingCopy::Pointers() const {
  CPtrArray pointers;
  for (const auto& list : lists_)
    pointers.Add(list.get());
  return pointers;
}

bool WorkingCopy::HasName(const CString& name, int except) const {
  for (int i = 0; i < Count(); ++i) {
    if (i != except && At(i).GetName() == name)
      return true;
  }
  return false;
}

int WorkingCopy::Add(std::unique_ptr<CSymbolList> list, int selected) {
  const int defaultBefore = defaultIndex_;
  lists_.push_back(std::move(list));
  const int index = Count() - 1;
  if (index == 0)
    defaultIndex_ = 0;
  Keep(Listed{index, nullptr}, defaultBefore, selected, index);
  return index;
}

void WorkingCopy::Replace(int index, std::unique_ptr<CSymbolList> list) {
  const std::unique_ptr<CSymbolList> before =
      std::exchange(lists_[static_cast<std::size_t>(index)], std::move(list));
  if (!keepsSteps_)
    return;
  Edited edit = EditOf(index, *before, At(index));
  if (!edit.ids.IsNone() || edit.name != At(index).GetName())
    Keep(std::move(edit), defaultIndex_, index, index);
}

void WorkingCopy::Rename(int index, const CString& name) {
  CSymbolList& list = At(index);
  const CString before = list.GetName();
  list.SetName(name);
  if (list.GetName() != before)
    Keep(Edited{index, before, {}}, defaultIndex_, index, index);
}

void WorkingCopy::MakeDefault(int index) {
  const int before = std::exchange(defaultIndex_, index);
  if (before != index)
    Keep(Marked{}, before, index, index);
}

int WorkingCopy::Remove(int index, DefaultRule rule) {
  const int defaultBefore = defaultIndex_;
  std::unique_ptr<CSymbolList> removed = Take(index);
  const int selected = std::min(index, Count() - 1);
  if (index == defaultIndex_ && rule == DefaultRule::StaysInPlace)
    defaultIndex_ = selected;
  else if (index <= defaultIndex_)
    --defaultIndex_;
  Keep(Listed{index, std::move(removed)}, defaultBefore, index, selected);
  return selected;
}

int WorkingCopy::Swap(int index, int neighbour) {
  if (!Has(index) || !Has(neighbour))
    return -1;
  const int defaultBefore = defaultIndex_;
  std::swap(lists_[static_cast<std::size_t>(index)], lists_[static_cast<std::size_t>(neighbour)]);
  if (defaultIndex_ == index)
    defaultIndex_ = neighbour;
  else if (defaultIndex_ == neighbour)
    defaultIndex_ = index;
  Keep(Swapped{index, neighbour}, defaultBefore, index, neighbour);
  return neighbour;
}

} // namespace tq
