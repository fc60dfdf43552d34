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
  const std::string lists = standin::SampleLists();
  TQInitOptions options;
  options.dataDirectory = lists.c_str();
  CTQSymbolListMgr manager;
  if (!manager.Init(options)) {
    CString problem;
    CTQSymbolListMgr::GetLastProblem(problem);
    std::fprintf(stderr, "%s\n", problem.GetString());
    return 1;
  }
  for (int i = 0; i < manager.GetSymbolListCount(TQListKindUser); ++i) {
    TQSymbolListInfo info;
    if (manager.GetTQSymbolListInfo(i, &info, TQListKindUser))
      std::printf("%3d symbols  %s\n", manager.GetTQSymbolCount(info.ID, TQListKindUser),
                  TQToUtf8(info.Name).GetString());
  }
}
