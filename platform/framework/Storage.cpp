#include "platform/framework/Storage.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace tq {

namespace {

constinit std::atomic<StorageObserver> currentObserver{nullptr};

void Observe(size_t bytes) {
  if (const StorageObserver observer = currentObserver.load(std::memory_order_relaxed))
    observer(bytes);
}

} // namespace

void* AllocateStorage(size_t bytes) {
  Observe(bytes);
  void* storage = std::malloc(bytes == 0 ? 1 : bytes);
  if (storage == nullptr)
    OutOfMemory();
  return storage;
}

void* ResizeStorage(void* storage, size_t bytes) {
  Observe(bytes);
  void* resized = std::realloc(storage, bytes == 0 ? 1 : bytes);
  if (resized == nullptr)
    OutOfMemory();
  return resized;
}

void FreeStorage(void* storage) {
  std::free(storage);
}

void OutOfMemory() {
  std::fputs("tqFramework: out of memory\n", stderr);
  std::abort();
}

StorageObserver SetStorageObserver(StorageObserver observer) {
  return currentObserver.exchange(observer);
}

} // namespace tq
