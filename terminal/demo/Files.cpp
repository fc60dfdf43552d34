#include "terminal/demo/Files.h"

#include <sys/stat.h>

#include <fstream>
#include <iterator>

namespace demo {

bool IsDirectory(const std::string& path) {
  struct stat status = {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

ReadResult ReadFile(const std::string& path, std::string& bytes) {
  bytes.clear();
  struct stat status = {};
  if (stat(path.c_str(), &status) != 0)
    return ReadResult::Missing;
  std::ifstream file(path, std::ios::binary);
  if (!file || !S_ISREG(status.st_mode))
    return ReadResult::Unreadable;
  bytes.assign(std::istreambuf_iterator<char>(file), {});
  return file.bad() ? ReadResult::Unreadable : ReadResult::Read;
}

bool WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  return file.flush().good();
}

} // namespace demo
