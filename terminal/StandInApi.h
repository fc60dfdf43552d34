// The export macro of the stand-in terminal's control library.
#pragma once

#if defined(_WIN32)
#if defined(TQSTANDIN_BUILD)
#define TQSTANDIN_API __declspec(dllexport)
#else
#define TQSTANDIN_API __declspec(dllimport)
#endif
#else
#define TQSTANDIN_API __attribute__((visibility("default")))
#endif
