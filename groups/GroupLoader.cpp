#include "groups/GroupLoader.h"

#include <algorithm>
#include <cstring>

#include "platform/ServiceArray.h"

namespace tq {

bool GroupLoader::Load(int type, GroupLevel& groups) {
  return Fill({type, ""}, groups);
}

bool GroupLoader::Fill(const Asked& asked, GroupLevel& level) {
  bool haveSubs = false;
  if (!Ask(asked, level, haveSubs))
    return false;
  if (haveSubs)
    FillSubGroups(asked, level);
  return true;
}

// The array is released before the levels below are asked for, so that a tree costs the service
// one array at a time.
bool GroupLoader::Ask(const Asked& asked, GroupLevel& level, bool& haveSubs) {
  ServiceArray<GroupInfo> array("VLGetSubGroup");
  if (VLGetSubGroup(asked.type, asked.id, array.List(), array.Count()) == 0)
    return false;
  const std::span<const GroupInfo> records = array.Records();
  haveSubs = level.Assign(records.first(std::min(records.size(), kMostGroups - count_)));
  count_ += static_cast<std::size_t>(level.Count());
  return true;
}

// Type and id are those of each record; its type may differ from the type that is being loaded.
void GroupLoader::FillSubGroups(const Asked& asked, GroupLevel& level) {
  path_.push_back(asked);
  for (int i = 0; i < level.Count(); ++i) {
    const GroupInfo& info = level.InfoAt(i);
    const Asked subs = {info.nType, info.szID};
    if (info.bHasSubGroup != 0 && MayAsk(subs))
      Fill(subs, level.MakeSubsAt(i));
  }
  path_.pop_back();
}

bool GroupLoader::MayAsk(const Asked& asked) const {
  return path_.size() < kDeepestLevel && count_ < kMostGroups && !IsAskedAbove(asked);
}

bool GroupLoader::IsAskedAbove(const Asked& asked) const {
  return std::any_of(path_.begin(), path_.end(), [&](const Asked& above) {
    return above.type == asked.type && std::strcmp(above.id, asked.id) == 0;
  });
}

} // namespace tq
