// Reading a whole file that other programs may write in place, split into steps, so that a test can
// change the file at each of them.
#pragma once

#include <cstddef>
#include <string>

#include "platform/FileAccess.h"

namespace tq {

// How often a file is read that changes meanwhile.
inline constexpr int kReadTries = 5;

// One open file.
class ReadSteps {
public:
  virtual ~ReadSteps() = default;

  // What the system tells about the file now. False when it is no regular file.
  virtual bool Stamp(FileStamp& stamp) = 0;
  // Fills `bytes`, without changing its size, from the start of the file. False when the file is
  // shorter.
  virtual bool Read(std::string& bytes) = 0;
  // Lets a writer finish.
  virtual void Pause() = 0;
};

// Runs the steps. `bytes` is the whole file with Ok and empty otherwise.
ReadResult RunRead(ReadSteps& steps, std::size_t limit, std::string& bytes);

} // namespace tq
