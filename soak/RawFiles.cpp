#include "soak/RawFiles.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/FileAccess.h"
#include "platform/SaveSteps.h"

namespace soak {

namespace fs = std::filesystem;

std::string SystemPath(std::string_view path) {
  std::string text(path);
  const std::size_t separator = tq::SeparatorOf(text.c_str());
  if (separator != std::string::npos)
    text[separator] = '/';
  return text;
}

bool ReadRaw(std::string_view path, std::string& bytes) {
  bytes.clear();
  std::ifstream file(SystemPath(path), std::ios::binary);
  if (!file)
    return false;
  bytes.assign(std::istreambuf_iterator<char>(file), {});
  return true;
}

void WriteRaw(std::string_view path, std::string_view bytes) {
  std::ofstream(SystemPath(path), std::ios::binary) << bytes;
}

void SetTimeAhead(std::string_view path, int seconds) {
  std::error_code ignored;
  fs::last_write_time(SystemPath(path),
                      fs::file_time_type::clock::now() + std::chrono::seconds(seconds), ignored);
}

Contents ContentsOf(const std::string& directory) {
  Contents contents;
  std::error_code ignored;
  for (const fs::directory_entry& entry : fs::directory_iterator(directory, ignored)) {
    const std::string name = entry.path().filename().string();
    const std::string path = directory + "\\" + name;
    if (!name.ends_with(tq::kTemporarySuffix))
      ReadRaw(path, contents[path]);
  }
  return contents;
}

void Fill(const std::string& directory, const Contents& contents) {
  RemoveDirectory(directory);
  fs::create_directories(directory);
  for (const auto& [path, bytes] : contents)
    WriteRaw(directory + path.substr(path.rfind('\\')), bytes);
}

std::string TemporaryDirectory() {
  std::error_code ignored;
  const fs::path memory = "/dev/shm";
  return fs::is_directory(memory, ignored) ? memory.string() : fs::temp_directory_path().string();
}

void RemoveDirectory(const std::string& directory) {
  std::error_code ignored;
  fs::remove_all(directory, ignored);
}

} // namespace soak
