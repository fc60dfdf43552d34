// Cloud lists: the terminal gets them from the broker's server and pushes them in.
#include "Example.h"

int main(int argc, char** argv) {
  const std::string directory = Begin(argc, argv);
  CTQSymbolListMgr manager;
  Start(manager, directory);

  // As a list of kind 8, and into the map from which the cloud groups are made.
  manager.SetCloudeList("VORNG0101", TQFromUtf8("雲端觀察"), "2330.TW,2317.TW");
  Expect(manager.GetSymbolListCount(TQListKindCloud) == 1, "one cloud list");
  std::printf("Cloud lists\n");
  PrintLists(manager, TQListKindCloud);

  // The group with the list's identifier takes name and members of it.
  manager.RefreshCloudeSymbol();
  void* handle = nullptr;
  CString name;
  CString members;
  Expect(manager.GetGroupHandle(TQGroupTypeCloud, "VORNG0101", &handle, 0) != 0, "its group");
  Expect(manager.GetGroupName(TQGroupTypeCloud, handle, name) != 0, "the group's name");
  Expect(manager.GetGroupListIDs(handle, members) != 0, "the group's members");
  std::printf("Cloud group\n  %s: %s\n", TQToUtf8(name).GetString(), members.GetString());

  // What the library told the terminal meanwhile. Yours hears of it in its TQSCall.
  for (const standin::Notification& told : standin::Notifications())
    std::printf("told: %ld \"%s\"\n", told.code, told.reason.c_str());
}
