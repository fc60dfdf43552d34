// Cloud lists: the terminal gets them from the broker's server and pushes them in.
#include "Example.h"

int main(int argc, char** argv) {
  const std::string directory = Begin(argc, argv);
  CTQSymbolListMgr manager;
  Expect(manager.Init(directory.c_str(), 0, 1, 0, nullptr, 0, 0) != 0, "Init");

  // As a list of kind 8, and into the map from which the cloud groups are made.
  manager.SetCloudeList("VORNG0101", Text("雲端觀察"), "2330.TW,2317.TW");
  Expect(manager.GetSymbolListCount(TQListKindCloud) == 1, "one cloud list");
  std::printf("Cloud lists\n");
  PrintLists(manager, TQListKindCloud);

  // The group with the list's identifier takes name and members of it.
  manager.RefreshCloudeSymbol();
  constexpr int cloudGroups = 201;
  void* handle = nullptr;
  CString name;
  CString members;
  Expect(manager.GetGroupHandle(cloudGroups, "VORNG0101", &handle, 0) != 0, "its group");
  Expect(manager.GetGroupName(cloudGroups, handle, name) != 0, "the group's name");
  Expect(manager.GetGroupListIDs(handle, members) != 0, "the group's members");
  std::printf("Cloud group\n  %s: %s\n", Shown(name).c_str(), members.GetString());

  // What the library told the terminal meanwhile. Yours hears of it in its TQSCall.
  for (const standin::Notification& told : standin::Notifications())
    std::printf("told: %ld \"%s\"\n", told.code, told.reason.c_str());
}
