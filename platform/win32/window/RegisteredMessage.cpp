#include "platform/framework/window/RegisteredMessage.h"

#include <windows.h>

namespace tq {

unsigned RegisterMessage(const char* name) {
  return name == nullptr || *name == '\0' ? 0 : ::RegisterWindowMessageA(name);
}

} // namespace tq
