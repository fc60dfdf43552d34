// The groups of the symbol-data service: a tree of two levels for each type.
#include "Example.h"

int main(int argc, char** argv) {
  const std::string directory = Begin(argc, argv);
  CTQSymbolListMgr manager;
  Expect(manager.Init(directory.c_str(), 0, 1, 0, nullptr, 0, 0) != 0, "Init");

  constexpr int type = 1; // industries; Init has loaded it
  const int groups = manager.GetGroupCount(type, nullptr);
  Expect(groups > 0, "the sample market has groups");
  for (int i = 0; i < groups; ++i) {
    GroupInfo group = {};
    void* handle = nullptr; // good until the type is loaded anew
    Expect(manager.GetGroupInfo(type, nullptr, i, &group) != 0, "a group");
    Expect(manager.GetGroupHandle(type, group.szID, &handle, 0) != 0, "its handle");
    std::printf("%s, %d groups\n", Shown(group.szName).c_str(),
                manager.GetGroupCount(type, handle));
  }

  // The members are fetched when they are first asked for.
  void* handle = nullptr;
  Expect(manager.GetGroupHandle(type, "TSE26", &handle, 0) != 0, "a group by its id");
  for (int i = 0; i < manager.GetGroupSymbolCount(handle); ++i) {
    SymbolInfo member = {};
    Expect(manager.GetGroupSymbolInfo(handle, i, &member) != 0, "a member");
    std::printf("  %s %s\n", member.id, Shown(member.name).c_str());
  }
}
