#include "tools/tqlists/files/Input.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>

#include "tools/tqlists/files/Outcome.h"

namespace tqlists {
namespace {

constexpr std::size_t kChunk = std::size_t{1} << 20;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

[[noreturn]] void CannotRead(const std::string& path) {
  throw Ending(kTrouble, path + ": cannot be read: " + std::strerror(errno));
}

// Appends what `read(bytes, size)` gives until it gives nothing.
template <typename Read> void AppendAll(std::string& bytes, Read read) {
  for (;;) {
    const std::size_t start = bytes.size();
    bytes.resize(start + kChunk);
    const std::size_t got = read(bytes.data() + start, kChunk);
    bytes.resize(start + got);
    if (got == 0)
      return;
  }
}

void ReadFileInto(const std::string& path, std::string& bytes) {
  const std::unique_ptr<std::FILE, CloseFile> file(OpenFile(path));
  if (!file)
    CannotRead(path);
  bytes.reserve(SizeOf(file.get()) + kChunk);
  AppendAll(bytes, [&](char* to, std::size_t size) { return std::fread(to, 1, size, file.get()); });
  if (std::ferror(file.get()) != 0)
    CannotRead(path);
}

} // namespace

std::string Input::Stem() const {
  const std::size_t slash = path.find_last_of("/\\");
  const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  const std::size_t dot = name.rfind('.');
  return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

Input ReadInput(const std::string& path, Streams& streams) {
  Input input{path, {}};
  if (path == kStandardStream)
    AppendAll(input.bytes, [&](char* to, std::size_t size) { return streams.Read(to, size); });
  else
    ReadFileInto(path, input.bytes);
  return input;
}

void RefuseStandardInputTwice(const std::vector<std::string>& paths) {
  if (std::count(paths.begin(), paths.end(), kStandardStream) > 1)
    throw Ending(kUsage, "standard input can be read once only");
}

void RefuseSameFile(const std::vector<std::string>& inputs, const std::string& output) {
  FileIdentity written;
  if (output == kStandardStream || !IdentityOf(output, written))
    return;
  for (const std::string& path : inputs) {
    FileIdentity read;
    if (path != kStandardStream && IdentityOf(path, read) && read == written)
      throw Ending(kUsage, output + ": is the file that is read; a new file is written, always");
  }
}

} // namespace tqlists
