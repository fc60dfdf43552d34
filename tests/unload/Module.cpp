#include "manager/TQSymbolListMgr.h"
#include "platform/Compiler.h"

extern "C" TQ_EXPORT int StartAndStopManager(const char* directory) {
  CTQSymbolListMgr manager;
  return manager.Init(directory, 0, 0, 0, nullptr, 0, 0);
}
