// Copies of a list file that are put beside it before it is written over.
#pragma once

#include <string>

#include "platform/framework/CString.h"

namespace tq {

// How many copies of one file are kept. The next one replaces the oldest.
inline constexpr int kKeptCopies = 10;

// The name of a copy, 0 to kKeptCopies - 1: "_Kept" and, from 1 on, the number in front of the
// file's ".xml" ("\SymbolList_Kept.xml", "\SymbolList_Kept1.xml").
CString KeptCopyPath(const CString& path, int number);

enum class KeepResult {
  Kept,
  KeptBefore, // one of the copies holds these very bytes
  Failed,     // none of the names can be written
};

// Copies `bytes`, the contents of the file at `path`: under the first free name, or else over the
// oldest copy. Names that belong to something other than a file, or that cannot be written, are
// skipped. `number` is the caller's previous copy (-1: none) and becomes the new one; it orders
// copies with equal times. A copy is made with FileAccess::SaveWholeFile, so it is never left
// incomplete.
KeepResult KeepCopy(const CString& path, const std::string& bytes, int& number);

} // namespace tq
