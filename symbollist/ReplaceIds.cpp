#include "symbollist/ReplaceIds.h"

#include <algorithm>

#include "platform/CodePage.h"
#include "platform/xml/XmlText.h"
#include "symbollist/file/ListFile.h"

namespace tq {
namespace {

std::size_t SizeOf(const CString& text) {
  return static_cast<std::size_t>(text.GetLength());
}

// How often `what`, which is not empty, stands in `text`.
std::size_t CountIn(const CString& text, const CString& what) {
  std::size_t count = 0;
  const char* const end = text.GetString() + text.GetLength();
  const char* at = text.GetString();
  while ((at = FindText(at, end, what, SizeOf(what))) != nullptr) {
    at += what.GetLength();
    ++count;
  }
  return count;
}

} // namespace

// The growth is computed before a byte is written, since one pair of long texts could need more
// memory than there is. Both factors are lengths of strings, so their product fits.
bool ReplaceWithin(CString& text, const CString& what, const CString& with, std::size_t limit) {
  if (with.GetLength() > what.GetLength() && !what.IsEmpty()) {
    const std::size_t added = SizeOf(with) - SizeOf(what);
    if (SizeOf(text) + CountIn(text, what) * added > limit)
      return false;
  }
  text.Replace(what, with);
  return true;
}

namespace {

// Plain substrings of the whole string, not ids: an old id that is part of a longer one is replaced
// there too. Callers rename whole families of ids by their common prefix.
bool ReplaceEach(CString& ids, const CStringArray& oldIds, const CStringArray& newIds,
                 size_t limit) {
  const int pairs = std::min(oldIds.GetSize(), newIds.GetSize());
  for (int k = 0; k < pairs; ++k) {
    if (!ReplaceWithin(ids, oldIds[k], newIds[k], limit))
      return false;
  }
  return true;
}

} // namespace

bool ReplaceInAll(const OwnedLists& lists, const CStringArray& oldIds, const CStringArray& newIds,
                  std::vector<ReplacedIds>& replaced) {
  size_t length = ListFileLength(lists.All());
  const size_t limit = std::max(kXmlSizeLimit, length);
  for (const auto& list : lists.All()) {
    const CString before = list->GetIDs();
    const size_t others = length - SizeOf(before);
    CString now = before;
    if (!ReplaceEach(now, oldIds, newIds, limit - others))
      return false;
    length = others + SizeOf(now);
    replaced.push_back({list.get(), before, now});
  }
  return true;
}

} // namespace tq
