#include "tests/support/HeldObjects.h"

#include <dirent.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "terminal/StandIn.h"

namespace {

// The window system keeps the fonts that it has used, and what its threads wake each other by, as
// long as it likes. The library has neither.
bool IsWindowSystems(const char* number) {
  char file[512] = {};
  const std::string link = std::string("/proc/self/fd/") + number;
  return ::readlink(link.c_str(), file, sizeof file - 1) > 0 &&
         (std::strstr(file, "/fonts/") != nullptr || std::strstr(file, "[eventfd]") != nullptr);
}

} // namespace

// The directory that is looked through counts itself, each time alike. The files of loggers are the
// log service's.
long HeldObjects() {
  long count = 0;
  DIR* const own = ::opendir("/proc/self/fd");
  if (own == nullptr)
    return -1;
  while (const dirent* const entry = ::readdir(own))
    count += IsWindowSystems(entry->d_name) ? 0 : 1;
  ::closedir(own);
  return count - standin::LoggersAlive();
}

LeftOpen::LeftOpen() : object_(std::fopen("/dev/null", "r")) {}

LeftOpen::~LeftOpen() {
  std::fclose(static_cast<std::FILE*>(object_));
}
