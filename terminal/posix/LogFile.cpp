#include "terminal/TQLog/LogFile.h"

#include <sys/stat.h>

namespace standin {
namespace {

constexpr mode_t kDirectoryMode = 0755;

bool IsDirectory(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// Turns the backslash in front of the directory's last level into a slash. A path may be in any
// encoding, and a character may end in that byte, so the last backslash counts only when the text
// in front of it is an existing directory.
std::string SystemPath(const std::string& directory) {
  const std::size_t join = directory.rfind('\\');
  if (join == std::string::npos || IsDirectory(directory) ||
      !IsDirectory(directory.substr(0, join)))
    return directory;
  return directory.substr(0, join) + "/" + directory.substr(join + 1);
}

} // namespace

std::FILE* OpenLogFile(const std::string& directory, const std::string& name) {
  const std::string path = SystemPath(directory);
  mkdir(path.c_str(), kDirectoryMode);
  return std::fopen((path + "/" + name).c_str(), "ab");
}

std::tm Now() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return local;
}

} // namespace standin
