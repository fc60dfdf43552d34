#include "terminal/control/OwnDirectory.h"

#include <windows.h>

#include "platform/CodePage.h"

namespace standin {
namespace {

const char kInThisLibrary = 0;

} // namespace

std::string OwnDirectory() {
  HMODULE library = nullptr;
  ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       &kInThisLibrary, &library);
  char path[MAX_PATH + 1];
  const DWORD length = ::GetModuleFileNameA(library, path, MAX_PATH);
  const char* const end = path + length;
  const char* separator = path;
  for (const char* at = path; at < end; at = tq::NextChar(at, end))
    if (*at == '\\')
      separator = at;
  return std::string(static_cast<const char*>(path), separator);
}

} // namespace standin
