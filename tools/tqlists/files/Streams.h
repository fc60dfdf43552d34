// The three streams of the program: what is piped in, what it answers, what it has to say.
#pragma once

#include <cstddef>
#include <string_view>

namespace tqlists {

enum class Written {
  Yes,
  Closed, // nobody reads any more, as behind `| head`
  Failed,
};

// The process's own, or a test's.
class Streams {
public:
  virtual ~Streams() = default;
  // Reads up to `size` bytes of standard input; 0 at its end.
  virtual std::size_t Read(char* bytes, std::size_t size) = 0;
  // Writes to standard output.
  virtual Written Write(std::string_view bytes) = 0;
  // What was written reaches who reads it.
  virtual Written Flush() = 0;
  // Writes to standard error. A failure is passed over.
  virtual void Say(std::string_view bytes) = 0;
  // Whether a person reads standard error.
  virtual bool IsWatched() = 0;
};

} // namespace tqlists
