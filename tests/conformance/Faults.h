// Faulty services: the linker leads the calls of this program to wrappers, which do what a test
// says and else pass the call on to the stand-in. The calls of the stand-in itself stay as they
// are.
#pragma once

#include <functional>

#include "platform/framework/CPtrArray.h"
#include "platform/framework/CString.h"
#include "platform/services/TQLog.h"
#include "platform/services/TQSObj.h"
#include "platform/services/TQSProxy.h"
#include "platform/services/VLProxy.h"
#include "platform/services/tqCommon.h"
#include "platform/services/tqStock.h"

// How 32-bit Windows hands over the object of a member.
#if defined(_WIN32) && defined(__i386__)
#define TQ_MEMBER __attribute__((thiscall))
// The compiler wants the object of a member to be of its class.
#pragma GCC diagnostic ignored "-Wattributes"
#else
#define TQ_MEMBER
#endif

// The stand-in's own operations.
extern "C" {
#define TQ_FAULT(result, name, parameters, arguments) result __real_##name parameters;
#define TQ_MEMBER_FAULT(result, name, parameters, arguments)                                       \
  TQ_MEMBER result __real_##name parameters;
#include "tests/conformance/Faults.inc"
#undef TQ_FAULT
#undef TQ_MEMBER_FAULT
}

// What is called in the place of an operation; empty for the operation itself.
struct Faults {
#define TQ_FAULT(result, name, parameters, arguments) std::function<result parameters> name;
#define TQ_MEMBER_FAULT TQ_FAULT
#include "tests/conformance/Faults.inc"
#undef TQ_FAULT
#undef TQ_MEMBER_FAULT
};

Faults& TheFaults();
