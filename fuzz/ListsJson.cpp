// libFuzzer's entry to ListsInput.h, for JSON.
#include "fuzz/ListsInput.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const std::string broken = fuzz::CheckListsJson(data, size);
  if (!broken.empty()) {
    std::fprintf(stderr, "broken: %s\n", broken.c_str());
    std::abort();
  }
  return 0;
}
