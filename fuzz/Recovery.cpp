// libFuzzer's entry to RecoveryInput.h.
#include "fuzz/RecoveryInput.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  fuzz::PrepareServices();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const std::string broken = fuzz::CheckRecovery(data, size);
  if (!broken.empty()) {
    std::fprintf(stderr, "broken: %s\n", broken.c_str());
    std::abort();
  }
  return 0;
}
