#include "platform/Module.h"

namespace tq {

std::string OwnModuleDirectory() {
  return DirectoryOf(OwnModulePath());
}

} // namespace tq
