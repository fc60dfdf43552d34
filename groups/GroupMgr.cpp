#include "groups/GroupMgr.h"

#include "groups/GroupLoader.h"

CGroupMgr::CGroupMgr(int type) : type_(type), subIndex_(groups_) {}

CGroupMgr::~CGroupMgr() = default;

void CGroupMgr::Empty() {
  groups_.Clear();
  arena_.Clear();
  subIndex_.Drop();
}

int CGroupMgr::Load() {
  Empty();
  return tq::GroupLoader(arena_).Load(type_, groups_) ? 1 : 0;
}

CGroupList* CGroupMgr::GetAt(int index) {
  return groups_.Has(index) ? groups_.ListAt(index) : nullptr;
}

CGroupList* CGroupMgr::Find(const char* id) {
  return GetAt(groups_.Find(id));
}

bool CGroupMgr::FindSubPlace(const tq::FoldedId& id, tq::SubGroupPlace& place) {
  return subIndex_.Find(id, place, [](const tq::SubGroupPlace&) { return true; });
}

CGroupList* CGroupMgr::SubAt(const tq::SubGroupPlace& place) {
  return groups_.SubsAt(place.group)->ListAt(place.sub);
}

CGroupList* CGroupMgr::FindAnywhere(std::string_view id) {
  tq::FoldedId folded;
  if (!tq::FoldId(id, folded))
    return nullptr;
  const int group = groups_.Find(folded);
  tq::SubGroupPlace place = {};
  if (FindSubPlace(folded, place) && (group < 0 || place.group < group))
    return SubAt(place);
  return GetAt(group);
}

CGroupList* CGroupMgr::FindSub(std::string_view id) {
  tq::FoldedId folded;
  tq::SubGroupPlace place = {};
  return tq::FoldId(id, folded) && FindSubPlace(folded, place) ? SubAt(place) : nullptr;
}

const GroupInfo* CGroupMgr::FindSubExactly(std::string_view id) {
  tq::FoldedId folded;
  if (!tq::FoldId(id, folded))
    return nullptr;
  const auto infoAt = [this](const tq::SubGroupPlace& at) -> const GroupInfo& {
    return groups_.SubsAt(at.group)->InfoAt(at.sub);
  };
  tq::SubGroupPlace place = {};
  const auto same = [&](const tq::SubGroupPlace& at) { return id == infoAt(at).szID; };
  return subIndex_.Find(folded, place, same) ? &infoAt(place) : nullptr;
}
