// The text of a list file, as the manager writes it. docs/list-file.md describes it byte for byte.
#pragma once

#include <string>

#include "platform/framework/CPtrArray.h"

namespace tq {

// Names of the list files, put behind the data directory as they stand.
inline constexpr char kListFileName[] = "\\SymbolList.xml";
inline constexpr char kBackupFileName[] = "\\SymbolList_Backup.xml";

// The whole document: declaration in the interface's language, the default index, and one line for
// each CSymbolList of `lists` in order. With a negative default index no list is written: that is
// the file of a manager that has no lists. Text is in the process's ANSI code page, unescaped.
std::string ListFileText(const CPtrArray& lists, int defaultIndex);

// The same, where the lists may be many. False, with `text` not to be used, when it is not within
// the bounds that hold for loading one (platform/xml/XmlText.h), for what is saved must be readable, or
// when there is no memory for it.
bool MakeListFileText(const CPtrArray& lists, int defaultIndex, std::string& text);

// The length of that text, or a little more: no list file of these lists is longer.
size_t ListFileLength(const CPtrArray& lists);

} // namespace tq
