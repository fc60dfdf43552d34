// The streams of this process, as bytes. What a system does in its own way lies in posix/ and
// win32/: setting the process up, who reads, and the words of its command line.
#pragma once

#include <string>
#include <vector>

#include "tools/tqlists/files/Streams.h"

namespace tqlists {

class ProcessStreams : public Streams {
public:
  // Sets the process up: bytes pass unchanged, text on a console is UTF-8, and a reader that went
  // away is an error of Write.
  ProcessStreams();
  ~ProcessStreams() override;
  std::size_t Read(char* bytes, std::size_t size) override;
  Written Write(std::string_view bytes) override;
  Written Flush() override;
  void Say(std::string_view bytes) override;
  bool IsWatched() override;

private:
  static Written ResultOf(bool good);
  // Whether the latest failure, which errno tells of, is that of a pipe that nobody reads any more.
  static bool ReaderWentAway();
};

// The words behind the program's name; on Windows in UTF-8.
std::vector<std::string> ArgumentsOf(int count, char** words);

} // namespace tqlists
