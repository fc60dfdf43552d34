// A manager over the group market, and its groups as text.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/ManagerTest.h"
#include "tests/support/GroupMarket.h"

class GroupsTest : public ManagerTest {
protected:
  GroupsTest() { standin::SetMarket(GroupMarket()); }

  // Puts another group into the market.
  static void AddToMarket(const standin::Group& group) {
    standin::Market market = standin::CurrentMarket();
    market.groups.push_back(group);
    standin::SetMarket(market);
  }

  void* Handle(int type, const char* id, int afterComma = 0) {
    void* handle = nullptr;
    manager.GetGroupHandle(type, id, &handle, afterComma);
    return handle;
  }
  std::string NameOf(void* handle) {
    CString name;
    return manager.GetGroupName(0, handle, name) != 0 ? std::string(name) : "none";
  }
  std::string MembersOf(void* handle) {
    CString ids;
    return manager.GetGroupListIDs(handle, ids) != 0 ? std::string(ids) : "none";
  }
  // The ids of a type's groups, each followed by its sub-groups: "TSE(CHIP CEM) OTC".
  std::string Shape(int type) {
    std::string shape;
    for (int i = 0; i < manager.GetGroupCount(type, nullptr); ++i) {
      GroupInfo info = {};
      EXPECT_EQ(manager.GetGroupInfo(type, nullptr, i, &info), 1);
      shape += (i > 0 ? " " : "") + std::string(info.szID) + SubShape(type, info.szID);
    }
    return shape;
  }
  std::string SubShape(int type, const char* id) {
    std::string shape;
    for (int i = 0; i < manager.GetGroupCounts(type, id); ++i) {
      GroupInfo info = {};
      EXPECT_EQ(manager.GetGroupInfos(type, id, i, &info), 1);
      shape += (i > 0 ? " " : "") + std::string(info.szID);
    }
    return shape.empty() ? "" : "(" + shape + ")";
  }

  static CGroupSet Set(int type, const char* id, const char* name,
                       std::vector<std::pair<CString, CString>> subGroups = {}) {
    CGroupSet set;
    set.type = type;
    set.id = id;
    set.name = name;
    set.subGroups = std::move(subGroups);
    return set;
  }

  static int Asked() { return standin::CountCalls("VLGetSubGroup"); }
  static int Fetched() { return standin::CountCalls("VLGetGroupSymbol"); }
};
