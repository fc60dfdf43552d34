#include "groups/GroupLevel.h"

#include <algorithm>
#include <utility>

namespace tq {
namespace {

// So few groups are scanned faster than an index is built.
constexpr int kSmallLevel = 16;

} // namespace

GroupLevel::Parts& GroupLevel::MakePartsAt(int index) {
  if (parts_.empty())
    parts_.resize(records_.size());
  return parts_[Place(index)];
}

CGroupList* GroupLevel::ListAt(int index) {
  Parts& parts = MakePartsAt(index);
  if (parts.list == nullptr)
    parts.list = std::make_shared<CGroupList>(records_[Place(index)], std::move(parts.subs));
  return parts.list.get();
}

GroupLevel* GroupLevel::SubsAt(int index) const {
  if (const CGroupList* const list = KnownListAt(index))
    return list->Subs();
  return parts_.empty() ? nullptr : parts_[Place(index)].subs.get();
}

GroupLevel& GroupLevel::MakeSubsAt(int index) {
  Parts& parts = MakePartsAt(index);
  if (parts.list != nullptr)
    return parts.list->MakeSubs();
  if (parts.subs == nullptr)
    parts.subs = std::make_unique<GroupLevel>();
  return *parts.subs;
}

int GroupLevel::SubCountAt(int index) const {
  const GroupLevel* const subs = SubsAt(index);
  return subs == nullptr ? 0 : subs->Count();
}

void GroupLevel::SetNameAt(int index, const char* name) {
  if (CGroupList* const list = KnownListAt(index))
    list->SetName(name);
  else
    SetGroupName(records_[Place(index)], name);
}

bool GroupLevel::Holds(const CGroupList* list) const {
  for (int i = 0; i < static_cast<int>(parts_.size()); ++i) {
    const GroupLevel* const subs = SubsAt(i);
    if (KnownListAt(i) == list || (subs != nullptr && subs->Holds(list)))
      return true;
  }
  return false;
}

int GroupLevel::Find(const FoldedId& id) {
  if (Count() <= kSmallLevel)
    return Scan(id);
  if (firsts_ == nullptr)
    BuildIndex();
  const auto found = firsts_->find(id);
  return found == firsts_->end() ? -1 : found->second;
}

int GroupLevel::Find(const char* id) {
  FoldedId folded;
  return FoldId(TextView(id), folded) ? Find(folded) : -1;
}

int GroupLevel::Scan(const FoldedId& id) const {
  for (int i = 0; i < Count(); ++i) {
    if (IdAt(i) == id)
      return i;
  }
  return -1;
}

void GroupLevel::BuildIndex() {
  firsts_ = std::make_unique<MapById<int>>(records_.size());
  for (int i = 0; i < Count(); ++i)
    firsts_->try_emplace(IdAt(i), i);
}

void GroupLevel::Clear() {
  records_.clear();
  parts_.clear();
  firsts_.reset();
}

// One pass for both, since a full load spends its time on little else.
bool GroupLevel::Assign(std::span<const GroupInfo> records) {
  Clear();
  records_.assign(records.begin(), records.end());
  int haveSubs = 0;
  for (GroupInfo& record : records_) {
    TerminateTexts(record);
    haveSubs |= record.bHasSubGroup;
  }
  return haveSubs != 0;
}

void GroupLevel::Append(const GroupInfo& record, std::unique_ptr<GroupLevel> subs) {
  if (firsts_ != nullptr)
    firsts_->try_emplace(FoldedIdOf(record), Count());
  records_.push_back(record);
  if (!parts_.empty())
    parts_.emplace_back();
  if (subs != nullptr)
    MakePartsAt(Count() - 1).subs = std::move(subs);
}

void GroupLevel::ReplaceAt(int index, const GroupInfo& record, std::unique_ptr<GroupLevel> subs) {
  records_[Place(index)] = record;
  MakePartsAt(index) = {std::move(subs), nullptr};
}

void GroupLevel::Move(std::size_t from, std::size_t to) {
  records_[to] = records_[from];
  if (!parts_.empty())
    parts_[to] = std::move(parts_[from]);
}

bool GroupLevel::RemoveFirsts(std::span<const FoldedId> ids) {
  MapById<int> wanted; // how many groups of each id are still to be removed
  for (const FoldedId& id : ids)
    ++wanted[id];
  std::size_t kept = 0;
  for (std::size_t i = 0; i < records_.size(); ++i) {
    const auto found = wanted.find(FoldedIdOf(records_[i]));
    if (found != wanted.end() && found->second > 0)
      --found->second;
    else if (const std::size_t to = kept++; to != i)
      Move(i, to);
  }
  if (kept == records_.size())
    return false;
  records_.resize(kept);
  parts_.resize(std::min(kept, parts_.size()));
  firsts_.reset();
  return true;
}

} // namespace tq
