// The file system's calls, each of which a test lets fail as the kernel may. For the calls of the
// test program itself, which the library's objects are a part of.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tqtest {

enum class Failure {
  Error, // the call is not made, and errno says why
  Short, // a read or write does half
};

struct Fault {
  std::string call; // "open", "fsync", ...
  int turn = 1;     // the first such call, the second, ...; 0: all of them
  int error = 0;    // errno
  Failure failure = Failure::Error;
  std::function<void()> before = nullptr; // run in front of the call
};

// While one lives, its faults are in force. One at a time.
class Faults {
public:
  explicit Faults(std::vector<Fault> faults);
  ~Faults();
  Faults(const Faults&) = delete;
  Faults& operator=(const Faults&) = delete;

  // How often each call has been made since.
  const std::map<std::string, int>& Made() const { return made_; }

  // Null when the call is to be made as it is.
  const Fault* Strike(const char* call);

private:
  const std::vector<Fault> faults_;
  std::map<std::string, int> made_;
};

} // namespace tqtest
