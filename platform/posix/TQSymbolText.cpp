#include "platform/interface/TQSymbolText.h"

#include "platform/posix/SystemPath.h"

CString TQSystemPath(const char* path) noexcept {
  return path == nullptr ? CString() : CString(tq::SystemPath(path).c_str());
}
