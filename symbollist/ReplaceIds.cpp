#include "symbollist/ReplaceIds.h"

#include "platform/CodePage.h"

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

// Growth is worked out before a byte is written: one pair of long texts could ask for more memory
// than there is. Both factors are lengths of strings, so their product fits.
bool ReplaceWithin(CString& text, const CString& what, const CString& with, std::size_t limit) {
  if (with.GetLength() > what.GetLength() && !what.IsEmpty()) {
    const std::size_t added = SizeOf(with) - SizeOf(what);
    if (SizeOf(text) + CountIn(text, what) * added > limit)
      return false;
  }
  text.Replace(what, with);
  return true;
}

} // namespace tq
