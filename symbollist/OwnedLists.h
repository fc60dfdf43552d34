// The manager's lists of one kind, in display order.
#pragma once

#include <memory>

#include "symbollist/ListArray.h"
#include "symbollist/ListIndex.h"

namespace tq {

// Owns its lists. Finding one by identifier or name takes the same time however many there are, so
// a terminal may add or update ten thousand one after the other. Identifiers and names are compared
// ignoring letter case.
class OwnedLists {
public:
  OwnedLists() = default;
  OwnedLists(const OwnedLists&) = delete;
  OwnedLists& operator=(const OwnedLists&) = delete;
  ~OwnedLists() { Destroy(); }

  // The array itself, to be walked.
  operator const CPtrArray&() const { return lists_; }
  int GetSize() const { return lists_.GetSize(); }
  int GetUpperBound() const { return lists_.GetUpperBound(); }
  bool IsEmpty() const { return lists_.IsEmpty(); }

  // The first list with that identifier, or null. A null id is no list's.
  CSymbolList* Find(const char* id) const { return id == nullptr ? nullptr : index_.FindById(id); }
  // Whether a list has that name, other than the one at `skip`.
  bool HasName(const CString& name, int skip = -1) const;
  // Whether a list has that identifier and exactly that name, letter case included. Identifiers
  // need not be unique in a file that somebody else wrote, so it may be any of several.
  bool HasIdAndName(const CString& id, const CString& name) const;
  // Where one of the lists stands.
  int PositionOf(const CSymbolList* list) const;

  void AddLast(std::unique_ptr<CSymbolList> list);
  void AddFirst(std::unique_ptr<CSymbolList> list);
  void Delete(CSymbolList* list);
  // Deletes, in one pass, the lists that `wanted` says true of; it is asked once for each, in
  // order.
  template <typename Wanted> void DeleteIf(Wanted wanted) {
    int kept = 0;
    for (int i = 0; i < lists_.GetSize(); ++i) {
      CSymbolList* const list = ListAt(lists_, i);
      if (wanted(*list))
        delete list;
      else
        lists_[kept++] = list;
    }
    lists_.SetSize(kept);
    ++changes_;
  }
  // Takes over the lists of `lists`, which is emptied, in the place of its own, which are deleted.
  void Replace(CPtrArray& lists);
  void Destroy();

  // Counts the lists that came and went: who asked the service meanwhile, which may let the
  // terminal work, can tell whether what was checked before still holds.
  unsigned Changes() const { return changes_; }

private:
  CPtrArray lists_;
  ListIndex index_;
  unsigned changes_ = 0;
};

} // namespace tq
