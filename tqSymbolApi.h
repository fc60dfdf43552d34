// The export macro of tqSymbol: every class that carries it is part of the library's interface, and
// nothing else of the library is visible from outside.
#pragma once

#include "platform/Compiler.h"

#if defined(TQSYMBOL_BUILD)
#define TQSYMBOL_API TQ_EXPORT
#elif defined(TQSYMBOL_STATIC)
#define TQSYMBOL_API
#else
#define TQSYMBOL_API TQ_IMPORT
#endif
