// Raw records of groups and members for the stand-in service.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "groups/GroupMgr.h"
#include "groups/GroupSet.h"
#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"

namespace groups {

// Copies the texts byte by byte, cut to their fields.
inline GroupInfo Record(int type, const std::string& id, const std::string& name, int hasSub = 0) {
  GroupInfo info = {};
  info.nType = static_cast<short>(type);
  std::strncpy(info.szID, id.c_str(), sizeof(info.szID) - 1);
  std::strncpy(info.szName, name.c_str(), sizeof(info.szName) - 1);
  info.bHasSubGroup = hasSub;
  return info;
}

inline void Answer(int type, const std::string& parent, const std::vector<GroupInfo>& records) {
  standin::AnswerGroups(type, parent, records, static_cast<int>(records.size()));
}

inline SymbolInfo Member(const char* id) {
  SymbolInfo record = {};
  std::strncpy(record.id, id, sizeof(record.id) - 1);
  return record;
}

inline void AnswerMembers(int type, const std::string& group, const std::vector<const char*>& ids) {
  std::vector<SymbolInfo> records;
  for (const char* id : ids)
    records.push_back(Member(id));
  standin::AnswerMembers(type, group, records, static_cast<int>(records.size()));
}

inline CGroupSet Set(int type, const char* id, const char* name,
                     std::vector<std::pair<CString, CString>> subGroups = {}) {
  CGroupSet set;
  set.type = type;
  set.id = id;
  set.name = name;
  set.subGroups = std::move(subGroups);
  return set;
}

// The tree as text: "a/Name(b/Name c/Name) d/Name".
inline std::string Shape(tq::GroupLevel& level) {
  std::string shape;
  for (int i = 0; i < level.Count(); ++i) {
    const GroupInfo& info = level.InfoAt(i);
    shape += (i > 0 ? " " : "") + std::string(info.szID) + "/" + info.szName;
    if (level.SubCountAt(i) > 0)
      shape += "(" + Shape(*level.SubsAt(i)) + ")";
  }
  return shape;
}

} // namespace groups
