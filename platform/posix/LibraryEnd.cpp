#include "platform/LibraryEnd.h"

namespace tq {

bool ProcessIsEnding() {
  return false;
}

} // namespace tq
