// Any bytes as the file of an older product: what is imported must be lists that are whole, and
// what is saved with them must load again.
#pragma once

#include <string>
#include <vector>

#include "fuzz/ListFileInput.h"

namespace fuzz {

inline std::string CheckImportFile(const unsigned char* data, std::size_t size) {
  constexpr int products = 3;
  const int product = size > 0 ? (data[0] >> 1) % products : 0;
  MemoryFiles files{std::string(Begin(data, size))};
  {
    CTQSymbolListMgr manager;
    manager.ReLoadList(kDirectory); // the same bytes, mostly no list file
    const int before = manager.GetSymbolListCount(kUserLists);
    CString path = "memory\\Import.xml";
    const bool read = manager.DoLoadOtherProductList(path, product) != 0;
    std::vector<ListState> states;
    std::string broken = ReadLists(manager, states);
    if (!broken.empty())
      return broken;
    const auto imported = states.begin() + before;
    if (!read && imported != states.end())
      return "a file that could not be read has lists";
    for (auto state = imported; state != states.end(); ++state)
      if (state->ids.find_first_of("'&<") != std::string::npos)
        return "an id was imported that no list file carries";
    int defaultIndex = 0;
    manager.GetDefaultListIdx(defaultIndex);
    if (!states.empty() && AllSurviveSaving(states) && manager.SaveSymbolList() != 0)
      broken = CheckSavedAgain(files, states, defaultIndex);
    if (!broken.empty())
      return broken;
  }
  return EndOfServices();
}

} // namespace fuzz
