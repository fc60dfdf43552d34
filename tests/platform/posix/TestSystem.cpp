#include "tests/platform/TestSystem.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tqtest {

namespace fs = std::filesystem;

TestDirectory::TestDirectory(const std::string& name) {
  std::string pattern = (fs::temp_directory_path() / "tqXXXXXX").string();
  root_ = ::mkdtemp(pattern.data());
  path_ = root_ + "/" + name;
  fs::create_directory(path_);
}

TestDirectory::~TestDirectory() {
  std::error_code ignored;
  fs::remove_all(root_, ignored);
}

std::string TestDirectory::List() const {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(path_))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  std::string list;
  for (const std::string& name : names)
    list += (list.empty() ? "" : " ") + name;
  return list;
}

namespace {

// The alarm's default action ends a process as abruptly as a kill, and is on time even when a busy
// machine does not run the parent.
void EndIn(int microseconds) {
  itimerval timer = {};
  timer.it_value.tv_usec = std::max(microseconds, 1);
  ::signal(SIGALRM, SIG_DFL);
  ::setitimer(ITIMER_REAL, &timer, nullptr);
}

} // namespace

bool RunChild(ChildBody body, const std::string& argument, int killAfter) {
  const pid_t child = ::fork();
  if (child == 0) {
    if (killAfter != kNotKilled)
      EndIn(killAfter);
    body(argument);
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

int RandomKills() {
  return 1000;
}

int LongestLife() {
  return 1000;
}

void EndAtOnce() {
  ::kill(::getpid(), SIGKILL);
  ::_exit(1);
}

} // namespace tqtest
