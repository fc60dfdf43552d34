// The manager's lists of one kind, in display order.
#pragma once

#include <memory>
#include <vector>

#include "platform/framework/CPtrArray.h"
#include "symbollist/ListIndex.h"
#include "symbollist/SymbolList.h"

namespace tq {

using ListVector = std::vector<std::unique_ptr<CSymbolList>>;

// Owns its lists. Finding one by identifier or name takes the same time however many there are, so
// a terminal may add or update ten thousand one after the other. Identifiers and names are compared
// ignoring letter case, unless said.
//
// A list that asks the symbol-data service may let the terminal add, delete or replace lists: a
// walk on which that happens goes by position or over a copy of the pointers, and asks Has.
class OwnedLists {
public:
  OwnedLists() = default;
  OwnedLists(const OwnedLists&) = delete;
  OwnedLists& operator=(const OwnedLists&) = delete;
  ~OwnedLists() { Destroy(); }

  const ListVector& All() const { return lists_; }
  int GetSize() const { return static_cast<int>(lists_.size()); }
  bool IsEmpty() const { return lists_.empty(); }
  // Null for an index out of range.
  CSymbolList* At(int index) const {
    return index < 0 || index >= GetSize() ? nullptr : lists_[static_cast<size_t>(index)].get();
  }

  // The first list with that identifier, or null. A null id is no list's.
  CSymbolList* Find(const char* id) const { return id == nullptr ? nullptr : index_.FindById(id); }
  // Whether a list has that name, other than the one at `skip`.
  bool HasName(const CString& name, int skip = -1) const;
  // Whether a list has that identifier and exactly that name, letter case included. Identifiers
  // need not be unique in a file that somebody else wrote, so it may be any of several.
  bool HasIdAndName(const CString& id, const CString& name) const;
  // Whether the list is one of these; `position` is where it was.
  bool Has(const CSymbolList* list, int position) const;
  // Where one of the lists stands.
  int PositionOf(const CSymbolList* list) const;
  // Why a list with that identifier cannot be added, as CTQSymbolListMgr::CheckValidSymbolList
  // says.
  int ProblemsOfNewId(const CString& id) const;
  // Whether `copy`, CSymbolList pointers, holds lists of the same names (letter case counts) and
  // symbol strings, position by position.
  bool HaveNamesAndContentsOf(const CPtrArray& copy) const;

  // Puts a new copy of each list behind what `out` holds. The caller deletes them.
  void AppendCopies(CPtrArray& out) const;

  void AddLast(std::unique_ptr<CSymbolList> list) noexcept;
  void AddFirst(std::unique_ptr<CSymbolList> list) noexcept;
  void Delete(CSymbolList* list);
  // Deletes, in one pass, the lists that `wanted` says true of; it is asked once for each, in
  // order.
  template <typename Wanted> void DeleteIf(Wanted wanted) {
    std::erase_if(lists_, [&wanted](const auto& list) { return wanted(*list); });
    ++changes_;
  }
  // Deletes its lists and takes over `lists`.
  void Replace(ListVector lists) noexcept;
  void Destroy();

  // Counts the lists that came and went: who asked the service meanwhile, which may let the
  // terminal work, can tell whether what was checked before still holds.
  unsigned Changes() const { return changes_; }

private:
  ListIndex index_;
  ListVector lists_;
  unsigned changes_ = 0;
};

} // namespace tq
