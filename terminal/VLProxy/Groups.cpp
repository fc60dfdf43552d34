// VLProxy: groups and their members.
#include <span>

#include "platform/services/VLProxy.h"
#include "terminal/VLProxy/Answer.h"
#include "terminal/control/Answers.h"
#include "terminal/control/GroupRecords.h"
#include "terminal/control/Script.h"

using namespace standin;

int VLGetSubGroup(int type, const char* parentId, GroupInfo** list, int* count) {
  const bool proceed = Begin("VLGetSubGroup", type, parentId);
  if (!ClearOutputs(list, count) || !proceed || !parentId)
    return 0;
  if (const Answer<GroupInfo>* answer = AnsweredGroups(type, parentId))
    return HandOutAnswer(*answer, list, count);
  return HandOutCopy(CurrentGroups().Under(type, parentId), list, count);
}

int VLGetGroupSymbol(int type, const char* groupId, SymbolInfo** list, int* count, int flag) {
  const bool proceed = Begin("VLGetGroupSymbol", type, groupId, flag);
  if (!ClearOutputs(list, count) || !proceed || !groupId)
    return 0;
  if (const Answer<SymbolInfo>* answer = AnsweredMembers(type, groupId))
    return HandOutAnswer(*answer, list, count);
  const std::size_t found = CurrentGroups().Find(type, groupId);
  if (found == GroupRecords::kNotFound)
    return 0;
  const std::span<const std::uint32_t> members = CurrentGroups().Members(found);
  if (!HandOut(members.size(), list, count))
    return 0;
  const SymbolInfo* infos = CurrentListings().Infos();
  for (std::size_t i = 0; i < members.size(); ++i)
    (*list)[i] = infos[members[i]];
  return 1;
}
