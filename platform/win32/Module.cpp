#include "platform/Module.h"

#include <windows.h>

#include "platform/CodePage.h"

namespace {

const char kInThisModule = 0;

bool processIsEnding = false;

} // namespace

// Called before the library's static objects are destroyed. `ofProcess` is null when only the
// library is unloaded.
extern "C" BOOL WINAPI DllMain(HINSTANCE /*library*/, DWORD reason, LPVOID ofProcess) {
  if (reason == DLL_PROCESS_DETACH)
    processIsEnding = ofProcess != nullptr;
  return TRUE;
}

namespace tq {

std::string OwnModulePath() {
  char path[kModulePathLimit + 1];
  const DWORD length = ::GetModuleFileNameA(static_cast<HMODULE>(OwnModule()), path,
                                            static_cast<DWORD>(sizeof path));
  return CutModulePath(std::string(path, length)); // a full buffer may end in half a character
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

bool ProcessIsEnding() {
  return processIsEnding;
}

} // namespace tq
