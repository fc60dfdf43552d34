// Any bytes as a list file: loading must end well, and what the manager saves afterwards must load
// as the same lists and save as the same bytes.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "fuzz/Input.h"
#include "fuzz/MemoryFiles.h"
#include "manager/TQSymbolListMgr.h"

namespace fuzz {

inline constexpr int kUserLists = 1;
inline constexpr const char* kDirectory = "memory";

// A list in memory. Several may have the same identifier.
struct ListState {
  std::string id, name, ids;
  int rows = 0;
  bool operator==(const ListState&) const = default;
};

// Saving escapes nothing, so these characters do not survive it. Nor do line ends and tabs, which a
// file can hold only as character references.
inline bool SurvivesSaving(const std::string& text) {
  return text.find_first_of("'&<\t\n\r") == std::string::npos;
}

// The lists by position. GetSymbolList finds only the first list of an identifier, so the rows of
// later ones are not looked at.
inline std::string ReadLists(CTQSymbolListMgr& manager, std::vector<ListState>& states) {
  const int count = manager.GetSymbolListCount(kUserLists);
  for (int i = 0; i < count; ++i) {
    TQSymbolListInfo info;
    CSymbolList* list = nullptr;
    if (!manager.GetTQSymbolListInfo(i, &info, kUserLists) ||
        !manager.GetSymbolList(info.ID, &list, kUserLists) || list == nullptr)
      return "a list is not found by its own identifier";
    if (std::memchr(info.ID, '\0', sizeof(info.ID)) == nullptr ||
        std::memchr(info.Name, '\0', sizeof(info.Name)) == nullptr)
      return "an identifier or a name is not terminated";
    CString id;
    CString name;
    CString ids;
    if (!manager.GetSymbolListInfo(i, id, name, ids, kUserLists))
      return "a list is not known by its position";
    ListState state{info.ID, info.Name, ids.GetString(), list->GetCount()};
    if (state.rows < 0 || state.rows > list->GetTokens().GetSize())
      return "a list has more rows than tokens";
    SymbolInfo record;
    for (int row = 0; row < state.rows; ++row) {
      if (!list->GetAt(row, &record) || record.id[0] == '\0')
        return "a row has no symbol";
    }
    if (list->GetAt(state.rows, &record) || list->GetAt(-1, &record))
      return "a row outside of the list was answered";
    states.push_back(std::move(state));
  }
  return "";
}

inline bool AllSurviveSaving(const std::vector<ListState>& states) {
  for (const ListState& state : states)
    if (!SurvivesSaving(state.id) || !SurvivesSaving(state.name) || !SurvivesSaving(state.ids))
      return false;
  return true;
}

inline std::string CheckSavedAgain(MemoryFiles& files, const std::vector<ListState>& states,
                                   int defaultIndex) {
  const std::string saved = files.content;
  const int saves = files.saves;
  CTQSymbolListMgr second;
  second.ReLoadList(kDirectory);
  std::vector<ListState> again;
  std::string broken = ReadLists(second, again);
  if (!broken.empty())
    return broken;
  int secondIndex = 0;
  second.GetDefaultListIdx(secondIndex);
  if (again != states)
    return "other lists come back from what was saved";
  if (secondIndex != defaultIndex)
    return "another default index comes back from what was saved";
  if ((files.saves > saves) != states.empty())
    return "loading saves at once when, and only when, there is no list";
  second.SaveSymbolList();
  return files.content == saved ? "" : "saving what was saved gives other bytes";
}

inline std::string CheckListFile(const unsigned char* data, std::size_t size) {
  MemoryFiles files{std::string(Begin(data, size))};
  {
    CTQSymbolListMgr manager;
    manager.ReLoadList(kDirectory);
    std::vector<ListState> states;
    std::string broken = ReadLists(manager, states);
    if (!broken.empty())
      return broken;
    if (files.saves > 1 || (files.saves == 1 && !states.empty()))
      return "loading saved where it should not";
    if (!manager.SaveSymbolList())
      return "saving failed";
    int defaultIndex = 0;
    if (manager.GetDefaultListIdx(defaultIndex) == 0 && !states.empty())
      return "there are lists and no default index after saving";
    if (AllSurviveSaving(states))
      broken = CheckSavedAgain(files, states, defaultIndex);
    if (!broken.empty())
      return broken;
  }
  return EndOfServices();
}

} // namespace fuzz
