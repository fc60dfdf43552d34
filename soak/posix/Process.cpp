#include "soak/Process.h"

#include <csignal>
#include <ctime>
#include <new>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace soak {
namespace {

class MappedLedger : public SharedLedger {
public:
  explicit MappedLedger(void* memory) : ledger_(new (memory) Ledger()) {}
  ~MappedLedger() override { ::munmap(ledger_, sizeof(Ledger)); }
  Ledger& Get() override { return *ledger_; }

private:
  Ledger* ledger_;
};

// Whether a child ended within that time.
bool EndsWithin(long long microseconds, const sigset_t& childEnds) {
  timespec time{};
  time.tv_sec = microseconds / 1'000'000;
  time.tv_nsec = microseconds % 1'000'000 * 1000;
  return ::sigtimedwait(&childEnds, nullptr, &time) == SIGCHLD;
}

LifeEnd WaitFor(pid_t child, int killAfter, const sigset_t& childEnds) {
  constexpr long long kSecond = 1'000'000;
  LifeEnd end;
  const bool ended =
      EndsWithin(killAfter == kNotKilled ? kPatience * kSecond : killAfter, childEnds);
  if (!ended)
    ::kill(child, SIGKILL);
  int status = 0;
  ::waitpid(child, &status, 0);
  end.killed = !ended && WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
  end.hung = end.killed && killAfter == kNotKilled;
  end.code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return end;
}

} // namespace

std::unique_ptr<SharedLedger> MakeSharedLedger() {
  void* const memory =
      ::mmap(nullptr, sizeof(Ledger), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  return memory == MAP_FAILED ? nullptr : std::make_unique<MappedLedger>(memory);
}

LifeEnd RunLife(SharedLedger& ledger, const LifeOrder& order, int killAfter) {
  sigset_t childEnds;
  ::sigemptyset(&childEnds);
  ::sigaddset(&childEnds, SIGCHLD);
  ::sigprocmask(SIG_BLOCK, &childEnds, nullptr);
  const pid_t child = ::fork();
  if (child == 0)
    ::_exit(Live(ledger.Get(), order));
  if (child < 0)
    return {false, false, 1};
  const LifeEnd end = WaitFor(child, killAfter, childEnds);
  EndsWithin(0, childEnds); // the signal of a child that was killed
  return end;
}

bool IsChild(int, char**, int&) {
  return false;
}

} // namespace soak
