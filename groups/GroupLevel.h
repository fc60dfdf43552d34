// One level of the tree of groups: the groups of a type, or the sub-groups of a group, in order.
//
// A full load brings tens of thousands of groups of which the terminal shows a few. So a level is,
// to begin with, nothing but the service's records, which lie in the type's arena. What is more is
// made for those groups that somebody asks for: a level of their sub-groups, and a CGroupList,
// which is what a handle is. A CGroupList is the truth about its group from then on: it has the
// group's name, its members, and the level of its sub-groups, which goes over to it.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "groups/GroupIdIndex.h"
#include "groups/GroupList.h"

namespace tq {

class GroupLevel;

// What a group has besides its record.
struct GroupParts {
  GroupParts() = default;
  GroupParts(GroupParts&&) noexcept;
  GroupParts& operator=(GroupParts&&) noexcept;
  ~GroupParts();

  std::shared_ptr<CGroupList> list;   // null until somebody asks for it; see KeepAlive
  std::unique_ptr<GroupLevel> subs;   // null until somebody asks, and once there is a CGroupList
  std::span<const GroupInfo> arrived; // the sub-groups as long as neither of these is there
};

class GroupLevel {
public:
  GroupLevel() = default;
  GroupLevel(const GroupLevel&) = delete;
  GroupLevel& operator=(const GroupLevel&) = delete;

  int Count() const { return static_cast<int>(records_.size()); }
  bool Has(int index) const { return index >= 0 && index < Count(); }

  // Of a group that is there. The record is good until the level changes.
  const GroupInfo& InfoAt(int index) const;
  FoldedId IdAt(int index) const { return FoldedIdOf(records_[Place(index)]); }
  // Made when it is first asked for, and good until this group is replaced or removed.
  CGroupList* ListAt(int index);
  // The level of its sub-groups; null when it has none.
  GroupLevel* SubsAt(int index);
  // Gives it one when it has none.
  GroupLevel& MakeSubsAt(int index);
  // About the sub-groups without making their level.
  int SubCountAt(int index) const;
  FoldedId SubIdAt(int index, int sub) const;
  void SetNameAt(int index, const char* name);

  // The first group with that id, or -1. Letter case is ignored.
  int Find(const FoldedId& id);
  int Find(const char* id);

  void Clear();
  // Puts in records that stay where they are as long as the level lives; and sub-groups of one
  // group.
  void Adopt(std::span<const GroupInfo> records);
  void AdoptSubsAt(int index, std::span<const GroupInfo> records);
  void Append(const GroupInfo& record, std::unique_ptr<GroupLevel> subs = nullptr);
  // Puts a group of the same id, but for letter case, into the place of one.
  void ReplaceAt(int index, const GroupInfo& record, std::unique_ptr<GroupLevel> subs = nullptr);
  // For each id in turn removes the first group that has it. Returns whether there was any.
  bool RemoveFirsts(std::span<const FoldedId> ids);

private:
  static std::size_t Place(int index) { return static_cast<std::size_t>(index); }
  const GroupParts* PartsAt(int index) const;
  const GroupLevel* KnownSubsAt(int index) const;
  std::vector<GroupInfo>& OwnRecords();
  GroupParts& MakePartsAt(int index);
  void SetSubs(int index, std::unique_ptr<GroupLevel> subs);
  GroupIdIndex& Index();
  int FindPlainly(const FoldedId& id) const;
  void RemoveAt(int index);
  void RemoveMarked(const std::vector<bool>& marked);
  void DropIndex();

  std::span<const GroupInfo> records_;  // of a group with a CGroupList only the id still counts
  std::vector<GroupInfo> own_;          // what records_ shows once they were changed
  std::vector<GroupParts> parts_;       // one for each record, or none while no group has any
  std::unique_ptr<GroupIdIndex> index_; // null until it pays
  int searches_ = 0;                    // plain ones since it was dropped
};

inline GroupParts::GroupParts(GroupParts&&) noexcept = default;
inline GroupParts& GroupParts::operator=(GroupParts&&) noexcept = default;
inline GroupParts::~GroupParts() = default;

} // namespace tq
