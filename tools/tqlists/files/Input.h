// A file, or what is piped in, read whole.
#pragma once

#include <string>
#include <vector>

#include "tools/tqlists/files/Streams.h"
#include "tools/tqlists/files/SystemFile.h"

namespace tqlists {

inline constexpr char kStandardStream[] = "-";

struct Input {
  std::string path;
  std::string bytes;

  // As messages name it.
  std::string Name() const { return path == kStandardStream ? "standard input" : path; }
  // The file's name without its directory and ending.
  std::string Stem() const;
};

// "-" is standard input. Throws an Ending when it cannot be read.
Input ReadInput(const std::string& path, Streams& streams);

// Throws an Ending of kUsage when standard input is named twice.
void RefuseStandardInputTwice(const std::vector<std::string>& paths);

// Throws an Ending of kUsage when `output` is one of the inputs, by whatever name.
void RefuseSameFile(const std::vector<std::string>& inputs, const std::string& output);

} // namespace tqlists
