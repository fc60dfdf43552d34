// The sub-groups of all groups of a type by their ids.
#pragma once

#include <memory>
#include <vector>

#include "groups/GroupIdIndex.h"
#include "groups/GroupLevel.h"

namespace tq {

// Where a sub-group is: the position of its group among those of the type, and its own among that
// group's sub-groups.
struct SubGroupPlace {
  int group;
  int sub;
};

class SubGroupIndex {
public:
  // Finds the sub-groups of these groups, which outlive the index.
  explicit SubGroupIndex(GroupLevel& groups) : groups_(groups) {}

  // To be told when sub-groups came, went or moved; one that is replaced by another of its id is
  // none of these.
  void Drop();

  // The first sub-group with that id, group by group, of which `wanted` approves; false when there
  // is none. Letter case is ignored.
  template <typename Wanted> bool Find(const FoldedId& id, SubGroupPlace& place, Wanted wanted) {
    if (index_ == nullptr && ++searches_ <= kPlainSearches)
      return FindPlainly(id, place, wanted);
    const GroupIdIndex& index = Index();
    std::uint32_t number = index.Find(id);
    while (number != GroupIdIndex::kNone && !wanted(places_[number]))
      number = index.Next(number);
    if (number == GroupIdIndex::kNone)
      return false;
    place = places_[number];
    return true;
  }

private:
  const GroupIdIndex& Index();

  template <typename Wanted>
  bool FindPlainly(const FoldedId& id, SubGroupPlace& place, Wanted wanted) const {
    for (int group = 0; group < groups_.Count(); ++group) {
      const int count = groups_.SubCountAt(group);
      for (int sub = 0; sub < count; ++sub) {
        place = {group, sub};
        if (groups_.SubIdAt(group, sub) == id && wanted(place))
          return true;
      }
    }
    return false;
  }

  GroupLevel& groups_;
  std::vector<SubGroupPlace> places_;
  std::unique_ptr<GroupIdIndex> index_; // null until it pays
  int searches_ = 0;                    // plain ones since it was dropped
};

} // namespace tq
