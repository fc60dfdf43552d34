// The groups of all types, for the manager of symbol lists.
//
// There is an array of managers, one for each type, in ascending order of the types, and a map from
// type to position in it. What asks about a loaded type goes through the map; what loads, removes
// or pushes groups looks at the managers themselves. Removing a type leaves the positions of the
// others in the map as they were, on purpose: terminals rely on the positions that GetGroupIdx told
// them until the next full load. So the types behind a removed one answer for their right
// neighbour, and the last of them, whose position lies behind the array, as one that has no groups.
// Renumbering the map would be a change of the interface.
//
// The terminal may call back whenever the service is asked, which loading and asking for members
// does. So types are loaded aside and then put in, and a group that is asked for members is kept
// alive meanwhile (see KeepAlive).
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
  // Gives the cloud groups, just loaded, what the user's cloud lists say of them.
  using CloudRefresh = std::function<void(CGroupMgr& manager)>;

  explicit GroupStore(CloudRefresh refresh = nullptr);

  // --- Types -------------------------------------------------------------------------------------
  // All return 1 when done and 0 for a type out of their range.

  // Types 1 to 21, 101 and 201, anew. A type that the service fails for is empty; that is no
  // failure.
  int LoadAll();
  // 1 to 201. Adds the type when there is no manager of it. 0 too when the terminal removed the
  // type while the service was asked.
  int Load(int type);
  // 1 to 200. Another manager when there is one of the type.
  int Add(int type);
  // Load for 1 to 200, for anything else LoadAll: the cloud groups cannot be updated alone.
  int Update(int type);
  // 1 to 200: the first manager of the type. 0 when there is none.
  int Remove(int type);
  void Clear();

  // --- Loaded types ------------------------------------------------------------------------------

  // Position in the array, as the map has it, or -1.
  int IndexOf(int type) const;
  // What the map leads to: null for a type that is not in it or whose position lies behind the
  // array.
  CGroupMgr* Loaded(int type) const;

  int CountGroups(int type, const CGroupList* handle) const;
  int CountGroups(int type, const char* id) const;
  int CopyInfo(int type, const CGroupList* handle, int index, GroupInfo* out) const;
  int CopyInfo(int type, const char* id, int index, GroupInfo* out) const;
  // Null when there is none.
  CGroupList* FindHandle(int type, std::string_view id) const;
  CGroupList* FindSub(int type, std::string_view id) const;
  const GroupInfo* FindSubExactly(int type, std::string_view id) const;
  int CopyIds(CGroupList* handle, CString& ids) const;
  // For types 2, 7 and 8.
  int HoldsText(int type, const CString& groupId, const CString& text) const;

  // --- Pushes ------------------------------------------------------------------------------------

  // Hands each manager the sets of its type, if there are any. 1 when one of them changed
  // something.
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
