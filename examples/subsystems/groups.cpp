// The groups of the symbol-data service: a tree of two levels for each type.
#include "Example.h"

int main(int argc, char** argv) {
  const std::string directory = Begin(argc, argv);
  CTQSymbolListMgr manager;
  Start(manager, directory);

  constexpr int type = TQGroupTypeMarkets; // Init has loaded it
  const int groups = manager.GetGroupCount(type, nullptr);
  Expect(groups > 0, "the sample market has groups");
  for (int i = 0; i < groups; ++i) {
    GroupInfo group = {};
    void* handle = nullptr; // good until the type is loaded anew
    Expect(manager.GetGroupInfo(type, nullptr, i, &group) != 0, "a group");
    Expect(manager.GetGroupHandle(type, group.szID, &handle, 0) != 0, "its handle");
    std::printf("%s, %d groups\n", TQToUtf8(group.szName).GetString(),
                manager.GetGroupCount(type, handle));
  }

  // The members are fetched when they are first asked for.
  void* handle = nullptr;
  Expect(manager.GetGroupHandle(type, "TSE26", &handle, 0) != 0, "a group by its id");
  for (int i = 0; i < manager.GetGroupSymbolCount(handle); ++i) {
    SymbolInfo member = {};
    Expect(manager.GetGroupSymbolInfo(handle, i, &member) != 0, "a member");
    std::printf("  %s %s\n", member.id, TQToUtf8(member.name).GetString());
  }
}
