// Ids and names of the user's lists by hash, for adding many lists at once.
#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>

#include "platform/framework/CPtrArray.h"
#include "symbollist/SymbolList.h"

namespace tq {

// Gives the answers of FindListById and FindListByName. Whoever adds a list to the array tells the index.
class ListIndex {
public:
  explicit ListIndex(const CPtrArray& lists);

  // Position of the first list with that identifier (ignoring letter case), or -1.
  int FindById(const CString& id) const;
  // Whether a list has that name (ignoring letter case).
  bool HasName(const CString& name) const;
  // `list` stands at `position`, behind all lists before.
  void Add(const CSymbolList& list, int position);

private:
  std::unordered_map<std::string, int> positions_;
  std::unordered_set<std::string> names_;
};

} // namespace tq
