#include "tools/tqlists/files/ProcessStreams.h"

#include "tools/tqlists/files/win32/WideText.h"

#include <shellapi.h>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <io.h>

namespace tqlists {
namespace {

// The console's own code page, which is put back at the end.
UINT consoleCodePage = 0;

} // namespace

ProcessStreams::ProcessStreams() {
  consoleCodePage = ::GetConsoleOutputCP();
  ::_setmode(::_fileno(stdin), _O_BINARY);
  ::_setmode(::_fileno(stdout), _O_BINARY);
  ::_setmode(::_fileno(stderr), _O_BINARY);
  ::SetConsoleOutputCP(CP_UTF8);
}

ProcessStreams::~ProcessStreams() {
  std::fflush(stdout);
  if (consoleCodePage != 0)
    ::SetConsoleOutputCP(consoleCodePage);
}

// The runtime tells it as one or the other.
bool ProcessStreams::ReaderWentAway() {
  return errno == EPIPE || errno == EINVAL;
}

bool ProcessStreams::IsWatched() {
  return ::_isatty(::_fileno(stderr)) != 0;
}

// The system's own words, for those of main have lost what the code page lacks.
std::vector<std::string> ArgumentsOf(int, char**) {
  int count = 0;
  LPWSTR* const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i)
    arguments.push_back(Narrow(words[i]));
  ::LocalFree(words);
  return arguments;
}

} // namespace tqlists
