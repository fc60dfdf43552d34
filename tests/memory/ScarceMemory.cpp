#include "tests/memory/ScarceMemory.h"

#include <cstdio>
#include <cstdlib>
#include <new>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr long kUnlimited = -1;
constexpr int kThrown = 3;

long allocations = 0;
long failing = kUnlimited; // the number of the first allocation that fails
bool failsOnce = false;

bool Fails() {
  const long number = allocations++;
  return failing != kUnlimited && (failsOnce ? number == failing : number >= failing);
}

void* Allocate(std::size_t size) {
  return Fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void* AllocateOrThrow(std::size_t size) {
  void* const block = Allocate(size);
  if (block == nullptr)
    throw std::bad_alloc();
  return block;
}

std::size_t AddressSpace() {
  long pages = 0;
  std::FILE* const file = std::fopen("/proc/self/statm", "r");
  if (file == nullptr || std::fscanf(file, "%ld", &pages) != 1)
    std::abort();
  std::fclose(file);
  return static_cast<std::size_t>(pages) * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

void LimitAddressSpace(std::size_t bytes) {
  const rlimit limit = {AddressSpace() + bytes, RLIM_INFINITY};
  ::setrlimit(RLIMIT_AS, &limit);
}

// Messages of a child that is stopped are expected.
void Silence() {
  const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  ::dup2(nowhere, STDERR_FILENO);
}

Ending RunInChild(const Work& prepare, const Work& work) {
  std::fflush(nullptr);
  const pid_t child = ::fork();
  if (child == 0) {
    Silence();
    prepare();
    try {
      work();
    } catch (...) {
      ::_exit(kThrown);
    }
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  if (WIFSIGNALED(status))
    return WTERMSIG(status) == SIGABRT ? Ending::Stopped : Ending::Crashed;
  if (WEXITSTATUS(status) == kThrown)
    return Ending::Thrown;
  return WEXITSTATUS(status) == 0 ? Ending::Done : Ending::Crashed;
}

} // namespace

Ending RunWithin(std::size_t bytes, const Work& work) {
  return RunInChild([bytes] { LimitAddressSpace(bytes); }, work);
}

Ending RunWithout(long number, bool once, const Work& work) {
  const auto prepare = [=] {
    failsOnce = once;
    failing = allocations + number;
  };
  return RunInChild(prepare, work);
}

long CountAllocations(const Work& work) {
  void* const shared =
      ::mmap(nullptr, sizeof(long), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (shared == MAP_FAILED)
    std::abort();
  auto* const count = static_cast<long*>(shared);
  const auto counted = [&] {
    const long before = allocations;
    work();
    *count = allocations - before;
  };
  RunInChild([] {}, counted);
  const long result = *count;
  ::munmap(shared, sizeof(long));
  return result;
}

// The library and everything else in this program allocate through these.
void* operator new(std::size_t size) {
  return AllocateOrThrow(size);
}
void* operator new[](std::size_t size) {
  return AllocateOrThrow(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size);
}
void operator delete(void* block) noexcept {
  std::free(block);
}
void operator delete[](void* block) noexcept {
  std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}
void operator delete[](void* block, std::size_t) noexcept {
  std::free(block);
}
