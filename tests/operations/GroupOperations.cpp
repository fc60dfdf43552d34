// Groups: loading, queries, pushes.
#include "tests/operations/Operations.h"

namespace operations {
namespace {

using Manager = CTQSymbolListMgr;

void* Handle(Manager& m, const Arguments& a) {
  void* handle = nullptr;
  if (!a.nulls)
    m.GetGroupHandle(a.type, a.group, &handle, 0);
  return handle;
}

CGroupSet Set(const Arguments& a, const CString& id) {
  CGroupSet set;
  set.type = a.type;
  set.id = id;
  set.name = a.name;
  set.subGroups = {{a.group, a.name}, {"NEWSUB", "new"}};
  return set;
}

std::vector<CGroupSet> Sets(const Arguments& a) {
  return {Set(a, "TSE"), Set(a, a.group)};
}

Table Loading() {
  return {
      {"LoadGroupList()", [](Manager& m, const Arguments&) { m.LoadGroupList(); }},
      {"LoadGroupList(int)", [](Manager& m, const Arguments& a) { m.LoadGroupList(a.type); }},
      {"AddNewGroup(int)", [](Manager& m, const Arguments& a) { m.AddNewGroup(a.type); }},
      {"AddGroupList(int, bool)",
       [](Manager& m, const Arguments& a) { m.AddGroupList(a.type, a.flag != 0); }},
      {"UpdateGroup(int, char const*)",
       [](Manager& m, const Arguments& a) { m.UpdateGroup(a.type, a.Text(a.text)); }},
      {"UpdateGroupType(int)", [](Manager& m, const Arguments& a) { m.UpdateGroupType(a.type); }},
      {"RemoveGroupList(int)", [](Manager& m, const Arguments& a) { m.RemoveGroupList(a.type); }},
      {"ClearGroupList()", [](Manager& m, const Arguments&) { m.ClearGroupList(); }},
      {"GetGroupIdx(int)", [](Manager& m, const Arguments& a) { m.GetGroupIdx(a.type); }},
      {"GetGroupCount(int, void*)",
       [](Manager& m, const Arguments& a) { m.GetGroupCount(a.type, Handle(m, a)); }},
      {"GetGroupCounts(int, char const*)",
       [](Manager& m, const Arguments& a) { m.GetGroupCounts(a.type, a.Text(a.group)); }},
  };
}

Table Records() {
  return {
      {"GetGroupInfo(int, void*, int, GroupInfo*)",
       [](Manager& m, const Arguments& a) {
         GroupInfo info;
         m.GetGroupInfo(a.type, Handle(m, a), a.number, &info);
       }},
      {"GetGroupInfos(int, char const*, int, GroupInfo*)",
       [](Manager& m, const Arguments& a) {
         GroupInfo info;
         m.GetGroupInfos(a.type, a.Text(a.group), a.number, a.nulls ? nullptr : &info);
       }},
      {"GetGroupHandle(int, char const*, void**, int)",
       [](Manager& m, const Arguments& a) {
         void* handle = nullptr;
         m.GetGroupHandle(a.type, a.Text(a.group), &handle, a.flag);
       }},
      {"GetGroupListIDs(void*, CString&)",
       [](Manager& m, const Arguments& a) {
         CString ids;
         m.GetGroupListIDs(Handle(m, a), ids);
       }},
      {"GetGroupName(int, void*, CString&)",
       [](Manager& m, const Arguments& a) {
         CString name;
         m.GetGroupName(a.type, Handle(m, a), name);
       }},
      {"GetGroupName(int, char const*, CString&, int)",
       [](Manager& m, const Arguments& a) {
         CString name;
         m.GetGroupName(a.type, a.Text(a.group), name, a.flag);
       }},
      {"GetGroupSymbolCount(int, char const*)",
       [](Manager& m, const Arguments& a) { m.GetGroupSymbolCount(a.type, a.Text(a.group)); }},
      {"GetGroupSymbolCount(void*)",
       [](Manager& m, const Arguments& a) { m.GetGroupSymbolCount(Handle(m, a)); }},
      {"GetGroupSymbolInfo(int, char const*, int, SymbolInfo*)",
       [](Manager& m, const Arguments& a) {
         SymbolInfo info;
         m.GetGroupSymbolInfo(a.type, a.Text(a.group), a.number, a.nulls ? nullptr : &info);
       }},
      {"GetGroupSymbolInfo(void*, int, SymbolInfo*)",
       [](Manager& m, const Arguments& a) {
         SymbolInfo info;
         m.GetGroupSymbolInfo(Handle(m, a), a.number, &info);
       }},
      {"FindSymoblInGroupList(int, CString const&, CString const&)",
       [](Manager& m, const Arguments& a) { m.FindSymoblInGroupList(2, a.group, a.text); }},
  };
}

Table Pushes() {
  return {
      {"AddGroup(std::vector<CGroupSet, std::allocator<CGroupSet> > const&)",
       [](Manager& m, const Arguments& a) { m.AddGroup(Sets(a)); }},
      {"UpdateGroup(std::vector<CGroupSet, std::allocator<CGroupSet> > const&)",
       [](Manager& m, const Arguments& a) { m.UpdateGroup(Sets(a)); }},
      {"UpdateGroupName(std::vector<CGroupSet, std::allocator<CGroupSet> > const&)",
       [](Manager& m, const Arguments& a) { m.UpdateGroupName(Sets(a)); }},
      {"RemoveGroup(std::vector<CGroupSet, std::allocator<CGroupSet> > const&)",
       [](Manager& m, const Arguments& a) { m.RemoveGroup(Sets(a)); }},
      {"AddSubGroup(std::vector<CGroupSet, std::allocator<CGroupSet> > const&)",
       [](Manager& m, const Arguments& a) { m.AddSubGroup(Sets(a)); }},
      {"UpdateSubGroup(std::vector<CGroupSet, std::allocator<CGroupSet> > const&)",
       [](Manager& m, const Arguments& a) { m.UpdateSubGroup(Sets(a)); }},
      {"UpdateSubGroupName(std::vector<CGroupSet, std::allocator<CGroupSet> > const&)",
       [](Manager& m, const Arguments& a) { m.UpdateSubGroupName(Sets(a)); }},
      {"RemoveSubGroup(std::vector<CGroupSet, std::allocator<CGroupSet> > const&)",
       [](Manager& m, const Arguments& a) { m.RemoveSubGroup(Sets(a)); }},
  };
}

} // namespace

Table GroupOperations() {
  Table all = Loading();
  for (const Table& part : {Records(), Pushes()})
    all.insert(all.end(), part.begin(), part.end());
  return all;
}

} // namespace operations
