// A store of groups whose service has one group for each type.
#pragma once

#include <string>

#include "groups/GroupStore.h"
#include "tests/groups/GroupRecords.h"

using groups::Answer;
using groups::Record;
using groups::Set;

constexpr int kLast = 22; // position of type 201 after a full load

class GroupStoreTest : public StandInTest {
protected:
  GroupStoreTest()
      : store([this](CGroupMgr& manager) {
          ++refreshes;
          refreshed = manager.GetType();
          seenByRefresh = groups::Shape(manager.Groups());
        }) {
    for (int type = 1; type <= 201; ++type)
      Answer(type, "", {Record(type, "g" + std::to_string(type), "T" + std::to_string(type))});
  }

  // The group that the map leads to for a type: "g7".
  std::string GroupOf(int type) {
    GroupInfo info = {};
    const char* const all = nullptr;
    return store.CopyInfo(type, all, 0, &info) != 0 ? info.szID : "";
  }

  int refreshes = 0;
  int refreshed = 0;
  std::string seenByRefresh;
  tq::GroupStore store;
};
