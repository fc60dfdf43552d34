#include "platform/Module.h"

#include "platform/CodePage.h"

#include <windows.h>

namespace tq {
namespace {

const char kInThisModule = 0;

} // namespace

std::string OwnModulePath() {
  char path[kModulePathLimit + 1];
  const DWORD length = ::GetModuleFileNameA(static_cast<HMODULE>(OwnModule()), path,
                                            static_cast<DWORD>(sizeof path));
  // A path that was cut may end in half a character.
  return std::string(path, CutLength(path, length, kModulePathLimit));
}

void* OwnModule() {
  HMODULE module = nullptr;
  ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       &kInThisModule, &module);
  return module;
}

std::string DirectoryOf(const std::string& path) {
  const char* const start = path.c_str();
  const char* const end = start + path.size();
  const char* separator = start;
  for (const char* at = start; at != end; at = NextChar(at, end)) {
    if (*at == '\\' || *at == '/')
      separator = at;
  }
  return std::string(start, separator);
}

} // namespace tq
