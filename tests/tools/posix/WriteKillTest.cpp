// A process that is killed while it writes leaves the old file or the new one, and never a part.
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>

#include "tests/tools/ToolTest.h"

namespace {

class ListsKill : public ToolTest {
protected:
  // A sound file of several pieces as they are written.
  static std::string LongFile(const char* name, int lists) {
    std::string lines;
    for (int i = 0; i < lists; ++i)
      lines += ListLine(name + std::to_string(i), name, "2330.TW,2317.TW,1101.TW,0050.TW");
    return ListFile("big5", 0, lines);
  }

  int Replace(const char* from) {
    return Run({"repair", Path(from), "-o", Path("out.xml"), "--force"});
  }

  // Writes one file over the other in a child until it ends, at the latest after so long. The
  // alarm's default action ends it as abruptly as a kill.
  void KillWriter(int microseconds) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      itimerval timer = {};
      timer.it_value.tv_usec = microseconds;
      std::signal(SIGALRM, SIG_DFL);
      ::setitimer(ITIMER_REAL, &timer, nullptr);
      while (Replace("b.xml") == 0 && Replace("a.xml") == 0) {
      }
      ::_exit(1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM) << status;
  }

  // Takes away what a kill left beside the file, and says whether there was something.
  bool TakeRemains() const {
    bool any = false;
    for (int i = 0; Exists("out.xml." + std::to_string(i) + ".tmp"); ++i)
      any = std::filesystem::remove(Path("out.xml." + std::to_string(i) + ".tmp"));
    return any;
  }
};

TEST_F(ListsKill, LeavesTheOldFileOrTheNew) {
  constexpr int mostKills = 1000;
  constexpr std::chrono::milliseconds enough(1500);
  const std::string one = LongFile("a", 2000);
  const std::string other = LongFile("b", 1500);
  Put("a.xml", one);
  Put("b.xml", other);
  Put("out.xml", one);
  std::mt19937 random(20'290'101);
  std::uniform_int_distribution<int> microseconds(1, 60'000);
  const auto begin = std::chrono::steady_clock::now();
  int inTheMiddle = 0;
  for (int i = 0; i < mostKills; ++i) {
    if (inTheMiddle > 0 && std::chrono::steady_clock::now() - begin > enough)
      break;
    KillWriter(microseconds(random));
    const std::string left = Get("out.xml");
    ASSERT_TRUE(left == one || left == other) << "after kill " << i << ": " << left.size();
    inTheMiddle += TakeRemains() ? 1 : 0;
  }
  EXPECT_GT(inTheMiddle, 0);
  EXPECT_EQ(Replace("b.xml"), 0) << streams.err;
  EXPECT_EQ(Get("out.xml"), other);
  EXPECT_EQ(CountFiles(), 3u);
}

} // namespace
