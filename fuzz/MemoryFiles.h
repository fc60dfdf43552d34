// A file system in memory for the list file and its copies, so that no fuzzer touches the disk.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/FileAccess.h"

namespace fuzz {

// Replaces the library's files during its lifetime.
class MemoryFiles : public tq::FileAccess {
public:
  explicit MemoryFiles(std::string bytes)
      : content(std::move(bytes)), before_(tq::SetFiles(this)) {}
  ~MemoryFiles() override { tq::SetFiles(before_); }
  MemoryFiles(const MemoryFiles&) = delete;
  MemoryFiles& operator=(const MemoryFiles&) = delete;

  tq::ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) override {
    bytes.clear();
    const std::string& held = IsCopy(path) ? copies[path] : content;
    if (held.size() > limit)
      return tq::ReadResult::TooLarge;
    bytes = held;
    return tq::ReadResult::Ok;
  }
  tq::SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) override {
    (IsCopy(path) ? copies[path] : content).assign(static_cast<const char*>(bytes), size);
    saves += IsCopy(path) ? 0 : 1;
    return tq::SaveResult::Saved;
  }
  bool DirectoryExists(const char*) override { return true; }
  bool FileExists(const char*) override { return true; }
  tq::FileState StateOf(const char* path, tq::FileStamp& stamp) override {
    stamp = {};
    if (IsCopy(path) && copies.count(path) == 0)
      return tq::FileState::Missing;
    stamp.size = (IsCopy(path) ? copies[path] : content).size();
    stamp.modified = static_cast<std::uint64_t>(saves) + 1;
    return tq::FileState::File;
  }
  bool RenameFile(const char*, const char*) override { return true; }
  bool RemoveFile(const char*) override { return false; }
  bool ListFiles(const char*, const char*, std::vector<std::string>& names) override {
    names.clear();
    return true;
  }

  static bool IsCopy(const char* path) {
    return std::string(path).find("_Kept") != std::string::npos;
  }

  std::string content;
  int saves = 0; // of the list file
  std::map<std::string, std::string> copies;

private:
  tq::FileAccess* before_;
};

} // namespace fuzz
