// The expected behaviour of the manager's groups in the plainest form: vectors, copies and scans.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "groups/GroupSet.h"
#include "platform/services/VLRecords.h"

namespace groupmodel {

struct Group {
  int type = 0;
  std::string id;
  std::string name;
  int hasSub = 0;
  std::vector<Group> subs;
  std::string ids;        // members, once fetched
  void* handle = nullptr; // once the manager has given one
};

struct Manager {
  int type = 0;
  std::vector<Group> groups;
};

// The current answers of the service.
struct Service {
  std::map<std::pair<int, std::string>, std::vector<GroupInfo>> groups;
  std::map<std::pair<int, std::string>, std::vector<std::string>> members;
};

bool SameNoCase(const std::string& left, const std::string& right);
std::string AfterComma(const std::string& id);
Group* FindId(std::vector<Group>& groups, const std::string& id);

class Model {
public:
  int LoadAll();
  int Load(int type);
  int Add(int type);
  int Update(int type);
  int Remove(int type);
  void Clear();

  int IndexOf(int type) const;
  bool AnyLoaded() const { return !indexes.empty(); }
  bool IsLoaded(int type) const { return indexes.count(type) != 0; }
  // Also null for a position past the end.
  Manager* Loaded(int type);

  Group* FindHandle(int type, const std::string& id);
  Group* FindSub(int type, const std::string& id, bool exactly);
  std::string Members(Group& group);

  int AddGroup(const std::vector<CGroupSet>& sets);
  int UpdateGroup(const std::vector<CGroupSet>& sets);
  int UpdateGroupName(const std::vector<CGroupSet>& sets);
  int RemoveGroup(const std::vector<CGroupSet>& sets);
  int AddSubGroup(const std::vector<CGroupSet>& sets);
  int UpdateSubGroup(const std::vector<CGroupSet>& sets);
  int UpdateSubGroupName(const std::vector<CGroupSet>& sets);
  int RemoveSubGroup(const std::vector<CGroupSet>& sets);

  Service service;
  std::vector<Manager> managers;
  std::map<int, int> indexes;

private:
  std::vector<Group> Fetch(int type, const std::string& parent);
  Manager Fresh(int type);
};

} // namespace groupmodel
