// A line that tells a person how far the work is, once it has taken a second.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

#include "tools/tqlists/files/Streams.h"

namespace tqlists {

class Progress {
public:
  // `what` is the file's name, `total` its size in bytes.
  Progress(std::string what, std::size_t total, Streams& streams);
  // Erases the line.
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // So many bytes of the file have been worked on.
  void At(std::size_t done);

private:
  using Clock = std::chrono::steady_clock;

  const std::string what_;
  const std::size_t total_;
  Streams& streams_;
  Clock::time_point next_; // when the line is written again
  std::size_t shown_ = 0;  // its length
};

} // namespace tqlists
