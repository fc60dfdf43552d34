// Group ids in the form in which they are looked up: two words, the case of ASCII letters folded.
#pragma once

#include <cstring>
#include <string_view>

#include "platform/services/VLProxy.h"
#include "symbolid/PackedText.h"

namespace tq {

// Bytes that fit into the id and the name of a record.
inline constexpr std::size_t kGroupIdBytes = sizeof(GroupInfo::szID) - 1;
inline constexpr std::size_t kGroupNameBytes = sizeof(GroupInfo::szName) - 1;

// An id of a record, which has at most 16 bytes and no NUL, so the two words are all of it. Equal
// when the ids are equal ignoring the case of ASCII letters.
using FoldedId = PackedText;
static_assert(kGroupIdBytes == sizeof(FoldedId));

// Folds an id. False for one that is longer than any record's: no group has it.
bool FoldId(std::string_view id, FoldedId& folded);

// Of a record whose texts are terminated.
FoldedId FoldedIdOf(const GroupInfo& info);

// What callers hand in: null is an empty text.
inline std::string_view TextView(const char* text) {
  return text == nullptr ? std::string_view() : std::string_view(text);
}

// The text behind the first comma; all of it when there is none.
std::string_view AfterComma(std::string_view id);

// Ends both texts within their fields, at a whole character. What the service fills is not trusted
// to.
void TerminateTexts(GroupInfo& info);

// Gives a record another name, cut at a whole character.
void SetGroupName(GroupInfo& info, const char* name);

// A record as a pushed group gets it; texts are cut at a whole character.
GroupInfo MakeGroupInfo(int type, const char* id, const char* name, bool hasSubGroups);

} // namespace tq
