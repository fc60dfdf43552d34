#include "platform/Module.h"

#include "platform/CodePage.h"

namespace tq {

std::string OwnModuleDirectory() {
  return DirectoryOf(OwnModulePath());
}

std::string CutModulePath(std::string path) {
  path.resize(CutLength(path.data(), path.size(), kModulePathLimit));
  return path;
}

} // namespace tq
