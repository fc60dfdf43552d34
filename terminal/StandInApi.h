// The export macro of the stand-in terminal's control library.
#pragma once

#include "platform/Compiler.h"

#if defined(TQSTANDIN_BUILD)
#define TQSTANDIN_API TQ_EXPORT
#else
#define TQSTANDIN_API TQ_IMPORT
#endif
