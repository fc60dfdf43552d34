// Apart from Encoding.cpp, which programs use that have no terminal to ask.
#include "platform/Encoding.h"
#include "platform/services/tqCommon.h"

namespace tq {

unsigned AnsiCodePage() {
  return ::IsTraditionChinese() != 0 ? kCodePageBig5 : kCodePageGbk;
}

} // namespace tq
