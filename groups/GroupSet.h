// CGroupSet: a group, with its sub-groups, as the terminal pushes it into the manager.
#pragma once

#include <utility>
#include <vector>

#include "platform/framework/CString.h"
#include "tqSymbolApi.h"

// A value type: copies are independent. Texts are in the process's ANSI code page and kept whole
// here; a group's record cuts them to 16 bytes of id and 48 of name.
class TQSYMBOL_API CGroupSet {
public:
  // Type -1, everything else empty.
  CGroupSet() noexcept;
  CGroupSet(const CGroupSet& other) noexcept;
  CGroupSet& operator=(const CGroupSet& other) noexcept;
  ~CGroupSet();

  // Equal types, equal texts (letter case counts), equal pairs in the same order.
  bool operator==(const CGroupSet& other) const noexcept;
  // Restores the state of a new set.
  void Reset() noexcept;

  // The order of the fields is part of the interface.
  int type;
  CString id;
  CString name;
  std::vector<std::pair<CString, CString>> subGroups; // id and name of each
};
