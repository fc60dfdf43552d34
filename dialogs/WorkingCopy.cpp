#include "dialogs/WorkingCopy.h"

#include <algorithm>
#include <utility>

#include "manager/TQSymbolListMgr.h"
#include "platform/LibraryString.h"

namespace tq {

CString DisplayName(const CSymbolList& list) {
  return list.GetFlag() != 0 ? list.GetName() + LibraryString(kStringSystemList) : list.GetName();
}

WorkingCopy::WorkingCopy(CTQSymbolListMgr& manager, int kind) {
  CPtrArray copies;
  manager.GetSymbolList(copies, kind);
  for (int i = 0; i < copies.GetSize(); ++i)
    lists_.emplace_back(static_cast<CSymbolList*>(copies[i]));
  manager.GetDefaultListIdx(defaultIndex_);
}

int WorkingCopy::Find(const char* id) const {
  for (int i = 0; i < Count(); ++i) {
    if (At(i).IsSameID(id))
      return i;
  }
  return -1;
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

int WorkingCopy::Add(std::unique_ptr<CSymbolList> list) {
  lists_.push_back(std::move(list));
  if (Count() == 1)
    defaultIndex_ = 0;
  return Count() - 1;
}

void WorkingCopy::Replace(int index, std::unique_ptr<CSymbolList> list) {
  lists_[static_cast<std::size_t>(index)] = std::move(list);
}

int WorkingCopy::Remove(int index, DefaultRule rule) {
  lists_.erase(lists_.begin() + index);
  const int selected = std::min(index, Count() - 1);
  if (index == defaultIndex_ && rule == DefaultRule::StaysInPlace)
    defaultIndex_ = selected;
  else if (index <= defaultIndex_)
    --defaultIndex_;
  return selected;
}

int WorkingCopy::Swap(int index, int neighbour) {
  if (index < 0 || index >= Count() || neighbour < 0 || neighbour >= Count())
    return -1;
  std::swap(lists_[static_cast<std::size_t>(index)], lists_[static_cast<std::size_t>(neighbour)]);
  if (defaultIndex_ == index)
    defaultIndex_ = neighbour;
  else if (defaultIndex_ == neighbour)
    defaultIndex_ = index;
  return neighbour;
}

} // namespace tq
