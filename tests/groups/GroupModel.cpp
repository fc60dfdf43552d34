#include "tests/groups/GroupModel.h"

#include <algorithm>

namespace groupmodel {

bool SameNoCase(const std::string& left, const std::string& right) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  if (left.size() != right.size())
    return false;
  for (size_t i = 0; i < left.size(); ++i)
    if (lower(left[i]) != lower(right[i]))
      return false;
  return true;
}

std::string AfterComma(const std::string& id) {
  const size_t comma = id.find(',');
  return comma == std::string::npos ? id : id.substr(comma + 1);
}

Group* FindId(std::vector<Group>& groups, const std::string& id) {
  for (Group& group : groups)
    if (SameNoCase(group.id, id))
      return &group;
  return nullptr;
}

std::vector<Group> Model::Fetch(int type, const std::string& parent) {
  std::vector<Group> groups;
  for (const GroupInfo& record : service.groups[{type, parent}]) {
    Group group;
    group.type = record.nType;
    group.id = record.szID;
    group.name = record.szName;
    group.hasSub = record.bHasSubGroup;
    if (group.hasSub != 0)
      group.subs = Fetch(group.type, group.id);
    groups.push_back(group);
  }
  return groups;
}

Manager Model::Fresh(int type) {
  return {type, Fetch(type, "")};
}

int Model::LoadAll() {
  Clear();
  std::vector<int> types;
  for (int type = 1; type <= 21; ++type)
    types.push_back(type);
  types.push_back(101);
  types.push_back(201);
  for (const int type : types) {
    indexes[type] = static_cast<int>(managers.size());
    managers.push_back(Fresh(type));
  }
  return 1;
}

int Model::Load(int type) {
  if (type < 1 || type > 201)
    return 0;
  for (Manager& manager : managers) {
    if (manager.type == type) {
      manager = Fresh(type);
      return 1;
    }
  }
  return Add(type);
}

int Model::Add(int type) {
  if (type < 1 || type > 200)
    return 0;
  size_t at = 0;
  while (at < managers.size() && managers[at].type <= type)
    ++at;
  if (at < managers.size())
    for (auto& entry : indexes)
      if (entry.second >= static_cast<int>(at))
        ++entry.second;
  indexes[type] = static_cast<int>(at);
  managers.insert(managers.begin() + static_cast<std::ptrdiff_t>(at), Fresh(type));
  return 1;
}

int Model::Update(int type) {
  return type >= 1 && type <= 200 ? Load(type) : LoadAll();
}

int Model::Remove(int type) {
  if (type < 1 || type > 200)
    return 0;
  for (size_t at = 0; at < managers.size(); ++at) {
    if (managers[at].type != type)
      continue;
    managers.erase(managers.begin() + static_cast<std::ptrdiff_t>(at));
    indexes.erase(type);
    return 1;
  }
  return 0;
}

void Model::Clear() {
  managers.clear();
  indexes.clear();
}

int Model::IndexOf(int type) const {
  return IsLoaded(type) ? indexes.at(type) : -1;
}

Manager* Model::Loaded(int type) {
  const int at = IndexOf(type);
  return at < 0 || at >= static_cast<int>(managers.size()) ? nullptr
                                                           : &managers[static_cast<size_t>(at)];
}

Group* Model::FindHandle(int type, const std::string& id) {
  Manager* const manager = Loaded(type);
  if (manager == nullptr)
    return nullptr;
  for (Group& group : manager->groups) {
    if (SameNoCase(group.id, id))
      return &group;
    if (Group* const sub = FindId(group.subs, id))
      return sub;
  }
  return nullptr;
}

Group* Model::FindSub(int type, const std::string& id, bool exactly) {
  Manager* const manager = Loaded(type);
  if (manager == nullptr)
    return nullptr;
  for (Group& group : manager->groups)
    for (Group& sub : group.subs)
      if (exactly ? sub.id == id : SameNoCase(sub.id, id))
        return &sub;
  return nullptr;
}

std::string Model::Members(Group& group) {
  if (group.ids.empty())
    for (const std::string& id : service.members[{group.type, group.id}])
      group.ids += (group.ids.empty() ? "" : ",") + id;
  return group.ids;
}

} // namespace groupmodel
