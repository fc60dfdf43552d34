// The export macro of tqSymbol: every class that carries it is part of the library's interface, and
// nothing else of the library is visible from outside.
#pragma once

#if defined(_WIN32)
#if defined(TQSYMBOL_BUILD)
#define TQSYMBOL_API __declspec(dllexport)
#elif defined(TQSYMBOL_STATIC)
#define TQSYMBOL_API
#else
#define TQSYMBOL_API __declspec(dllimport)
#endif
#else
#define TQSYMBOL_API __attribute__((visibility("default")))
#endif
