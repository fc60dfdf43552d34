#include "tools/tqlists/files/ProcessStreams.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace tqlists {
namespace {

Written ResultOf(bool good) {
  if (good)
    return Written::Yes;
  return errno == EPIPE ? Written::Closed : Written::Failed;
}

} // namespace

ProcessStreams::ProcessStreams() {
  std::signal(SIGPIPE, SIG_IGN);
}

ProcessStreams::~ProcessStreams() = default;

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

bool ProcessStreams::IsWatched() {
  return ::isatty(STDERR_FILENO) != 0;
}

std::vector<std::string> ArgumentsOf(int count, char** words) {
  return {words + (count > 0 ? 1 : 0), words + count};
}

} // namespace tqlists
