// A hash index of lists, by identifier and by name.
//
// Terminals hold pointers to live lists and rename them. Therefore a list that is in an index
// updates it when its identifier or name is set, and removes itself when it is destroyed: the index
// is never out of date.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Text.h"
#include "platform/framework/SeededHash.h"
#include "symbollist/ListFollower.h"
#include "symbollist/SymbolList.h"

namespace tq {

// Hash and equality of keys whose letter case is ignored.
struct NoCaseHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const { return SeededHashNoCase(text); }
};

struct NoCaseEqual {
  using is_transparent = void;
  bool operator()(std::string_view left, std::string_view right) const {
    return EqualsNoCase(left, right);
  }
};

// Identifiers and names are compared ignoring letter case. They come from files, imports and cloud
// services, so they may be crafted to collide (the hash is seeded) and need not be unique: lists
// with the same text are kept in display order.
//
// Adding is noexcept: without memory the process stops at once, since unwinding would destroy a
// list that is in only one of the two tables.
class ListIndex final : public ListFollower {
public:
  using Lists = std::vector<CSymbolList*>;

  ListIndex() = default;
  ListIndex(const ListIndex&) = delete;
  ListIndex& operator=(const ListIndex&) = delete;
  ~ListIndex() { Clear(); }

  // Adds a list that is in no index yet, behind all others or in front of them.
  void AddLast(CSymbolList& list) noexcept { Add(list, ++last_); }
  void AddFirst(CSymbolList& list) noexcept { Add(list, --first_); }
  void Remove(CSymbolList& list) override;
  // Removes all lists. They are not destroyed.
  void Clear();

  // The first list with that identifier; null when there is none.
  CSymbolList* FindById(std::string_view id) const;
  // All lists with that text, in display order. Valid until a list is added, removed or renamed.
  const Lists& WithId(std::string_view id) const { return Under(ids_, id); }
  const Lists& WithName(std::string_view name) const { return Under(names_, name); }

  // The number of keys in the fullest bucket: the worst case of a look-up.
  std::size_t LargestBucket() const;

  // Whether `left` stands before `right` in display order; both are in this index.
  static bool IsBefore(const CSymbolList* left, const CSymbolList* right);

  // Called by the list itself, before and after its identifier or name changes.
  void ForgetId(CSymbolList& list) override;
  void EnterId(CSymbolList& list) noexcept override;
  void ForgetName(CSymbolList& list) override;
  void EnterName(CSymbolList& list) noexcept override;

private:
  using Map = std::unordered_map<std::string, Lists, NoCaseHash, NoCaseEqual>;

  void Add(CSymbolList& list, long long order) noexcept;
  static const Lists& Under(const Map& map, std::string_view text);
  static void Enter(Map& map, const char* text, CSymbolList& list);
  static void Forget(Map& map, const char* text, const CSymbolList& list);

  Map ids_;
  Map names_;
  // Order numbers of the first and the last list. Numbers ascend in display order.
  long long first_ = 0;
  long long last_ = 0;
};

} // namespace tq
