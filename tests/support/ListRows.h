// The rows of a list as text.
#pragma once

#include <string>

#include "idlist/IDList.h"

// The ids of the records, joined by blanks; ends in "<no record>" at a row that has none.
inline std::string RowsOf(CIDList& list) {
  std::string rows;
  const int count = list.GetCount();
  for (int i = 0; i < count; ++i) {
    SymbolInfo record = {};
    if (!list.GetAt(i, &record))
      return rows + "<no record>";
    rows += (i > 0 ? " " : "") + std::string(record.id);
  }
  return rows;
}
