#include "platform/framework/InvalidArgument.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace tq {

namespace {

void WriteToStandardError(const char* message) {
  std::fprintf(stderr, "tqFramework: %s\n", message);
}

constinit std::atomic<InvalidArgumentHandler> currentHandler{&WriteToStandardError};

} // namespace

InvalidArgumentHandler SetInvalidArgumentHandler(InvalidArgumentHandler handler) {
  return currentHandler.exchange(handler == nullptr ? &WriteToStandardError : handler);
}

void InvalidArgument(const char* message) {
  currentHandler.load()(message);
  std::abort();
}

void IndexOutOfRange(const char* operation, int index, int size) {
  char message[160];
  std::snprintf(message, sizeof message, "%s: index %d of %d elements", operation, index, size);
  InvalidArgument(message);
}

} // namespace tq
