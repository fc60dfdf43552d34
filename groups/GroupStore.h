// The groups of all types, for the manager of symbol lists.
//
// The managers stand in an array, ascending by type, and a map leads from a type to its position.
// Queries go through the map; loading, removing and pushing search the array. Removing a type
// leaves the other entries of the map unchanged, on purpose: terminals use the positions that
// GetGroupIdx gave them until the next full load. So every type behind a removed one answers with
// the groups of the type behind it, and the last one, whose position is past the end, has none.
// Renumbering the map would change the interface.
//
// The terminal is re-entrant whenever the service is asked, that is, while types are loaded and
// members fetched. So a type is loaded outside of the array and then put in, and a group is kept
// alive while its members are fetched (see KeepAlive).
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

#include "groups/GroupMgr.h"
#include "groups/GroupPushes.h"
#include "idlist/ListKind.h"

namespace tq {

class GroupStore {
public:
  // Applies the user's cloud lists to the cloud groups after a load.
  using CloudRefresh = std::function<void(CGroupMgr& manager)>;

  explicit GroupStore(CloudRefresh refresh = nullptr);

  // --- Types -------------------------------------------------------------------------------------
  // All return 1 on success and 0 for a type out of range.

  // Replaces everything by the types 1 to 21, 101 and 201. A type for which the service fails is
  // empty, which counts as success.
  int LoadAll();
  // Types 1 to 201. Adds a type that has no manager. Also 0 when the terminal removes the type
  // while the service is asked.
  int Load(int type);
  // Types 1 to 200. Adds a manager even if the type has one.
  int Add(int type);
  // Load for types 1 to 200, LoadAll for any other: the cloud groups cannot be updated alone.
  int Update(int type);
  // Types 1 to 200. Removes the first manager of the type; 0 when there is none.
  int Remove(int type);
  void Clear();

  // --- Loaded types ------------------------------------------------------------------------------

  // The position in the array according to the map, or -1.
  int IndexOf(int type) const;
  // The manager at that position; null when the type is not in the map or its position is past the
  // end.
  CGroupMgr* Loaded(int type) const;

  int CountGroups(int type, const CGroupList* handle) const;
  int CountGroups(int type, const char* id) const;
  int CopyInfo(int type, const CGroupList* handle, int index, GroupInfo* out) const;
  int CopyInfo(int type, const char* id, int index, GroupInfo* out) const;
  // Whether it is a group's handle that is good now. Looks at every group.
  bool Holds(const CGroupList* handle) const;
  // Null when there is none.
  CGroupList* FindHandle(int type, std::string_view id) const;
  CGroupList* FindSub(int type, std::string_view id) const;
  const GroupInfo* FindSubExactly(int type, std::string_view id) const;
  int CopyIds(CGroupList* handle, CString& ids) const;
  // For types 2, 7 and 8.
  int HoldsText(int type, const CString& groupId, const CString& text) const;

  // --- Pushes ------------------------------------------------------------------------------------

  // Hands each manager the sets of its type, if there are any. 1 when anything changed.
  int Push(const std::vector<CGroupSet>& sets, GroupPush push);

private:
  using Manager = std::unique_ptr<CGroupMgr>;

  bool Has(int type) const { return indexes_.count(type) != 0; }
  std::vector<Manager>::iterator FirstOf(int type);
  Manager MakeLoaded(int type) const;

  CloudRefresh refresh_;
  std::vector<Manager> managers_; // ascending by type
  std::map<int, int> indexes_;    // type to position
};

} // namespace tq
