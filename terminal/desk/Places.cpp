#include "terminal/desk/Places.h"

#include "terminal/desk/Resources.h"

namespace desk {
namespace {

// The manager's kinds of lists.
constexpr int kUserLists = 1;
constexpr int kHoldings = 6;
constexpr int kCloudLists = 8;

constexpr int kMostGroupType = 201; // that of the cloud groups

Source& Add(From from, const CString& name, std::vector<NamedSource>& sources) {
  NamedSource& added = sources.emplace_back();
  added.source.from = from;
  added.name = name;
  return added.source;
}

void AddGroups(CTQSymbolListMgr& manager, int type, std::vector<NamedSource>& sources) {
  // Without a handle it is the groups at the top that are counted. A type that the service does not
  // have has none.
  const int count = manager.GetGroupCount(type, nullptr);
  for (int i = 0; i < count; ++i) {
    GroupInfo group = {};
    if (manager.GetGroupInfo(type, nullptr, i, &group) == 0)
      continue;
    Source& source = Add(From::Group, group.szName, sources);
    source.groupType = type;
    source.group = group.szID;
  }
}

std::vector<NamedList> ListsOfKind(CTQSymbolListMgr& manager, int kind) {
  std::vector<NamedList> lists;
  TQSymbolListInfo info = {};
  for (int i = 0; manager.GetTQSymbolListInfo(i, &info, kind) != 0; ++i)
    lists.push_back({info.ID, info.Name});
  return lists;
}

std::vector<NamedList> SubGroupsOf(CTQSymbolListMgr& manager, const Source& source) {
  std::vector<NamedList> groups;
  const int count = manager.GetGroupCounts(source.groupType, source.group);
  for (int i = 0; i < count; ++i) {
    GroupInfo group = {};
    if (manager.GetGroupInfos(source.groupType, source.group, i, &group) != 0)
      groups.push_back({group.szID, group.szName});
  }
  if (groups.empty()) // then it has members itself
    groups.push_back({CString(), Text(Word::AllOfThem)});
  return groups;
}

} // namespace

int KindOf(From from) {
  switch (from) {
  case From::UserLists:
    return kUserLists;
  case From::Holdings:
    return kHoldings;
  case From::CloudLists:
    return kCloudLists;
  default:
    return 0;
  }
}

std::vector<NamedSource> SourcesOf(CTQSymbolListMgr& manager) {
  std::vector<NamedSource> sources;
  Add(From::UserLists, Text(Word::UserLists), sources);
  Add(From::CloudLists, Text(Word::CloudLists), sources);
  Add(From::Holdings, Text(Word::Holdings), sources);
  Add(From::AllSymbols, Text(Word::AllSymbols), sources);
  for (int type = 1; type <= kMostGroupType; ++type)
    AddGroups(manager, type, sources);
  return sources;
}

std::vector<NamedList> ListsOf(CTQSymbolListMgr& manager, const Source& source) {
  switch (source.from) {
  case From::AllSymbols:
    return {{CString(), Text(Word::AllOfThem)}};
  case From::Group:
    return SubGroupsOf(manager, source);
  default:
    return ListsOfKind(manager, KindOf(source.from));
  }
}

Place FirstPlace(CTQSymbolListMgr& manager) {
  int index = -1;
  manager.GetDefaultListIdx(index); // may lie behind the last list, which then is not there
  TQSymbolListInfo info = {};
  if (manager.GetTQSymbolListInfo(index, &info, kUserLists) == 0 &&
      manager.GetTQSymbolListInfo(0, &info, kUserLists) == 0)
    return {};
  return {{From::UserLists}, info.ID};
}

} // namespace desk
