#include "platform/FileAccess.h"

#include <atomic>
#include <cstring>

namespace tq {
namespace {

std::atomic<FileAccess*> g_files{nullptr};

} // namespace

FileAccess& Files() {
  FileAccess* files = g_files.load(std::memory_order_acquire);
  return files != nullptr ? *files : SystemFiles();
}

FileAccess* SetFiles(FileAccess* files) {
  FileAccess* before = g_files.exchange(files, std::memory_order_acq_rel);
  return before != nullptr ? before : &SystemFiles();
}

bool IsListedName(const char* name, const char* prefix) {
  if (std::strncmp(name, prefix, std::strlen(prefix)) != 0)
    return false;
  for (const char* p = name; *p != '\0'; ++p) {
    if (static_cast<unsigned char>(*p) >= 0x80)
      return false;
  }
  return true;
}

std::size_t SeparatorOf(const char* path) {
  const char* last = std::strrchr(path, '\\');
  if (last == nullptr || last[1] == '\0')
    return std::string::npos;
  for (const char* p = last + 1; *p != '\0'; ++p) {
    if (*p == '/' || static_cast<unsigned char>(*p) >= 0x80)
      return std::string::npos;
  }
  return static_cast<std::size_t>(last - path);
}

} // namespace tq
