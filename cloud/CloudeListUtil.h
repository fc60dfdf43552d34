// Gives the groups of the cloud type the names and members of the cloud lists with their ids.
#pragma once

#include "platform/framework/CMapStringToString.h"

class CGroupList;
class CGroupMgr;

namespace tq {
class CloudMap;
}

// The spelling of the name is the interface's own.
class CCloudeListUtil {
public:
  // To be called whenever the cloud groups were loaded. A group without sub-groups takes name and
  // members of the list with its id; one with sub-groups takes its name from the library's default
  // names, and each of its sub-groups is treated likewise. A group whose id no list has keeps what
  // the service gave it.
  static void Refresh(CGroupMgr& cloudGroups, const tq::CloudMap& lists);

  // The same for one group, with the list under `id`.
  static void DoModifyList(CGroupList& group, const tq::CloudMap& lists, const char* id);

  // Gives a group name and members of the list under its id, with a line in the log that begins
  // with `who`. Nothing without such a list.
  static void TakeOver(CGroupList& group, const tq::CloudMap& lists, const char* id,
                       const char* who);

  // Names of cloud groups with sub-groups, by id: one map for the process, which the first Refresh
  // fills in the interface language of that moment, whichever groups there are then.
  static CMapStringToString& DefaultNames();
};
