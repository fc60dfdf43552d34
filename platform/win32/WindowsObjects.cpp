#include "platform/win32/WindowsObjects.h"

#include <atomic>

namespace tq {
namespace {

struct Counter {
  std::atomic<long> opened{0};
  std::atomic<long> closed{0};
};

Counter counters[kSystemObjects];

Counter& Of(SystemObject kind) {
  return counters[static_cast<int>(kind)];
}

} // namespace

void NoteOpened(SystemObject kind) {
  Of(kind).opened.fetch_add(1, std::memory_order_relaxed);
}

void NoteClosed(SystemObject kind) {
  Of(kind).closed.fetch_add(1, std::memory_order_relaxed);
}

SystemObjectCount CountOf(SystemObject kind) {
  return {Of(kind).opened, Of(kind).closed};
}

} // namespace tq
