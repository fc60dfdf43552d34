// libFuzzer's entry to SequenceInput.h.
#include "fuzz/SequenceInput.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  operations::PrepareServices();
  standin::FailAlways("TQLog::storage"); // no fuzzer writes log files
  const operations::Subject first;
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const std::string broken = fuzz::CheckSequence(data, size);
  if (!broken.empty()) {
    std::fprintf(stderr, "broken: %s\n", broken.c_str());
    std::abort();
  }
  return 0;
}
