// A file system of one file in memory, so that no fuzzer touches the disk.
#pragma once

#include <string>
#include <utility>

#include "platform/FileAccess.h"

namespace fuzz {

// Takes the place of the library's files while it lives.
class MemoryFiles : public tq::FileAccess {
public:
  explicit MemoryFiles(std::string bytes)
      : content(std::move(bytes)), before_(tq::SetFiles(this)) {}
  ~MemoryFiles() override { tq::SetFiles(before_); }
  MemoryFiles(const MemoryFiles&) = delete;
  MemoryFiles& operator=(const MemoryFiles&) = delete;

  tq::ReadResult ReadWholeFile(const char*, std::size_t limit, std::string& bytes) override {
    bytes.clear();
    if (content.size() > limit)
      return tq::ReadResult::TooLarge;
    bytes = content;
    return tq::ReadResult::Ok;
  }
  tq::SaveResult SaveWholeFile(const char*, const void* bytes, std::size_t size) override {
    content.assign(static_cast<const char*>(bytes), size);
    ++saves;
    return tq::SaveResult::Saved;
  }
  bool DirectoryExists(const char*) override { return true; }
  bool FileExists(const char*) override { return true; }
  std::int64_t LastWriteTime(const char*) override { return 0; }
  bool RenameFile(const char*, const char*) override { return true; }

  std::string content;
  int saves = 0;

private:
  tq::FileAccess* before_;
};

} // namespace fuzz
