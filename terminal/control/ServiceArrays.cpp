#include "terminal/control/ServiceArrays.h"

#include <cstdlib>
#include <unordered_set>

#include "terminal/StandIn.h"
#include "terminal/control/Parts.h"

namespace standin {
namespace {

std::unordered_set<void*>& HandedOut() {
  static std::unordered_set<void*> arrays;
  return arrays;
}

int badReleases = 0;

} // namespace

void* NewArray(std::size_t count, std::size_t size) {
  if (count == 0)
    return nullptr;
  void* array = std::calloc(count, size);
  if (array)
    HandedOut().insert(array);
  return array;
}

void ReleaseArray(void* array) {
  if (!array)
    return;
  if (HandedOut().erase(array) == 0) {
    ++badReleases;
    return;
  }
  std::free(array);
}

int OutstandingArrays() {
  return static_cast<int>(HandedOut().size());
}

int BadReleases() {
  return badReleases;
}

void ResetReleases() {
  badReleases = 0;
}

} // namespace standin
