// The lists of one array by identifier and by name.
//
// A list that is in an index tells it when its identifier or name is set, and leaves it when it is
// destroyed: terminals hold live lists and rename them. So what the index does not find is not
// there.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "symbollist/NoCaseText.h"

class CSymbolList;

namespace tq {

// Without memory for an entry the process is stopped at once, before a list that is in half of the
// tables is destroyed.
//
// Identifiers and names are compared ignoring letter case. Whoever writes a file, an import or a
// cloud list chooses them, those of one plain hash value too, and need not make them different: the
// lists of one text stand in the order of the array.
class ListIndex {
public:
  using Lists = std::vector<CSymbolList*>;

  ListIndex() = default;
  ListIndex(const ListIndex&) = delete;
  ListIndex& operator=(const ListIndex&) = delete;
  ~ListIndex() { Clear(); }

  // A list that comes behind all others, or in front of them. It is in no index yet.
  void AddLast(CSymbolList& list) noexcept { Add(list, ++last_); }
  void AddFirst(CSymbolList& list) noexcept { Add(list, --first_); }
  void Remove(CSymbolList& list);
  // Lets all lists go, which live on.
  void Clear();

  // The first list with that identifier; null when there is none.
  CSymbolList* FindById(std::string_view id) const;
  // All of them, in the order of the array. Good until a list comes, goes or is renamed.
  const Lists& WithId(std::string_view id) const { return Under(ids_, id); }
  const Lists& WithName(std::string_view name) const { return Under(names_, name); }

  // The most identifiers, or names, that one bucket of the tables has: what a look-up that finds
  // nothing compares at worst.
  std::size_t LargestBucket() const;

  // Whether the array has `left` in front of `right`; both are in this index.
  static bool IsBefore(const CSymbolList* left, const CSymbolList* right);

  // For the list itself, in front of a change of its identifier or name and behind it.
  void ForgetId(CSymbolList& list);
  void EnterId(CSymbolList& list) noexcept;
  void ForgetName(CSymbolList& list);
  void EnterName(CSymbolList& list) noexcept;

private:
  using Map = std::unordered_map<std::string, Lists, NoCaseHash, NoCaseEqual>;

  void Add(CSymbolList& list, long long place) noexcept;
  static const Lists& Under(const Map& map, std::string_view text);
  static void Enter(Map& map, const char* text, CSymbolList& list);
  static void Forget(Map& map, const char* text, const CSymbolList& list);

  Map ids_;
  Map names_;
  // The places that the first and the last list were given; those between ascend.
  long long first_ = 0;
  long long last_ = 0;
};

} // namespace tq
