// A manager with the groups of the group market, to push others into.
#pragma once

#include "tests/interface/GroupsTest.h"

class GroupsPushesTest : public GroupsTest {
protected:
  GroupsPushesTest() {
    manager.LoadGroupList();
    standin::ClearCalls();
  }
  ~GroupsPushesTest() override { EXPECT_EQ(Asked(), asked) << "a push asked the service"; }

  std::string NameById(const char* id) { return NameOf(Handle(1, id)); }
  GroupInfo InfoOf(int index) {
    GroupInfo info = {};
    EXPECT_EQ(manager.GetGroupInfo(1, nullptr, index, &info), 1);
    return info;
  }

  int asked = 0; // calls made by the test itself
};

// The groups of type 1 before any push.
inline constexpr const char* kLoaded = "TSE(CHIP CEM) OTC(WAFER) ETF";
