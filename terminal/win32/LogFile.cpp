#include "terminal/TQLog/LogFile.h"

#include <windows.h>

namespace standin {

std::FILE* OpenLogFile(const std::string& directory, const std::string& name) {
  CreateDirectoryA(directory.c_str(), nullptr);
  return std::fopen((directory + "\\" + name).c_str(), "ab");
}

std::tm Now() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_s(&local, &now);
  return local;
}

} // namespace standin
