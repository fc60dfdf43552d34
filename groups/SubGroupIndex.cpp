#include "groups/SubGroupIndex.h"

namespace tq {

void SubGroupIndex::Drop() {
  index_.reset();
  places_.clear();
  searches_ = 0;
}

const GroupIdIndex& SubGroupIndex::Index() {
  if (index_ != nullptr)
    return *index_;
  places_.clear();
  for (int group = 0; group < groups_.Count(); ++group) {
    for (int sub = 0; sub < groups_.SubCountAt(group); ++sub)
      places_.push_back({group, sub});
  }
  index_ = std::make_unique<GroupIdIndex>();
  index_->Build(places_.size(), [this](std::size_t number) {
    const SubGroupPlace& place = places_[number];
    return groups_.SubIdAt(place.group, place.sub);
  });
  return *index_;
}

} // namespace tq
