#include "tests/support/TempFiles.h"

#include <windows.h>

namespace tempfiles {

const char kSeparator = '\\';

std::string MakeFresh() {
  char temporary[MAX_PATH + 1] = {};
  const DWORD length = GetTempPathA(sizeof temporary, temporary); // ends in a separator
  if (length == 0 || length > MAX_PATH)
    return std::string();
  constexpr int kTries = 1000;
  static unsigned number = 0;
  for (int i = 0; i < kTries; ++i) {
    const std::string path = std::string(temporary) + "tq-" +
                             std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++number);
    if (MakeDirectory(path))
      return path;
  }
  return std::string();
}

bool MakeDirectory(const std::string& path) {
  return CreateDirectoryA(path.c_str(), nullptr) != 0;
}

bool IsDirectory(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool Exists(const std::string& path) {
  return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::vector<std::string> List(const std::string& path) {
  std::vector<std::string> names;
  WIN32_FIND_DATAA entry{};
  const HANDLE search = FindFirstFileA((path + "\\*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE)
    return names;
  do {
    const std::string name = entry.cFileName;
    if (name != "." && name != "..")
      names.push_back(name);
  } while (FindNextFileA(search, &entry));
  FindClose(search);
  return names;
}

void RemoveTree(const std::string& path) {
  SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  if (!IsDirectory(path)) {
    DeleteFileA(path.c_str());
    return;
  }
  for (const std::string& name : List(path))
    RemoveTree(path + kSeparator + name);
  RemoveDirectoryA(path.c_str());
}

} // namespace tempfiles
