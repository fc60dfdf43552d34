#include "manager/TQSymbolListMgr.h"

#if defined(_WIN32)
#define TQ_MODULE_API __declspec(dllexport)
#else
#define TQ_MODULE_API __attribute__((visibility("default")))
#endif

extern "C" TQ_MODULE_API int StartAndStopManager(const char* directory) {
  CTQSymbolListMgr manager;
  return manager.Init(directory, 0, 0, 0, nullptr, 0, 0);
}
