#include "groups/GroupId.h"

#include "platform/CodePage.h"

namespace tq {
namespace {

bool IsAscii(const FoldedId& id) {
  return ((id.low | id.high) & kTopBits) == 0;
}

// A lower-case letter differs from its upper-case form in bit 5, which is the flag bit of
// LowerLetters shifted right by two.
std::uint64_t UpperAscii(std::uint64_t ascii) {
  return ascii ^ LowerLetters(ascii) >> 2;
}

// The second byte of a double-byte character may look like a letter and is left as it is.
FoldedId FoldCharacters(std::string_view id) {
  char upper[kGroupIdBytes];
  const char* const end = id.data() + id.size();
  for (const char* at = id.data(); at < end; at = NextChar(at, end)) {
    const auto place = static_cast<std::size_t>(at - id.data());
    upper[place] = ToUpperLetter(*at);
    if (CharLength(at, end) == 2)
      upper[place + 1] = at[1];
  }
  return PackHead({upper, id.size()});
}

template <std::size_t SIZE> void TerminateText(char (&field)[SIZE]) {
  if (field[SIZE - 1] != '\0' && std::memchr(field, '\0', SIZE) == nullptr)
    field[CutLength(field, SIZE, SIZE - 1)] = '\0';
}

} // namespace

bool FoldId(std::string_view id, FoldedId& folded) {
  if (id.size() > kGroupIdBytes)
    return false;
  folded = PackHead(id);
  folded = IsAscii(folded) ? FoldedId{UpperAscii(folded.low), UpperAscii(folded.high)}
                           : FoldCharacters(id);
  return true;
}

FoldedId FoldedIdOf(const GroupInfo& info) {
  FoldedId folded = {};
  FoldId({info.szID, strnlen(info.szID, kGroupIdBytes)}, folded);
  return folded;
}

std::string_view AfterComma(std::string_view id) {
  const char* const end = id.data() + id.size();
  const char* const comma = FindChar(id.data(), end, ',');
  return comma == nullptr ? id : id.substr(static_cast<std::size_t>(comma + 1 - id.data()));
}

void CutFullTexts(GroupInfo& info) {
  TerminateText(info.szID);
  TerminateText(info.szName);
}

void SetGroupName(GroupInfo& info, const char* name) {
  CopyCut(info.szName, name);
}

GroupInfo MakeGroupInfo(int type, const char* id, const char* name, bool hasSubGroups) {
  GroupInfo info = {};
  info.nType = static_cast<short>(type);
  CopyCut(info.szID, id);
  SetGroupName(info, name);
  info.bHasSubGroup = hasSubGroups ? 1 : 0;
  return info;
}

} // namespace tq
