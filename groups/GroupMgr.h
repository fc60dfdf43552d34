// The groups of one type.
#pragma once

#include <optional>

#include "groups/GroupLevel.h"
#include "groups/GroupList.h"

class CGroupMgr {
public:
  explicit CGroupMgr(int type);
  CGroupMgr(const CGroupMgr&) = delete;
  virtual ~CGroupMgr();

  // Reads the groups and their sub-groups from the service. 0, and no groups, when it fails.
  virtual int Load();
  // Frees all groups.
  void Empty();

  // Whether the service failed at the latest load.
  bool HasFailed() const { return failed_; }

  int GetType() const { return type_; }
  // The top-level groups, in order. Null for an index out of range and for an unknown id.
  int GetCount() const { return groups_.Count(); }
  CGroupList* GetAt(int index);
  CGroupList* Find(const char* id);

  // The first group with that id, searching each top-level group before its sub-groups; null when
  // there is none.
  CGroupList* FindAnywhere(std::string_view id);
  // The first sub-group with that id, or null. Top-level groups are not looked at.
  CGroupList* FindSub(std::string_view id);
  // The record of the first sub-group with exactly that id, letter case included; null when there
  // is none. Valid until groups change.
  const GroupInfo* FindSubExactly(std::string_view id);

  // The top-level groups. Use EditGroups to add or remove groups or sub-groups: it drops the index
  // of sub-groups.
  tq::GroupLevel& Groups() { return groups_; }
  tq::GroupLevel& EditGroups();

private:
  struct SubPlace {
    tq::FoldedId id;
    int group;
    int sub; // among the sub-groups of that group
  };

  std::span<const SubPlace> SubsWithId(const tq::FoldedId& id);
  void BuildSubIndex();
  const GroupInfo& InfoAt(const SubPlace& place) const;
  CGroupList* ListAt(const SubPlace& place);

  int type_;
  bool failed_ = false;
  tq::GroupLevel groups_;
  // Sorted by id, those of one id in their order; built lazily. A sorted array of a hundred
  // thousand ids is built and dropped in a tenth of the time that a hash table takes.
  std::optional<std::vector<SubPlace>> subIndex_;
};
