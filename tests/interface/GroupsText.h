// A manager with groups, and its answers as text.
#pragma once

#include <cstring>

#include "tests/interface/GroupsTest.h"

class GroupsTextTest : public GroupsTest {
protected:
  GroupsTextTest() { manager.LoadGroupList(); }

  static std::string CallsOf(const char* operation) {
    std::string all;
    for (const standin::Call& call : standin::Calls()) {
      if (call.operation == operation)
        all += (all.empty() ? "" : "|") + call.arguments;
    }
    return all;
  }
  std::string SubName(int type, const char* id, int afterComma = 0) {
    CString name;
    manager.GetGroupName(type, id, name, afterComma);
    return name.GetString();
  }
  int Top(int type) { return manager.GetGroupCount(type, nullptr); }
  void ExpectIndices(const std::vector<std::pair<int, int>>& expected) {
    for (const auto& [type, index] : expected)
      EXPECT_EQ(manager.GetGroupIdx(type), index) << "type " << type;
  }
};
