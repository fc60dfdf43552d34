#include "groups/CloudeListUtil.h"

#include "groups/CloudMap.h"
#include "groups/GroupMgr.h"
#include "platform/framework/CMapStringToString.h"
#include "symbollist/LibraryString.h"
#include "symbollist/Log.h"

namespace {

// Names of cloud groups with sub-groups, by id. One map for the process, filled once, in the interface
// language of that moment.
const CMapStringToString& DefaultNames() {
  static CMapStringToString names;
  if (names.IsEmpty())
    names.SetAt(tq::LibraryString(tq::kStringFirstCloudId),
                tq::LibraryString(tq::kStringCloudList));
  return names;
}

// Whether there is anything to do for a group or below it. Of most there is not, and they are to stay the
// records that they are.
bool IsConcerned(const tq::GroupLevel& level, int index, const tq::CloudMap& lists) {
  return level.SubCountAt(index) > 0 || lists.Find(level.InfoAt(index).szID) != nullptr;
}

} // namespace

void CCloudeListUtil::Refresh(CGroupMgr& cloudGroups, const tq::CloudMap& lists) {
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
    if (TakeOver(group, lists, id))
      tq::LogLine(tq::kLogChange, "CCloudeListUtil::DoModifyList ListName=%s, Symbols=%s",
                  lists.Find(id)->info.Name, group.GetIDs().GetString());
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

bool CCloudeListUtil::TakeOver(CGroupList& group, const tq::CloudMap& lists, const char* id) {
  const tq::CloudList* list = lists.Find(id);
  if (list == nullptr)
    return false;
  group.SetName(list->info.Name);
  group.Update1(list->symbols);
  return true;
}
