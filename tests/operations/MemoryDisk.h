// A data directory in memory that replaces the library's files during its lifetime.
#pragma once

#include <map>
#include <string>

#include "platform/FileAccess.h"

namespace operations {

class MemoryDisk : public tq::FileAccess {
public:
  MemoryDisk() : before_(tq::SetFiles(this)) {}
  ~MemoryDisk() override { tq::SetFiles(before_); }
  MemoryDisk(const MemoryDisk&) = delete;
  MemoryDisk& operator=(const MemoryDisk&) = delete;

  void Write(const std::string& path, const std::string& bytes) { files_[path] = {bytes, ++time_}; }
  // Empty when there is no such file.
  std::string Read(const std::string& path) const;
  // Whether any file holds these very bytes.
  bool Holds(const std::string& bytes) const;
  // From now on no file can be written.
  void Refuse(bool refuse) { refuses_ = refuse; }

  tq::ReadResult ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) override;
  tq::SaveResult SaveWholeFile(const char* path, const void* bytes, std::size_t size) override;
  bool DirectoryExists(const char*) override { return true; }
  bool FileExists(const char* path) override { return files_.contains(path); }
  tq::FileState StateOf(const char* path, tq::FileStamp& stamp) override;
  bool RenameFile(const char* from, const char* to) override;
  bool RemoveFile(const char* path) override;
  bool ListFiles(const char* directory, const char* prefix,
                 std::vector<std::string>& names) override;

private:
  struct File {
    std::string bytes;
    std::uint64_t modified = 0;
  };

  std::map<std::string, File> files_;
  std::uint64_t time_ = 0;
  bool refuses_ = false;
  tq::FileAccess* before_;
};

} // namespace operations
