#include "platform/framework/StringData.h"

#include <climits>
#include <new>

#include "platform/framework/Storage.h"

namespace tq {

namespace {

constexpr int kUncounted = -1;
// Block sizes are rounded up as the allocator does anyway; the slack serves later appends.
constexpr size_t kBlockStep = 8;

} // namespace

constinit EmptyString emptyString{{{kUncounted}, 0, 0}, {}};

char* AllocateText(int capacity) {
  if (capacity < 0 || capacity > INT_MAX - 64)
    OutOfMemory();
  const size_t needed = sizeof(StringHeader) + static_cast<size_t>(capacity) + 1;
  const size_t bytes = (needed + kBlockStep - 1) / kBlockStep * kBlockStep;
  const int room = static_cast<int>(bytes - sizeof(StringHeader) - 1);
  char* text = TextOf(new (AllocateStorage(bytes)) StringHeader{{1}, 0, room});
  *text = '\0';
  return text;
}

void ReleaseSharedText(char* text) {
  StringHeader* header = HeaderOf(text);
  const int count = header->refs.load(std::memory_order_acquire);
  if (count > 1) {
    if (HasOneThread()) {
      header->refs.store(count - 1, std::memory_order_relaxed);
      return;
    }
    if (header->refs.fetch_sub(1, std::memory_order_acq_rel) > 1)
      return;
  }
  FreeStorage(header);
}

} // namespace tq
