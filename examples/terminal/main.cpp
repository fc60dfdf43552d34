#include <cstdio>
#include <string>

#include <StandIn.h>
#include <tqSymbol.h>

int main() {
  std::string error;
  if (!standin::ServeSampleMarket(error)) {
    std::fprintf(stderr, "%s\n", error.c_str());
    return 1;
  }
  CTQSymbolListMgr manager;
  if (!manager.Init(standin::SampleLists().c_str(), 0, 1, 0, nullptr, 0, 0))
    return 1;
  for (int i = 0; i < manager.GetSymbolListCount(1); ++i) {
    TQSymbolListInfo info;
    if (manager.GetTQSymbolListInfo(i, &info, 1))
      std::printf("%3d symbols  %s\n", manager.GetTQSymbolCount(info.ID, 1),
                  TQToUtf8(info.Name).GetString());
  }
}
