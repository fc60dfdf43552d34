#include "symbollist/ListIds.h"

#include <array>
#include <cstring>

#include "idlist/StorableText.h"
#include "platform/CodePage.h"
#include "platform/System.h"

namespace tq {
namespace {

constexpr std::array<const char*, kSystemListCount> kIds = {
    "ZUSYSLIST1", "ZUSYSLIST2", "ZUSYSLIST3", "ZUSYSLIST4", "ZUSYSLIST5", "ZUSYSLIST6"};

} // namespace

bool IsKeptWhole(const CString& id) {
  return id.GetLength() <= kListIdLimit && IsStorable(id);
}

CString IdOfNewList(const CString& id) {
  return id.IsEmpty() ? NewGuidText() : id;
}

const char* SystemListId(int index) {
  return kIds.at(static_cast<size_t>(index));
}

bool IsSystemListId(const char* id) {
  for (const char* known : kIds) {
    if (std::strcmp(known, id) == 0)
      return true;
  }
  return false;
}

bool IsSystemListIdNoCase(const char* id) {
  for (const char* known : kIds) {
    if (CompareNoCase(known, id) == 0)
      return true;
  }
  return false;
}

} // namespace tq
