// Replacing ids in the symbol strings of all lists, bounded by what a list file can hold.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/framework/CString.h"
#include "platform/framework/CStringArray.h"
#include "symbollist/OwnedLists.h"

namespace tq {

// Replaces each `what` in `text` by `with`, as CString::Replace does. False, with `text` unchanged,
// when the result would be longer than `limit` bytes.
bool ReplaceWithin(CString& text, const CString& what, const CString& with, std::size_t limit);

struct ReplacedIds {
  CSymbolList* list;
  CString before;
  CString now;
};

// Works out the new symbol string of every list: each occurrence of the k-th old id is replaced by
// the k-th new one, for all k in turn; of arrays of different sizes the shorter counts. The lists
// themselves are not changed. False when their list file would exceed the size limit for loading
// (platform/xml/XmlText.h), or grow if it exceeds it already, also between two replacements: a few
// pairs that double the text would take all memory.
bool ReplaceInAll(const OwnedLists& lists, const CStringArray& oldIds, const CStringArray& newIds,
                  std::vector<ReplacedIds>& replaced);

} // namespace tq
