// The version of tqSymbol. Major: terminals have to be compiled anew, and the number in the name of
// the shared object changes with it. Minor: the interface has more than before. Patch: neither.
//
// These three numbers are the only place where it stands: the build and the packages read them
// here.
#pragma once

#include "platform/framework/FrameworkApi.h"
#include "tqSymbolApi.h"

#define TQSYMBOL_VERSION_MAJOR 2
#define TQSYMBOL_VERSION_MINOR 2
#define TQSYMBOL_VERSION_PATCH 0

// All of it as one number, for comparisons: 10203 is 1.2.3. The version of the headers, where the
// functions below tell that of the libraries.
#define TQSYMBOL_VERSION                                                                           \
  (TQSYMBOL_VERSION_MAJOR * 10000 + TQSYMBOL_VERSION_MINOR * 100 + TQSYMBOL_VERSION_PATCH)

extern "C" {
// The version of the library that runs. Any thread.
TQSYMBOL_API int tqSymbolVersion(void) noexcept;
// The version of the tqFramework that runs. It has to be of the same major version as tqSymbol and
// not older: CTQSymbolListMgr::Init refuses to start otherwise. Any thread.
TQFRAMEWORK_API int tqFrameworkVersion(void) noexcept;
}
