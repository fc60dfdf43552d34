#include "platform/interface/TQSymbolText.h"

CString TQSystemPath(const char* path) noexcept {
  return CString(path);
}
