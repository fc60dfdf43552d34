// The manager's lists of one kind, in display order.
#pragma once

#include <functional>
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
// Re-entrancy: a list that calls the symbol-data service may let the terminal add, delete or
// replace lists. A loop that does so iterates over a copy of the pointers and checks each with Has.
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
  // Adds a list behind all others: `resolve` gives it its symbols, which may let the terminal add,
  // delete or replace lists. So `allowed` is asked before and, if the terminal did, again behind
  // it; only then the name is read. An empty id: a new GUID. 0, with nothing added, when it is not
  // allowed or the system has no GUID; else 1.
  int AddResolved(const CString& id, const CString& name, const std::function<bool()>& allowed,
                  const std::function<void(CSymbolList&)>& resolve);
  void Delete(CSymbolList* list);
  // Deletes the lists for which `wanted` returns true, in one pass; it is called once for each
  // list, in order.
  template <typename Wanted> void DeleteIf(Wanted wanted) {
    std::erase_if(lists_, [&wanted](const auto& list) { return wanted(*list); });
    ++changes_;
  }
  // Deletes its lists and takes over `lists`.
  void Replace(ListVector lists) noexcept;
  void Destroy();

  // A version number, which changes when lists are added or removed: a caller that has called the
  // service compares it to see whether its earlier checks still hold.
  unsigned Changes() const { return changes_; }

private:
  ListIndex index_;
  ListVector lists_;
  unsigned changes_ = 0;
};

} // namespace tq
