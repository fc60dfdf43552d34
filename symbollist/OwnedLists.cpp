#include "symbollist/OwnedLists.h"

#include <algorithm>
#include <utility>

#include "idlist/StorableText.h"
#include "platform/Text.h"
#include "platform/interface/TQSymbolNames.h"
#include "symbollist/ListIds.h"

namespace tq {

bool OwnedLists::HasName(const CString& name, int skip) const {
  const ListIndex::Lists& lists = index_.WithName(ViewOf(name));
  const CSymbolList* const skipped = At(skip);
  if (lists.empty() || skipped == nullptr)
    return !lists.empty();
  return lists.size() > 1 || lists.front() != skipped;
}

bool OwnedLists::HasIdAndName(const CString& id, const CString& name) const {
  const ListIndex::Lists& lists = index_.WithId(ViewOf(id));
  return std::any_of(lists.begin(), lists.end(),
                     [&name](const CSymbolList* list) { return list->GetName() == name; });
}

bool OwnedLists::Has(const CSymbolList* list, int position) const {
  return At(position) == list || std::any_of(lists_.begin(), lists_.end(),
                                             [=](const auto& each) { return each.get() == list; });
}

int OwnedLists::PositionOf(const CSymbolList* list) const {
  const auto found = std::lower_bound(lists_.begin(), lists_.end(), list,
                                      [](const auto& each, const CSymbolList* one) {
                                        return ListIndex::IsBefore(each.get(), one);
                                      });
  return static_cast<int>(found - lists_.begin());
}

int OwnedLists::ProblemsOfNewId(const CString& id) const {
  int problems = 0;
  if (Find(id) != nullptr)
    problems |= TQIdTaken;
  if (id.GetLength() > kListIdLimit)
    problems |= TQIdTooLong;
  if (!IsLoadable(ViewOf(id)))
    problems |= TQIdUnloadable;
  return problems;
}

bool OwnedLists::HaveNamesAndContentsOf(const CPtrArray& copy) const {
  return std::equal(lists_.begin(), lists_.end(), copy.begin(), copy.end(),
                    [](const auto& list, void* each) {
                      auto* const other = static_cast<CSymbolList*>(each);
                      return other != nullptr && other->GetName() == list->GetName() &&
                             other->GetIDs() == list->GetIDs();
                    });
}

void OwnedLists::AppendCopies(CPtrArray& out) const {
  for (const auto& list : lists_)
    out.Add(std::make_unique<CSymbolList>(*list).release());
}

void OwnedLists::AddLast(std::unique_ptr<CSymbolList> list) noexcept {
  index_.AddLast(*list);
  lists_.push_back(std::move(list));
  ++changes_;
}

void OwnedLists::AddFirst(std::unique_ptr<CSymbolList> list) noexcept {
  index_.AddFirst(*list);
  lists_.insert(lists_.begin(), std::move(list));
  ++changes_;
}

int OwnedLists::AddResolved(const CString& id, const CString& name,
                            const std::function<bool()>& allowed,
                            const std::function<void(CSymbolList&)>& resolve) {
  if (!allowed())
    return 0;
  const CString listId = IdOfNewList(id);
  if (listId.IsEmpty())
    return 0;
  const unsigned changes = changes_;
  auto list = std::make_unique<CSymbolList>();
  resolve(*list);
  if (changes != changes_ && !allowed())
    return 0;
  list->SetID(listId);
  list->SetName(name);
  AddLast(std::move(list));
  return 1;
}

void OwnedLists::Delete(CSymbolList* list) {
  lists_.erase(lists_.begin() + PositionOf(list));
  ++changes_;
}

void OwnedLists::Replace(ListVector lists) noexcept {
  Destroy();
  lists_ = std::move(lists);
  for (const auto& list : lists_)
    index_.AddLast(*list);
}

void OwnedLists::Destroy() {
  index_.Clear();
  lists_.clear();
  ++changes_;
}

} // namespace tq
