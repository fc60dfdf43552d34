#include "groups/GroupLoader.h"

#include <algorithm>
#include <cstring>

#include "platform/ServiceArray.h"

namespace tq {

bool GroupLoader::Load(int type, GroupLevel& groups) {
  const Asked top = {type, ""};
  Answer answer;
  if (!Ask(top, answer))
    return false;
  groups.Adopt(answer.records);
  if (answer.haveSubs)
    FillSubGroups(top, answer, groups);
  return true;
}

// The service's array is released before the levels below are asked for, so that a tree costs the
// service one array at a time.
bool GroupLoader::Ask(const Asked& asked, Answer& answer) {
  ServiceArray<GroupInfo> array;
  if (VLGetSubGroup(asked.type, asked.id, array.List(), array.Count()) == 0)
    return false;
  const std::span<const GroupInfo> records = array.Records();
  answer = Keep(records.first(std::min(records.size(), kMostGroups - count_)));
  return true;
}

// One pass over records that are in the cache: what is looked at of each is looked at here.
GroupLoader::Answer GroupLoader::Keep(std::span<const GroupInfo> records) {
  const std::span<GroupInfo> kept = arena_.Take(records.size());
  int haveSubs = 0;
  for (std::size_t i = 0; i < records.size(); ++i) {
    GroupInfo& record = kept[i];
    record = records[i];
    haveSubs |= record.bHasSubGroup;
    if (record.szID[kGroupIdBytes] != '\0' || record.szName[kGroupNameBytes] != '\0')
      TerminateTexts(record);
  }
  count_ += records.size();
  return {kept, haveSubs != 0};
}

// `groups` is what was answered and stands in `level`. Types and ids are those of the records,
// which need not be of the type that was asked for.
void GroupLoader::FillSubGroups(const Asked& asked, const Answer& groups, GroupLevel& level) {
  path_.push_back(asked);
  int index = -1;
  for (const GroupInfo& info : groups.records) {
    ++index;
    const Asked subs = {info.nType, info.szID};
    Answer answer;
    if (info.bHasSubGroup == 0 || !MayAsk(subs) || !Ask(subs, answer))
      continue;
    level.AdoptSubsAt(index, answer.records);
    if (answer.haveSubs)
      FillSubGroups(subs, answer, level.MakeSubsAt(index));
  }
  path_.pop_back();
}

bool GroupLoader::MayAsk(const Asked& subs) const {
  return path_.size() < kDeepestLevel && count_ < kMostGroups && !IsAskedAbove(subs);
}

bool GroupLoader::IsAskedAbove(const Asked& asked) const {
  return std::any_of(path_.begin(), path_.end(), [&](const Asked& above) {
    return above.type == asked.type && *above.id == *asked.id &&
           std::strcmp(above.id, asked.id) == 0;
  });
}

} // namespace tq
