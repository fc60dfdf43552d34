// What the file tests need of the operating system beyond the library's own interface to it.
#pragma once

#include <string>

namespace tqtest {

// A new, empty directory below the system's temporary directory, removed with its contents by the
// destructor. `name` is in the process's code page.
class TestDirectory {
public:
  explicit TestDirectory(const std::string& name);
  ~TestDirectory();
  TestDirectory(const TestDirectory&) = delete;
  TestDirectory& operator=(const TestDirectory&) = delete;

  const std::string& Path() const { return path_; }
  // The path of a file in it, as the library joins it and as the system's own calls take it.
  std::string File(const std::string& name) const { return path_ + "\\" + name; }
  std::string OsFile(const std::string& name) const { return path_ + "/" + name; }

  // Read and write without the library. Read returns "(none)" for a missing file.
  std::string Read(const std::string& name) const;
  void Write(const std::string& name, const std::string& bytes) const;
  // The names in the directory, sorted, joined by blanks.
  std::string List() const;

private:
  std::string root_;
  std::string path_;
};

// What a child process runs. A kill ends it early.
using ChildBody = void (*)(const std::string& argument);

constexpr int kNotKilled = -1;

// Runs `body` in a child process, on Windows by starting this program again. Kills it after so many
// microseconds unless kNotKilled, and waits for its end. True when it was not killed.
bool RunChild(ChildBody body, const std::string& argument, int killAfter = kNotKilled);

// How many kills at random times this system can do in about two seconds.
int RandomKills();
// Microseconds that a child needs to start and save a few times.
int LongestLife();

// Ends this process as abruptly as a kill.
[[noreturn]] void EndAtOnce();

// The bodies that can run in a child, which on Windows is this program started again.
int ChildBodyNumber(ChildBody body);
ChildBody ChildBodyByNumber(int number);

} // namespace tqtest
