// The invariants of a manager.
#include <cstring>
#include <vector>

#include "symboltable/SymbolTableMgr.h"
#include "tests/operations/Subject.h"

namespace operations {
namespace {

constexpr int kUserLists = 1;
constexpr int kKinds[] = {1, 6, 8};
constexpr char kSecondDirectory[] = "second";

struct ListState {
  std::string id, name, symbols;
  bool operator==(const ListState&) const = default;
};

// Saving escapes nothing, so a terminal has to keep these out.
bool SurvivesSaving(const std::string& text) {
  return text.find_first_of("'&<\t\n\r") == std::string::npos;
}

bool SurviveSaving(const std::vector<ListState>& lists) {
  for (const ListState& list : lists)
    if (!SurvivesSaving(list.id) || !SurvivesSaving(list.name) || !SurvivesSaving(list.symbols))
      return false;
  return true;
}

std::vector<ListState> UserLists(CTQSymbolListMgr& manager) {
  std::vector<ListState> lists;
  for (int i = 0; i < manager.GetSymbolListCount(kUserLists); ++i) {
    CString id, name, symbols;
    manager.GetSymbolListInfo(i, id, name, symbols, kUserLists);
    lists.push_back({id.GetString(), name.GetString(), symbols.GetString()});
  }
  return lists;
}

class Copies {
public:
  Copies(CTQSymbolListMgr& manager, int kind) { manager.GetSymbolList(lists_, kind); }
  ~Copies() {
    for (int i = 0; i < Count(); ++i)
      delete At(i);
  }
  Copies(const Copies&) = delete;
  Copies& operator=(const Copies&) = delete;

  int Count() const { return lists_.GetSize(); }
  CSymbolList* At(int i) const { return static_cast<CSymbolList*>(lists_[i]); }

private:
  CPtrArray lists_;
};

std::string BrokenRows(CSymbolList& list) {
  const int rows = list.GetCount();
  if (rows < 0 || rows > list.GetTokens().GetSize())
    return "more rows than tokens";
  SymbolInfo record;
  for (int row = 0; row < rows; ++row)
    if (!list.GetAt(row, &record) || record.id[0] == '\0')
      return "a row without a symbol";
  if (list.GetAt(rows, &record) || list.GetAt(-1, &record))
    return "a row outside of the list";
  CString shown, expected;
  CSymbolList fresh;
  fresh.Update1(list.GetIDs());
  list.JoinRows(shown);
  fresh.JoinRows(expected);
  return shown == expected ? "" : "rows that are not those of the symbols";
}

std::string BrokenList(CTQSymbolListMgr& manager, int kind, int index, CSymbolList& copy) {
  TQSymbolListInfo info;
  if (!manager.GetTQSymbolListInfo(index, &info, kind))
    return "no identifier and name";
  if (std::memchr(info.ID, '\0', sizeof info.ID) == nullptr ||
      std::memchr(info.Name, '\0', sizeof info.Name) == nullptr)
    return "an identifier or a name without an end";
  CString id, name, symbols;
  if (!manager.GetSymbolListInfo(index, id, name, symbols, kind) || id != copy.GetID() ||
      name != copy.GetName() || symbols != copy.GetIDs() || id != info.ID || name != info.Name)
    return "a copy that is another one";
  CSymbolList* found = nullptr;
  if (!manager.GetSymbolList(id, &found, kind) || found == nullptr || !found->IsSameID(info.ID))
    return "not found by its identifier";
  return BrokenRows(copy);
}

std::string BrokenGroup(CTQSymbolListMgr& manager, int type, void* above, int index) {
  GroupInfo info = {};
  if (!manager.GetGroupInfo(type, above, index, &info))
    return "a group without a record";
  void* handle = nullptr;
  if (!manager.GetGroupHandle(type, info.szID, &handle, 0) || handle == nullptr)
    return "a group that its id does not find";
  CString name, ids;
  manager.GetGroupName(type, handle, name);
  manager.GetGroupListIDs(handle, ids);
  const int members = manager.GetGroupSymbolCount(handle);
  SymbolInfo record;
  for (int i = 0; i < members; ++i)
    if (!manager.GetGroupSymbolInfo(handle, i, &record))
      return "a member without a record";
  if (above != nullptr)
    return "";
  for (int i = 0; i < manager.GetGroupCounts(type, info.szID); ++i)
    if (!manager.GetGroupInfos(type, info.szID, i, &info))
      return "a sub-group without a record";
  return "";
}

std::string BrokenGroups(CTQSymbolListMgr& manager) {
  for (const int type : {1, 2, 7, 201})
    for (int i = 0; i < manager.GetGroupCount(type, nullptr); ++i)
      if (std::string broken = BrokenGroup(manager, type, nullptr, i); !broken.empty())
        return broken;
  return "";
}

} // namespace

std::string BrokenLists(CTQSymbolListMgr& manager) {
  for (const int kind : kKinds) {
    const Copies copies(manager, kind);
    if (copies.Count() != manager.GetSymbolListCount(kind))
      return "another number of copies than of lists";
    for (int i = 0; i < copies.Count(); ++i)
      if (std::string broken = BrokenList(manager, kind, i, *copies.At(i)); !broken.empty())
        return broken + ", list " + std::to_string(i) + " of kind " + std::to_string(kind);
  }
  return "";
}

std::string BrokenAnswers(CTQSymbolListMgr& manager) {
  std::string broken = BrokenGroups(manager);
  if (!broken.empty())
    return broken;
  for (int i = 0; i < manager.GetDefaultExchangeCount(); ++i)
    if (!manager.IsDefaultExchange(manager.GetDefaultExchange(i)))
      return "a default exchange that is none";
  SymbolInfo record;
  manager.GetSymbolInfo("2330", nullptr, 0, &record);
  SymbolInfo* all = nullptr;
  int count = 0;
  if (manager.GetAllSymbolInfos(&all, &count) != (manager.CheckAllSymbolByExch() == 0 ? 1 : 0))
    broken = "a buffer of all symbols that is there and is not";
  CTQSymbolListMgr::FreeSymbolInfos(all);
  if (CSymbolTableMgr* const tables = manager.GetSymbolTableMgr()) {
    CString id;
    tables->LookUpNameGetSymbolID("1101", id);
    tables->GetDefaultExchange("2330", id);
  }
  return broken;
}

// In a separate file, so that the other files stay as they were for later checks.
std::string BrokenSave(CTQSymbolListMgr& manager, MemoryDisk& disk) {
  const std::vector<ListState> lists = UserLists(manager);
  disk.Refuse(false);
  if (!manager.DoSaveSymbolList("second\\SymbolList.xml"))
    return "not saved";
  if (!SurviveSaving(lists))
    return "";
  CTQSymbolListMgr second;
  second.ReLoadList(kSecondDirectory);
  return UserLists(second) == lists ? "" : "other lists come back from what was saved";
}

} // namespace operations
