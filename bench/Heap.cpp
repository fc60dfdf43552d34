#include "bench/Heap.h"

#include <malloc.h>

#include <cerrno>
#include <cstdlib>

#include "platform/Compiler.h"

namespace {

std::size_t allocations = 0;

} // namespace

// The C library's own functions, under the names that it provides for programs that replace malloc.
extern "C" {
void* __libc_malloc(std::size_t size) noexcept;
void* __libc_calloc(std::size_t count, std::size_t size) noexcept;
void* __libc_realloc(void* block, std::size_t size) noexcept;
void* __libc_memalign(std::size_t alignment, std::size_t size) noexcept;

TQ_EXPORT void* malloc(std::size_t size) noexcept {
  ++allocations;
  return __libc_malloc(size);
}

TQ_EXPORT void* calloc(std::size_t count, std::size_t size) noexcept {
  ++allocations;
  return __libc_calloc(count, size);
}

TQ_EXPORT void* realloc(void* block, std::size_t size) noexcept {
  ++allocations;
  return __libc_realloc(block, size);
}

TQ_EXPORT void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
  ++allocations;
  return __libc_memalign(alignment, size);
}

TQ_EXPORT int posix_memalign(void** block, std::size_t alignment, std::size_t size) noexcept {
  ++allocations;
  void* const found = __libc_memalign(alignment, size);
  if (found == nullptr)
    return ENOMEM;
  *block = found;
  return 0;
}
}

namespace bench {

std::size_t Allocations() {
  return allocations;
}

std::size_t HeapInUse() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

} // namespace bench
