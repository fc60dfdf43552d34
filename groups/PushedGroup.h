// Groups as they are built from what the terminal pushes.
#pragma once

#include "groups/GroupLevel.h"
#include "groups/GroupSet.h"

namespace tq {

inline GroupInfo BuildSubGroup(int type, const std::pair<CString, CString>& pair) {
  return MakeGroupInfo(type, pair.first, pair.second, false);
}

inline GroupInfo BuildGroup(const CGroupSet& set) {
  return MakeGroupInfo(set.type, set.id, set.name, !set.subGroups.empty());
}

// A sub-group for each pair, which have none of their own; null without pairs.
inline std::unique_ptr<GroupLevel> BuildSubGroups(const CGroupSet& set) {
  if (set.subGroups.empty())
    return nullptr;
  auto subs = std::make_unique<GroupLevel>();
  for (const auto& pair : set.subGroups)
    subs->Append(BuildSubGroup(set.type, pair));
  return subs;
}

} // namespace tq
