// The streams of this process, as bytes. A body for each system.
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
};

// The words behind the program's name; on Windows in UTF-8.
std::vector<std::string> ArgumentsOf(int count, char** words);

} // namespace tqlists
