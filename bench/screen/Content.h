// What the lists of a measured dialog hold.
#pragma once

#include <string>
#include <vector>

namespace bench {

struct Content {
  std::vector<std::string> rows; // of list boxes and of plain list views
  int virtualRows = 0;           // of virtual list views, whose cells are VirtualCell
};

inline std::string VirtualCell(int row, int column) {
  return std::to_string(row) + (column == 0 ? " TW" : " name");
}

} // namespace bench
