// Group ids in the form in which they are looked up: two words, the case of ASCII letters folded.
#pragma once

#include <cstring>
#include <string_view>
#include <unordered_map>

#include "platform/services/VLProxy.h"
#include "symbolid/PackedText.h"
#include "symbolid/SymbolKey.h"

namespace tq {

// Bytes that fit into the id and the name of a record.
inline constexpr std::size_t kGroupIdBytes = sizeof(GroupInfo::szID) - 1;
inline constexpr std::size_t kGroupNameBytes = sizeof(GroupInfo::szName) - 1;

// The id of a record: at most 16 bytes, none of them NUL, so two words hold all of it. Equal when
// the ids are equal ignoring the case of ASCII letters.
using FoldedId = PackedText;
static_assert(kGroupIdBytes == sizeof(FoldedId));

// Hashes with the secret of the process, so that a service cannot choose ids that collide.
struct FoldedIdHash {
  std::size_t operator()(const FoldedId& id) const { return HashOf(id); }
};
template <typename Value> using MapById = std::unordered_map<FoldedId, Value, FoldedIdHash>;

// False for an id longer than a record's: no group has it.
bool FoldId(std::string_view id, FoldedId& folded);

// The texts of the record must be terminated.
FoldedId FoldedIdOf(const GroupInfo& info);

// The text of an argument; null is empty.
inline std::string_view TextView(const char* text) {
  return text == nullptr ? std::string_view() : std::string_view(text);
}

// The text behind the first comma, or all of it without one.
std::string_view AfterComma(std::string_view id);

// Terminates texts that fill their fields, at a whole character: the service may leave out the NUL.
// Inline because a full load checks tens of thousands of records.
void CutFullTexts(GroupInfo& info);
inline void TerminateTexts(GroupInfo& info) {
  if (info.szID[kGroupIdBytes] != '\0' || info.szName[kGroupNameBytes] != '\0')
    CutFullTexts(info);
}

// The name is cut at a whole character.
void SetGroupName(GroupInfo& info, const char* name);

// The record of a pushed group. Texts are cut at a whole character.
GroupInfo MakeGroupInfo(int type, const char* id, const char* name, bool hasSubGroups);

} // namespace tq
