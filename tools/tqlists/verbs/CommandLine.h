// The words behind the program's name.
#pragma once

#include <string>
#include <vector>

#include "tools/tqlists/verbs/Request.h"

namespace tqlists {

struct CommandLine {
  Request request;
  // Where there is nothing to do but to say something: help, or what is wrong with the words.
  bool isDone = false;
  int code = 0;
  std::string out;
  std::string err;
};

CommandLine ReadCommandLine(std::vector<std::string> words);

} // namespace tqlists
