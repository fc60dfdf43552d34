// One level of the tree of groups: the groups of a type, or the sub-groups of a group, in order.
//
// A full load brings tens of thousands of groups of which the terminal shows a few. So a group is
// a plain record at first, and its CGroupList, which is what a handle is, is made lazily. From then
// on the CGroupList owns the group's name, members and sub-groups, and of the record only the id
// counts.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "groups/GroupId.h"
#include "groups/GroupList.h"

namespace tq {

class GroupLevel {
public:
  GroupLevel() = default;
  GroupLevel(const GroupLevel&) = delete;
  GroupLevel& operator=(const GroupLevel&) = delete;

  int Count() const { return static_cast<int>(records_.size()); }
  bool Has(int index) const { return index >= 0 && index < Count(); }

  // --- One group ---------------------------------------------------------------------------------
  // `index` must be in range: see Has.

  // Valid until the level changes.
  const GroupInfo& InfoAt(int index) const {
    const CGroupList* const list = KnownListAt(index);
    return list != nullptr ? list->GetInfo() : records_[Place(index)];
  }
  FoldedId IdAt(int index) const { return FoldedIdOf(records_[Place(index)]); }
  // Made by the first call, and valid until this group is replaced or removed.
  CGroupList* ListAt(int index);
  // The level of its sub-groups; null, or empty, when it has none.
  GroupLevel* SubsAt(int index) const;
  // The same, made when there is none.
  GroupLevel& MakeSubsAt(int index);
  int SubCountAt(int index) const;
  void SetNameAt(int index, const char* name);

  // Whether it is a list of this level, or of one below. Looks at every group.
  bool Holds(const CGroupList* list) const;
  // The index of the first group with that id, ignoring letter case, or -1.
  int Find(const FoldedId& id);
  int Find(const char* id);

  // --- All groups --------------------------------------------------------------------------------

  void Clear();
  // Replaces all groups by those of the service, whose texts may lack a NUL. Returns whether one of
  // them says that it has sub-groups.
  bool Assign(std::span<const GroupInfo> records);
  void Append(const GroupInfo& record, std::unique_ptr<GroupLevel> subs = nullptr);
  // The id must be that of the old record, letter case aside.
  void ReplaceAt(int index, const GroupInfo& record, std::unique_ptr<GroupLevel> subs = nullptr);
  // For each id in turn removes the first group that has it. Returns whether there was any.
  bool RemoveFirsts(std::span<const FoldedId> ids);

private:
  // What a group may have besides its record.
  struct Parts {
    std::unique_ptr<GroupLevel> subs; // owned by the list once there is one
    std::shared_ptr<CGroupList> list; // made lazily; shared for KeepAlive only
  };

  static std::size_t Place(int index) { return static_cast<std::size_t>(index); }
  // Null while it is not made.
  CGroupList* KnownListAt(int index) const {
    return parts_.empty() ? nullptr : parts_[Place(index)].list.get();
  }
  Parts& MakePartsAt(int index);
  int Scan(const FoldedId& id) const;
  void BuildIndex();
  void Move(std::size_t from, std::size_t to);

  std::vector<GroupInfo> records_;
  std::vector<Parts> parts_;             // one for each record; empty while no group has any
  std::unique_ptr<MapById<int>> firsts_; // the first group of each id, built lazily
};

} // namespace tq
