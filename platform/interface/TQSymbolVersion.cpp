#include "platform/interface/TQSymbolVersion.h"

int tqSymbolVersion(void) noexcept {
  return TQSYMBOL_VERSION;
}
