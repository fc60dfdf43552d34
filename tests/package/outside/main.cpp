#include <cstdio>

#include <tqSymbol.h>

int CountLists(CTQSymbolListMgr& manager);

int main() {
  CTQSymbolListMgr manager;
  if (!manager.Init("", 0, 0, 0, nullptr, 0, 0))
    return 1;
  std::printf("%d lists\n", CountLists(manager));
  return 0;
}
