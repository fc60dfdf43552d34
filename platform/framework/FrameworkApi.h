// The export macro of tqFramework, the shared library of the classes that cross tqSymbol's
// interface.
#pragma once

#if defined(_WIN32)
#if defined(TQFRAMEWORK_BUILD)
#define TQFRAMEWORK_API __declspec(dllexport)
#else
#define TQFRAMEWORK_API __declspec(dllimport)
#endif
#else
#define TQFRAMEWORK_API __attribute__((visibility("default")))
#endif
