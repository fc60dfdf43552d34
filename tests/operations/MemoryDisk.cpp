#include "tests/operations/MemoryDisk.h"

#include <algorithm>

namespace operations {

std::string MemoryDisk::Read(const std::string& path) const {
  const auto found = files_.find(path);
  return found == files_.end() ? std::string() : found->second.bytes;
}

bool MemoryDisk::Holds(const std::string& bytes) const {
  return std::any_of(files_.begin(), files_.end(),
                     [&bytes](const auto& file) { return file.second.bytes == bytes; });
}

tq::ReadResult MemoryDisk::ReadWholeFile(const char* path, std::size_t limit, std::string& bytes) {
  bytes.clear();
  const auto found = files_.find(path);
  if (found == files_.end())
    return tq::ReadResult::Missing;
  if (found->second.bytes.size() > limit)
    return tq::ReadResult::TooLarge;
  bytes = found->second.bytes;
  return tq::ReadResult::Ok;
}

tq::SaveResult MemoryDisk::SaveWholeFile(const char* path, const void* bytes, std::size_t size) {
  if (refuses_)
    return tq::SaveResult::NotOpened;
  Write(path, std::string(static_cast<const char*>(bytes), size));
  return tq::SaveResult::Saved;
}

tq::FileState MemoryDisk::StateOf(const char* path, tq::FileStamp& stamp) {
  const auto found = files_.find(path);
  if (found == files_.end())
    return tq::FileState::Missing;
  stamp = {};
  stamp.size = found->second.bytes.size();
  stamp.modified = found->second.modified;
  return tq::FileState::File;
}

bool MemoryDisk::RenameFile(const char* from, const char* to) {
  const auto found = files_.find(from);
  if (refuses_ || found == files_.end())
    return false;
  files_[to] = found->second;
  files_.erase(from);
  return true;
}

bool MemoryDisk::RemoveFile(const char* path) {
  return !refuses_ && files_.erase(path) != 0;
}

bool MemoryDisk::ListFiles(const char* directory, const char* prefix,
                           std::vector<std::string>& names) {
  names.clear();
  const std::string start = std::string(directory) + "\\";
  for (const auto& [path, file] : files_) {
    const std::string name = path.starts_with(start) ? path.substr(start.size()) : "";
    if (!name.empty() && tq::IsListedName(name.c_str(), prefix))
      names.push_back(name);
  }
  return true;
}

} // namespace operations
