// What the library holds of the operating system: what it opened and did not close.
#pragma once

// On POSIX the process's open file descriptors, those of loggers excepted. On Windows what the
// library itself counts, files, windows, fonts and references of COM among it: the system does not
// count all of it.
long HeldObjects();

// Opens one such object through the library's own class and leaves it open, as a defect would.
// Takes it back when it goes.
class LeftOpen {
public:
  LeftOpen();
  ~LeftOpen();
  LeftOpen(const LeftOpen&) = delete;
  LeftOpen& operator=(const LeftOpen&) = delete;

private:
  void* object_;
};
