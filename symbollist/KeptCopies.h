// Copies of a list file that are put beside it before it is written over.
#pragma once

#include <string>

#include "platform/framework/CString.h"

namespace tq {

// So many copies of one file are kept; then the oldest goes.
inline constexpr int kKeptCopies = 10;

// The name of a copy, 0 to kKeptCopies - 1: "_Kept" and, from 1 on, the number in front of the
// file's ".xml" ("\SymbolList_Kept.xml", "\SymbolList_Kept1.xml").
CString KeptCopyPath(const CString& path, int number);

enum class KeepResult {
  Kept,
  KeptBefore, // one of the copies holds these very bytes
  Failed,     // none of the names can be written
};

// Puts `bytes`, the contents of the file at `path`, into a copy: under the first name that is free,
// else in the place of the oldest copy. What bears such a name and is no file, or may not be
// written, is passed over. `number` is the copy that was made before by the caller, -1 for none,
// and becomes the one that holds the bytes; it tells copies apart that are of one time. A copy is a
// save (FileAccess::SaveWholeFile): whatever ends the process, each copy is an older one or this
// one.
KeepResult KeepCopy(const CString& path, const std::string& bytes, int& number);

} // namespace tq
