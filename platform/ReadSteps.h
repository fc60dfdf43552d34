// The steps of reading one file whole while others may write it in place. Apart, so that a test
// changes the file at each of them.
#pragma once

#include <cstddef>
#include <string>

#include "platform/FileAccess.h"

namespace tq {

// How often a file is read that changes under the reader's hands.
inline constexpr int kReadTries = 5;

// One open file.
class ReadSteps {
public:
  virtual ~ReadSteps() = default;

  // What the system tells of the file now. False when it is none that can be read whole.
  virtual bool Stamp(FileStamp& stamp) = 0;
  // Fills all of `bytes`, whose size stays, from the file's start. False when the file has fewer.
  virtual bool Read(std::string& bytes) = 0;
  // Lets a writer finish.
  virtual void Pause() = 0;
};

// Takes the steps. `bytes` is the whole file with Ok and empty otherwise.
ReadResult RunRead(ReadSteps& steps, std::size_t limit, std::string& bytes);

} // namespace tq
