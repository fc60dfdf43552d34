// Calls of the group service, on GroupMarket().
#pragma once

#include <string>

#include "tests/support/GroupMarket.h"
#include "tests/support/StandInTest.h"
#include "tests/terminal/ArrayOwner.h"

using Groups = ArrayOwner<GroupInfo>;

class GroupService : public StandInTest {
protected:
  GroupService() { standin::SetMarket(GroupMarket()); }
};

inline int GetGroups(int type, const char* parent, Groups& groups) {
  return VLGetSubGroup(type, parent, &groups.list, &groups.count);
}

inline int GetMembers(int type, const char* group, Infos& infos) {
  return VLGetGroupSymbol(type, group, &infos.list, &infos.count, 1);
}

// The ids of the groups, separated by blanks; a "+" behind those that have sub-groups.
inline std::string GroupIds(const Groups& groups) {
  std::string text;
  for (int i = 0; i < groups.count; ++i)
    text += (i > 0 ? " " : "") + std::string(groups.list[i].szID) +
            (groups.list[i].bHasSubGroup != 0 ? "+" : "");
  return text;
}
