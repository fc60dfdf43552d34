// The export macro of tqFramework, the shared library of the classes that cross tqSymbol's
// interface.
#pragma once

#include "platform/Compiler.h"

#if defined(TQFRAMEWORK_BUILD)
#define TQFRAMEWORK_API TQ_EXPORT
#else
#define TQFRAMEWORK_API TQ_IMPORT
#endif
