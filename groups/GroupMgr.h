// The groups of one type.
#pragma once

#include "groups/GroupArena.h"
#include "groups/GroupLevel.h"
#include "groups/GroupList.h"
#include "groups/SubGroupIndex.h"

class CGroupMgr {
public:
  explicit CGroupMgr(int type);
  CGroupMgr(const CGroupMgr&) = delete;
  virtual ~CGroupMgr();

  // Reads the groups and their sub-groups from the service. 0, and no groups, when it fails.
  virtual int Load();
  // Frees all groups.
  void Empty();

  int GetType() const { return type_; }
  // The top-level groups, in order. Null for an index out of range and for an id that none has.
  int GetCount() const { return groups_.Count(); }
  CGroupList* GetAt(int index);
  CGroupList* Find(const char* id);

  // The first group with that id, each top-level group in front of its sub-groups; null when there
  // is none.
  CGroupList* FindAnywhere(std::string_view id);
  // The first sub-group with that id, or null. Top-level groups are not looked at.
  CGroupList* FindSub(std::string_view id);
  // The record of the first sub-group with exactly that id, letter case included; null when there
  // is none. Good until groups change.
  const GroupInfo* FindSubExactly(std::string_view id);

  // The level of the top-level groups. Who adds, removes or moves sub-groups says so.
  tq::GroupLevel& Groups() { return groups_; }
  void SubGroupsChanged() { subIndex_.Drop(); }

private:
  bool FindSubPlace(const tq::FoldedId& id, tq::SubGroupPlace& place);
  CGroupList* SubAt(const tq::SubGroupPlace& place);

  int type_;
  tq::GroupArena arena_; // of the records that the service handed out
  tq::GroupLevel groups_;
  tq::SubGroupIndex subIndex_; // over groups_
};
