// The first line of the files that the library writes.
#pragma once

#include "platform/services/tqCommon.h"

namespace tq {

// The XML declaration of the interface's language, with its line feed.
inline const char* FileDeclaration() {
  return IsTraditionChinese() ? "<?xml version='1.0' encoding='big5' ?>\n"
                              : "<?xml version='1.0' encoding='gb2312' ?>\n";
}

} // namespace tq
