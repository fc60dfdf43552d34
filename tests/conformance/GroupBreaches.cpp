#include <cstring>

#include "tests/conformance/Breach.h"
#include "tests/conformance/Faults.h"

using conformance::Rule;

namespace {

constexpr int kType = 9; // which the market leaves empty

GroupInfo Group(const char* id, int hasSubGroups = 0, int type = kType) {
  GroupInfo group = {};
  group.nType = static_cast<short>(type);
  std::strcpy(group.szID, id);
  std::strcpy(group.szName, "name");
  group.bHasSubGroup = hasSubGroups;
  return group;
}

// The first level of kType; its groups have no members.
void AnswerLevel(const std::vector<GroupInfo>& groups) {
  standin::AnswerGroups(kType, "", groups, static_cast<int>(groups.size()));
  for (const GroupInfo& group : groups)
    standin::AnswerMembers(kType, group.szID, {}, 0);
}

} // namespace

std::vector<Breach> GroupBreaches() {
  return {
      {"EmptyTypeFails", Rule::GroupRead,
       [] {
         TheFaults().VLGetSubGroup = [](int type, const char* parent, GroupInfo** list,
                                        int* count) {
           return __real_VLGetSubGroup(type, type == 50 ? nullptr : parent, list, count);
         };
       }},
      {"GroupOfAnotherType", Rule::GroupTypeOf, [] { AnswerLevel({Group("A", 0, 8)}); }},
      {"GroupIdWithControl", Rule::GroupIdText, [] { AnswerLevel({Group("A\x01")}); }},
      {"GroupTwice", Rule::GroupOnce,
       [] {
         AnswerLevel({Group("A"), Group("A")});
       }},
      {"GroupPromisesSubGroups", Rule::GroupFlag, [] { AnswerLevel({Group("A", 1)}); }},
      {"GroupDeniesSubGroups", Rule::GroupFlag,
       [] {
         AnswerLevel({Group("A")});
         standin::AnswerGroups(kType, "A", {Group("B")}, 1);
         standin::AnswerMembers(kType, "B", {}, 0);
       }},
      {"GroupBelowItself", Rule::GroupCircle,
       [] {
         AnswerLevel({Group("A", 1)});
         standin::AnswerGroups(kType, "A", {Group("B", 1)}, 1);
         standin::AnswerGroups(kType, "B", {Group("A", 1)}, 1);
         standin::AnswerMembers(kType, "B", {}, 0);
       }},
      {"GroupNameHalfCharacter", Rule::TextCodePage,
       [] {
         GroupInfo group = Group("A");
         std::strcpy(group.szName, "abc\xa5");
         AnswerLevel({group});
       }},
      {"GroupNameWithoutNul", Rule::TextTerminated,
       [] {
         GroupInfo group = Group("A");
         std::memset(group.szName, 'x', sizeof group.szName);
         AnswerLevel({group});
       }},
      {"MemberIsNoSymbol", Rule::GroupMember,
       [] {
         standin::AnswerMembers(7, "G2", {{1, "9999.TW", "", "9999", "name"}}, 1);
       }},
      {"GroupHasNoMembers", Rule::GroupMembersRead,
       [] {
         TheFaults().VLGetGroupSymbol = [](int type, const char* id, SymbolInfo** list, int* count,
                                           int flag) {
           const bool known = id != nullptr && std::strcmp(id, "G2") == 0;
           return __real_VLGetGroupSymbol(type, known ? "G3" : id, list, count, flag);
         };
       }},
      {"UnknownGroupSucceeds", Rule::GroupUnknown,
       [] {
         TheFaults().VLGetGroupSymbol = [](int type, const char* id, SymbolInfo** list, int* count,
                                           int flag) {
           const int result = __real_VLGetGroupSymbol(type, id, list, count, flag);
           return id == nullptr ? result : 1;
         };
       }},
  };
}
