// Ids and names of the user's lists by hash, for adding many lists at once.
#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>

#include "platform/framework/CPtrArray.h"
#include "platform/framework/SeededHash.h"
#include "symbollist/SymbolList.h"

namespace tq {

// Gives the answers of FindListById and FindListByName. Whoever adds a list to the array tells the
// index.
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
  // Whoever writes a file or an import chooses ids and names, those of equal hash values too.
  struct TextHash {
    size_t operator()(const std::string& text) const { return SeededHash(text); }
  };

  std::unordered_map<std::string, int, TextHash> positions_;
  std::unordered_set<std::string, TextHash> names_;
};

} // namespace tq
