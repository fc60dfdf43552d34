#include "tools/tqlists/files/ProcessStreams.h"

#include <cstdio>

namespace tqlists {

std::size_t ProcessStreams::Read(char* bytes, std::size_t size) {
  return std::fread(bytes, 1, size, stdin);
}

Written ProcessStreams::Write(std::string_view bytes) {
  return ResultOf(std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size());
}

Written ProcessStreams::Flush() {
  return ResultOf(std::fflush(stdout) == 0);
}

void ProcessStreams::Say(std::string_view bytes) {
  std::fwrite(bytes.data(), 1, bytes.size(), stderr);
}

Written ProcessStreams::ResultOf(bool good) {
  if (good)
    return Written::Yes;
  return ReaderWentAway() ? Written::Closed : Written::Failed;
}

} // namespace tqlists
