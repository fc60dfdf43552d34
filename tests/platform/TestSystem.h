// What the file tests ask of the operating system beyond the library's own seam.
#pragma once

#include <string>

namespace tqtest {

// A new, empty directory under the system's temporary directory, removed with all in it at the end.
// `name` is bytes in the process's code page.
class TestDirectory {
public:
  explicit TestDirectory(const std::string& name);
  ~TestDirectory();
  TestDirectory(const TestDirectory&) = delete;
  TestDirectory& operator=(const TestDirectory&) = delete;

  const std::string& Path() const { return path_; }
  // A file in it, as the library joins the name, and as the system's own calls take it.
  std::string File(const std::string& name) const { return path_ + "\\" + name; }
  std::string OsFile(const std::string& name) const { return path_ + "/" + name; }

  // The test's own reading and writing, not the library's. Read gives "(none)" for a missing file.
  std::string Read(const std::string& name) const;
  void Write(const std::string& name, const std::string& bytes) const;
  // Names in the directory, in order, joined by blanks.
  std::string List() const;

private:
  std::string root_;
  std::string path_;
};

// What a child process does; ends before the process when it is killed.
using ChildBody = void (*)(const std::string& argument);

constexpr int kNotKilled = -1;

// Runs `body` in another process, on Windows by starting this program again. Kills it after so many
// microseconds unless kNotKilled, and waits for its end. True when it came to its own end.
bool RunChild(ChildBody body, const std::string& argument, int killAfter = kNotKilled);

// How many kills at random times this system can do in about two seconds.
int RandomKills();
// Microseconds that a child needs to start and save a few times.
int LongestLife();

// Ends this process as a kill does.
[[noreturn]] void EndAtOnce();

// On Windows a child is this program again: the bodies it can be asked for.
int ChildBodyNumber(ChildBody body);
ChildBody ChildBodyByNumber(int number);

} // namespace tqtest
