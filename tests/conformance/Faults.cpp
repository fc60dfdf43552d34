#include "tests/conformance/Faults.h"

Faults& TheFaults() {
  static Faults faults;
  return faults;
}

extern "C" {
#define TQ_FAULT(result, name, parameters, arguments)                                              \
  result __wrap_##name parameters;                                                                 \
  result __wrap_##name parameters {                                                                \
    return TheFaults().name ? TheFaults().name arguments : __real_##name arguments;                \
  }
#define TQ_MEMBER_FAULT(result, name, parameters, arguments)                                       \
  TQ_MEMBER TQ_FAULT(result, name, parameters, arguments)
#include "tests/conformance/Faults.inc"
#undef TQ_FAULT
#undef TQ_MEMBER_FAULT
}
