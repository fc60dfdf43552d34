#include "terminal/desk/Session.h"

#include "terminal/desk/Resources.h"

namespace desk {

bool StartLibrary(CTQSymbolListMgr& manager, const CString& dataDirectory) {
  constexpr int kSearchMode = 0; // names of the interface language
  constexpr int kSymbolTables = 1;
  constexpr int kSystemLists = 1; // under the library's names: no names are given
  constexpr int kOwnDefaultExchanges = 0;
  constexpr int kTradingLists = 1;
  return manager.Init(dataDirectory, kSearchMode, kSymbolTables, kSystemLists, nullptr,
                      kOwnDefaultExchanges, kTradingLists) != 0;
}

void LogIn(CTQSymbolListMgr& manager) {
  for (int i = 0; i < TQSGetTSCount(); ++i) {
    TQS_TSINFO system = {};
    if (TQSGetTSInfo(i, &system) != 0)
      manager.UpdateTSLogin(system.id); // tells once for each list that it fills anew, then code 4
  }
}

void PushCloudLists(CTQSymbolListMgr& manager) {
  // Into the lists of the cloud and into the map from which cloud groups of the same ids are made.
  manager.SetCloudeList("VORNG0101", Text(Word::CloudWatch), "2330.TW,2317.TW,0050.TW,6488.TE");
  manager.SetCloudeList("VORNG0102", Text(Word::CloudAbroad), "AAPL.NASD,NVDA.NASD,TSM.NYSE");
  manager.RefreshCloudeSymbol(); // which is when these groups take names and members
}

} // namespace desk
