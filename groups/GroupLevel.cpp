#include "groups/GroupLevel.h"

#include <algorithm>
#include <utility>

namespace tq {
namespace {

// A level this small is searched plainly: that touches no more memory than an index would.
constexpr int kSmallLevel = 16;

} // namespace

const GroupParts* GroupLevel::PartsAt(int index) const {
  return parts_.empty() ? nullptr : &parts_[Place(index)];
}

GroupParts& GroupLevel::MakePartsAt(int index) {
  if (parts_.empty())
    parts_.resize(records_.size());
  return parts_[Place(index)];
}

const GroupInfo& GroupLevel::InfoAt(int index) const {
  const GroupParts* const parts = PartsAt(index);
  return parts != nullptr && parts->list != nullptr ? parts->list->GetInfo()
                                                    : records_[Place(index)];
}

CGroupList* GroupLevel::ListAt(int index) {
  GroupParts& parts = MakePartsAt(index);
  if (parts.list == nullptr) {
    SubsAt(index);
    parts.list = std::make_shared<CGroupList>(records_[Place(index)], std::move(parts.subs));
  }
  return parts.list.get();
}

// The level of the sub-groups as far as there is one.
const GroupLevel* GroupLevel::KnownSubsAt(int index) const {
  const GroupParts* const parts = PartsAt(index);
  if (parts == nullptr)
    return nullptr;
  return parts->list != nullptr ? parts->list->Subs() : parts->subs.get();
}

GroupLevel* GroupLevel::SubsAt(int index) {
  if (parts_.empty())
    return nullptr;
  GroupParts& parts = parts_[Place(index)];
  if (parts.list != nullptr)
    return parts.list->Subs();
  if (parts.subs == nullptr && !parts.arrived.empty()) {
    parts.subs = std::make_unique<GroupLevel>();
    parts.subs->Adopt(std::exchange(parts.arrived, {}));
  }
  return parts.subs.get();
}

GroupLevel& GroupLevel::MakeSubsAt(int index) {
  GroupParts& parts = MakePartsAt(index);
  if (parts.list != nullptr)
    return parts.list->MakeSubs();
  if (GroupLevel* const subs = SubsAt(index))
    return *subs;
  parts.subs = std::make_unique<GroupLevel>();
  return *parts.subs;
}

int GroupLevel::SubCountAt(int index) const {
  if (const GroupLevel* const subs = KnownSubsAt(index))
    return subs->Count();
  const GroupParts* const parts = PartsAt(index);
  return parts == nullptr ? 0 : static_cast<int>(parts->arrived.size());
}

FoldedId GroupLevel::SubIdAt(int index, int sub) const {
  const GroupLevel* const subs = KnownSubsAt(index);
  return subs != nullptr ? subs->IdAt(sub) : FoldedIdOf(PartsAt(index)->arrived[Place(sub)]);
}

void GroupLevel::SetNameAt(int index, const char* name) {
  const GroupParts* const parts = PartsAt(index);
  if (parts != nullptr && parts->list != nullptr)
    parts->list->SetName(name);
  else
    SetGroupName(OwnRecords()[Place(index)], name);
}

int GroupLevel::Find(const FoldedId& id) {
  if (index_ == nullptr && (Count() <= kSmallLevel || ++searches_ <= kPlainSearches))
    return FindPlainly(id);
  const std::uint32_t number = Index().Find(id);
  return number == GroupIdIndex::kNone ? -1 : static_cast<int>(number);
}

int GroupLevel::Find(const char* id) {
  FoldedId folded;
  return FoldId(TextView(id), folded) ? Find(folded) : -1;
}

int GroupLevel::FindPlainly(const FoldedId& id) const {
  for (int i = 0; i < Count(); ++i) {
    if (IdAt(i) == id)
      return i;
  }
  return -1;
}

GroupIdIndex& GroupLevel::Index() {
  if (index_ == nullptr) {
    index_ = std::make_unique<GroupIdIndex>();
    index_->Build(records_.size(), [this](std::size_t i) { return FoldedIdOf(records_[i]); });
  }
  return *index_;
}

void GroupLevel::DropIndex() {
  index_.reset();
  searches_ = 0;
}

void GroupLevel::Clear() {
  records_ = {};
  own_.clear();
  parts_.clear();
  DropIndex();
}

void GroupLevel::Adopt(std::span<const GroupInfo> records) {
  Clear();
  records_ = records;
}

void GroupLevel::AdoptSubsAt(int index, std::span<const GroupInfo> records) {
  if (!records.empty())
    MakePartsAt(index).arrived = records;
}

} // namespace tq
