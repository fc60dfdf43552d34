#include "tools/tqlists/files/ProcessStreams.h"

#include <cerrno>
#include <csignal>
#include <unistd.h>

namespace tqlists {

ProcessStreams::ProcessStreams() {
  std::signal(SIGPIPE, SIG_IGN);
}

ProcessStreams::~ProcessStreams() = default;

bool ProcessStreams::ReaderWentAway() {
  return errno == EPIPE;
}

bool ProcessStreams::IsWatched() {
  return ::isatty(STDERR_FILENO) != 0;
}

std::vector<std::string> ArgumentsOf(int count, char** words) {
  return {words + (count > 0 ? 1 : 0), words + count};
}

} // namespace tqlists
