#include "cloud/CloudeListUtil.h"

#include "cloud/CloudMap.h"
#include "groups/GroupMgr.h"
#include "platform/LibraryString.h"
#include "platform/Log.h"

namespace {

void FillDefaultNames() {
  CMapStringToString& names = CCloudeListUtil::DefaultNames();
  if (names.IsEmpty())
    names.SetAt(tq::LibraryString(tq::kStringFirstCloudId),
                tq::LibraryString(tq::kStringCloudList));
}

// Whether there is anything to do for a group or below it. Of most there is not, and they are to
// stay the records that they are.
bool IsConcerned(const tq::GroupLevel& level, int index, const tq::CloudMap& lists) {
  return level.SubCountAt(index) > 0 || lists.Find(level.InfoAt(index).szID) != nullptr;
}

} // namespace

CMapStringToString& CCloudeListUtil::DefaultNames() {
  static CMapStringToString names;
  return names;
}

void CCloudeListUtil::Refresh(CGroupMgr& cloudGroups, const tq::CloudMap& lists) {
  FillDefaultNames();
  const tq::GroupLevel& groups = cloudGroups.Groups();
  for (int i = 0; i < groups.Count(); ++i) {
    if (!IsConcerned(groups, i, lists))
      continue;
    const GroupInfo info = groups.InfoAt(i);
    // By its id and not by its place: of several groups with one id the first one takes it all.
    if (CGroupList* group = cloudGroups.Find(info.szID))
      DoModifyList(*group, lists, info.szID);
  }
}

void CCloudeListUtil::DoModifyList(CGroupList& group, const tq::CloudMap& lists, const char* id) {
  const tq::GroupLevel* const subs = group.Subs();
  if (group.GetSubCount() == 0) {
    TakeOver(group, lists, id, "CCloudeListUtil::DoModifyList");
    return;
  }
  CString name;
  if (DefaultNames().Lookup(group.GetInfo().szID, name))
    group.SetName(name);
  for (int i = 0; i < subs->Count(); ++i) {
    if (!IsConcerned(*subs, i, lists))
      continue;
    const GroupInfo info = subs->InfoAt(i);
    if (CGroupList* sub = group.FindSub(info.szID))
      DoModifyList(*sub, lists, info.szID);
  }
}

void CCloudeListUtil::TakeOver(CGroupList& group, const tq::CloudMap& lists, const char* id,
                               const char* who) {
  const tq::CloudList* const found = lists.Find(id);
  if (found == nullptr)
    return;
  const tq::CloudList list = *found; // the terminal may set it anew while its symbols are resolved
  group.SetName(list.info.Name);
  group.Update1(list.symbols);
  const CString ids = group.GetIDs(); // which may change while the line is written
  tq::LogLine(tq::kLogChange, "%s ListName=%s, Symbols=%s", who, list.info.Name, ids.GetString());
}
