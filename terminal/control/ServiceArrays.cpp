#include "terminal/control/ServiceArrays.h"

#include <cstdlib>
#include <cstring>
#include <unordered_set>

#include "terminal/StandIn.h"
#include "terminal/control/Parts.h"

namespace standin {
namespace {

using Blocks = std::unordered_set<void*>;

Blocks& Arrays() {
  static Blocks arrays;
  return arrays;
}

Blocks& Texts() {
  static Blocks texts;
  return texts;
}

int badReleases = 0;

void* NewBlock(Blocks& blocks, std::size_t count, std::size_t size) {
  void* block = std::calloc(count, size);
  if (block)
    blocks.insert(block);
  return block;
}

void Release(Blocks& blocks, void* block) {
  if (!block)
    return;
  if (blocks.erase(block) == 0) {
    ++badReleases;
    return;
  }
  std::free(block);
}

} // namespace

void* NewArray(std::size_t count, std::size_t size) {
  return count == 0 ? nullptr : NewBlock(Arrays(), count, size);
}

void ReleaseArray(void* array) {
  Release(Arrays(), array);
}

char* NewText(std::string_view text) {
  char* copy = static_cast<char*>(NewBlock(Texts(), text.size() + 1, 1));
  if (copy && !text.empty())
    std::memcpy(copy, text.data(), text.size());
  return copy;
}

void ReleaseText(void* text) {
  Release(Texts(), text);
}

int OutstandingArrays() {
  return static_cast<int>(Arrays().size() + Texts().size());
}

int BadReleases() {
  return badReleases;
}

void ResetReleases() {
  badReleases = 0;
}

} // namespace standin
