// Reading a whole file that other programs may write in place, split into steps, so that a test can
// change the file at each of them.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "platform/FileAccess.h"

namespace tq {

// How often a file is read that changes meanwhile.
inline constexpr int kReadTries = 5;

// The reads of one file. The destructor closes it.
class ReadSteps {
public:
  virtual ~ReadSteps() = default;

  // Comes first. Ok, Missing or Failed.
  virtual ReadResult Open() = 0;
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

// The operating system's steps for the file at `path` (see FileAccess.h for paths). Never null.
std::unique_ptr<ReadSteps> MakeReadSteps(const char* path);

} // namespace tq
