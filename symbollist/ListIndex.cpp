#include "symbollist/ListIndex.h"

#include <algorithm>

namespace tq {

bool ListIndex::IsBefore(const CSymbolList* left, const CSymbolList* right) {
  return left->order_ < right->order_;
}

void ListIndex::Add(CSymbolList& list, long long order) noexcept {
  list.follower_ = this;
  list.order_ = order;
  EnterId(list);
  EnterName(list);
}

void ListIndex::Remove(CSymbolList& list) {
  ForgetId(list);
  ForgetName(list);
  list.follower_ = nullptr;
}

void ListIndex::Clear() {
  for (const auto& [id, lists] : ids_) {
    for (CSymbolList* list : lists)
      list->follower_ = nullptr;
  }
  ids_.clear();
  names_.clear();
  first_ = last_ = 0;
}

std::size_t ListIndex::LargestBucket() const {
  std::size_t largest = 0;
  for (const Map* map : {&ids_, &names_}) {
    for (std::size_t bucket = 0; bucket < map->bucket_count(); ++bucket)
      largest = std::max(largest, map->bucket_size(bucket));
  }
  return largest;
}

CSymbolList* ListIndex::FindById(std::string_view id) const {
  const Lists& lists = WithId(id);
  return lists.empty() ? nullptr : lists.front();
}

const ListIndex::Lists& ListIndex::Under(const Map& map, std::string_view text) {
  static const Lists none;
  const auto found = map.find(text);
  return found == map.end() ? none : found->second;
}

void ListIndex::Enter(Map& map, const char* text, CSymbolList& list) {
  Lists& lists = map[text];
  lists.insert(std::upper_bound(lists.begin(), lists.end(), &list, IsBefore), &list);
}

void ListIndex::Forget(Map& map, const char* text, const CSymbolList& list) {
  const auto found = map.find(std::string_view(text));
  Lists& lists = found->second;
  lists.erase(std::lower_bound(lists.begin(), lists.end(), &list, IsBefore));
  if (lists.empty())
    map.erase(found);
}

void ListIndex::ForgetId(CSymbolList& list) {
  Forget(ids_, list.info_.ID, list);
}

void ListIndex::EnterId(CSymbolList& list) noexcept {
  Enter(ids_, list.info_.ID, list);
}

void ListIndex::ForgetName(CSymbolList& list) {
  Forget(names_, list.info_.Name, list);
}

void ListIndex::EnterName(CSymbolList& list) noexcept {
  Enter(names_, list.info_.Name, list);
}

} // namespace tq
