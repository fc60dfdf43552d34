#include "platform/interface/TQSymbolVersion.h"

int tqFrameworkVersion(void) noexcept {
  return TQSYMBOL_VERSION;
}
