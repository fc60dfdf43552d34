#include "terminal/demo/ListRows.h"

#include <cstdio>

#include "terminal/StandIn.h"
#include "terminal/demo/Table.h"

namespace demo {

void PrintListRow(const char* id, const char* name, int count, const char* ids) {
  constexpr int kListIdCells = 17;
  constexpr int kNameCells = 17;
  constexpr int kIdsCells = 52;
  const std::string shownId = Fitted(standin::FromAnsi(id), kListIdCells);
  const std::string shownName = Fitted(standin::FromAnsi(name), kNameCells);
  const std::string shownIds = FittedList(standin::FromAnsi(ids), ',', kIdsCells);
  if (count < 0) {
    std::printf("    %s %s\n", Padded(shownId, kListIdCells).c_str(), shownName.c_str());
    return;
  }
  std::printf("    %s %s%4d%s%s\n", Padded(shownId, kListIdCells).c_str(),
              Padded(shownName, kNameCells).c_str(), count, shownIds.empty() ? "" : "  ",
              shownIds.c_str());
}

int PrintListRows(CTQSymbolListMgr& manager, int kind, int first) {
  const int lists = manager.GetSymbolListCount(kind);
  for (int i = first; i < lists; ++i) {
    TQSymbolListInfo info;
    CSymbolList* list = nullptr;
    CString ids;
    if (manager.GetTQSymbolListInfo(i, &info, kind) == 0 ||
        manager.GetSymbolList(info.ID, &list, kind) == 0)
      continue;
    manager.GetSymbolListIDs(kind, info.ID, ids, nullptr);
    PrintListRow(info.ID, info.Name, list->GetCount(), ids);
  }
  return lists > first ? lists - first : 0;
}

} // namespace demo
