// What the program writes: a new file, which is whole or not there, or standard output.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "tools/tqlists/files/Streams.h"

namespace tqlists {

enum class Existing { Refuse, Replace };

// Collects bytes and hands them on in large pieces. Every operation throws an Ending when the bytes
// cannot be written.
class Output {
public:
  virtual ~Output() = default;
  void Write(std::string_view bytes);
  // Everything has been written. Without it a file does not come into being.
  void Commit();

  // `path` "-" is standard output. Throws an Ending of kUsage for a file that exists and is not to
  // be replaced.
  static std::unique_ptr<Output> Open(const std::string& path, Existing existing, Streams& streams);

protected:
  virtual void Send(std::string_view bytes) = 0;
  virtual void Finish() = 0;

private:
  std::string waiting_;
};

} // namespace tqlists
