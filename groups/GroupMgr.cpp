#include "groups/GroupMgr.h"

#include <algorithm>

#include "groups/GroupLoader.h"

namespace {

// Any order will do that keeps equal ids together.
bool IsBefore(const tq::FoldedId& left, const tq::FoldedId& right) {
  return left.low != right.low ? left.low < right.low : left.high < right.high;
}

} // namespace

CGroupMgr::CGroupMgr(int type) : type_(type) {}

CGroupMgr::~CGroupMgr() = default;

void CGroupMgr::Empty() {
  EditGroups().Clear();
}

int CGroupMgr::Load() {
  Empty();
  failed_ = !tq::GroupLoader().Load(type_, groups_);
  return failed_ ? 0 : 1;
}

tq::GroupLevel& CGroupMgr::EditGroups() {
  subIndex_.reset();
  return groups_;
}

CGroupList* CGroupMgr::GetAt(int index) {
  return groups_.Has(index) ? groups_.ListAt(index) : nullptr;
}

CGroupList* CGroupMgr::Find(const char* id) {
  return GetAt(groups_.Find(id));
}

CGroupList* CGroupMgr::FindAnywhere(std::string_view id) {
  tq::FoldedId folded;
  if (!tq::FoldId(id, folded))
    return nullptr;
  const int group = groups_.Find(folded);
  const std::span<const SubPlace> subs = SubsWithId(folded);
  const bool isSub = !subs.empty() && (group < 0 || subs.front().group < group);
  return isSub ? ListAt(subs.front()) : GetAt(group);
}

CGroupList* CGroupMgr::FindSub(std::string_view id) {
  tq::FoldedId folded;
  if (!tq::FoldId(id, folded))
    return nullptr;
  const std::span<const SubPlace> subs = SubsWithId(folded);
  return subs.empty() ? nullptr : ListAt(subs.front());
}

const GroupInfo* CGroupMgr::FindSubExactly(std::string_view id) {
  tq::FoldedId folded;
  if (!tq::FoldId(id, folded))
    return nullptr;
  for (const SubPlace& place : SubsWithId(folded)) {
    if (id == InfoAt(place).szID)
      return &InfoAt(place);
  }
  return nullptr;
}

std::span<const CGroupMgr::SubPlace> CGroupMgr::SubsWithId(const tq::FoldedId& id) {
  if (!subIndex_)
    BuildSubIndex();
  const auto first = std::lower_bound(
      subIndex_->begin(), subIndex_->end(), id,
      [](const SubPlace& place, const tq::FoldedId& wanted) { return IsBefore(place.id, wanted); });
  const auto last = std::upper_bound(
      first, subIndex_->end(), id,
      [](const tq::FoldedId& wanted, const SubPlace& place) { return IsBefore(wanted, place.id); });
  return {first, last};
}

void CGroupMgr::BuildSubIndex() {
  std::vector<SubPlace>& index = subIndex_.emplace();
  for (int group = 0; group < groups_.Count(); ++group) {
    const tq::GroupLevel* const subs = groups_.SubsAt(group);
    for (int sub = 0; subs != nullptr && sub < subs->Count(); ++sub)
      index.push_back({subs->IdAt(sub), group, sub});
  }
  std::stable_sort(index.begin(), index.end(), [](const SubPlace& left, const SubPlace& right) {
    return IsBefore(left.id, right.id);
  });
}

const GroupInfo& CGroupMgr::InfoAt(const SubPlace& place) const {
  return groups_.SubsAt(place.group)->InfoAt(place.sub);
}

CGroupList* CGroupMgr::ListAt(const SubPlace& place) {
  return groups_.SubsAt(place.group)->ListAt(place.sub);
}
