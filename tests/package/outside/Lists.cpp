// One header of the interface by itself.
#include "TQSymbolListMgr.h"

int CountLists(CTQSymbolListMgr& manager) {
  return manager.GetSymbolListCount(1);
}
