#include "tests/support/TempFiles.h"

#include <cstdlib>
#include <dirent.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace tempfiles {
namespace {

constexpr mode_t kOwnerOnly = 0700;

bool Stat(const std::string& path, struct stat& status) {
  return lstat(path.c_str(), &status) == 0;
}

} // namespace

const char kSeparator = '/';

std::string MakeFresh() {
  std::string path = std::filesystem::temp_directory_path().string() + "/tq-XXXXXX";
  return mkdtemp(path.data()) ? path : std::string();
}

bool MakeDirectory(const std::string& path) {
  return mkdir(path.c_str(), kOwnerOnly) == 0;
}

bool IsDirectory(const std::string& path) {
  struct stat status {};
  return Stat(path, status) && S_ISDIR(status.st_mode);
}

bool Exists(const std::string& path) {
  struct stat status {};
  return Stat(path, status);
}

std::vector<std::string> List(const std::string& path) {
  std::vector<std::string> names;
  DIR* directory = opendir(path.c_str());
  while (const dirent* entry = directory ? readdir(directory) : nullptr) {
    const std::string name = entry->d_name;
    if (name != "." && name != "..")
      names.push_back(name);
  }
  if (directory)
    closedir(directory);
  return names;
}

void RemoveTree(const std::string& path) {
  if (!IsDirectory(path)) {
    unlink(path.c_str());
    return;
  }
  chmod(path.c_str(), kOwnerOnly); // a test may have taken its own rights away
  for (const std::string& name : List(path))
    RemoveTree(path + kSeparator + name);
  rmdir(path.c_str());
}

} // namespace tempfiles
