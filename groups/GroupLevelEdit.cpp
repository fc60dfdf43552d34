// What changes a level after it was loaded.
#include "groups/GroupLevel.h"

#include <utility>

namespace tq {

// The records for changing them. Who changes their number or moves them sets records_ anew.
std::vector<GroupInfo>& GroupLevel::OwnRecords() {
  if (records_.data() != own_.data()) {
    own_.assign(records_.begin(), records_.end());
    records_ = own_;
  }
  return own_;
}

void GroupLevel::SetSubs(int index, std::unique_ptr<GroupLevel> subs) {
  if (subs != nullptr)
    MakePartsAt(index).subs = std::move(subs);
}

void GroupLevel::Append(const GroupInfo& record, std::unique_ptr<GroupLevel> subs) {
  if (index_ != nullptr)
    index_->Append(FoldedIdOf(record));
  OwnRecords().push_back(record);
  records_ = own_;
  if (!parts_.empty())
    parts_.emplace_back();
  SetSubs(Count() - 1, std::move(subs));
}

void GroupLevel::ReplaceAt(int index, const GroupInfo& record, std::unique_ptr<GroupLevel> subs) {
  OwnRecords()[Place(index)] = record;
  if (!parts_.empty())
    parts_[Place(index)] = GroupParts();
  SetSubs(index, std::move(subs));
}

void GroupLevel::RemoveAt(int index) {
  OwnRecords().erase(own_.begin() + index);
  records_ = own_;
  if (!parts_.empty())
    parts_.erase(parts_.begin() + index);
  DropIndex();
}

void GroupLevel::RemoveMarked(const std::vector<bool>& marked) {
  std::vector<GroupInfo>& records = OwnRecords();
  std::size_t kept = 0;
  for (std::size_t i = 0; i < marked.size(); ++i) {
    if (marked[i])
      continue;
    records[kept] = records[i];
    if (!parts_.empty() && kept != i)
      parts_[kept] = std::move(parts_[i]);
    ++kept;
  }
  records.resize(kept);
  records_ = records;
  if (!parts_.empty())
    parts_.resize(kept);
  DropIndex();
}

bool GroupLevel::RemoveFirsts(std::span<const FoldedId> ids) {
  if (ids.size() == 1) {
    const int at = Find(ids.front());
    if (at >= 0)
      RemoveAt(at);
    return at >= 0;
  }
  // Taken out of the index one by one, and out of the arrays in one go at the end.
  std::vector<bool> marked(records_.size());
  bool any = false;
  for (const FoldedId& id : ids) {
    const std::uint32_t first = Index().Find(id);
    if (first == GroupIdIndex::kNone)
      continue;
    Index().RemoveFirst(first);
    marked[first] = any = true;
  }
  if (any)
    RemoveMarked(marked);
  return any;
}

} // namespace tq
