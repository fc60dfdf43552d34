// The rows of a list box, combo box or list view in memory. Internal.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/framework/CString.h"

namespace tq::headless {

struct Row {
  CString text;
  std::vector<CString> more; // columns 1 and up of a list view, as far as they were set
  intptr_t data = 0;
  bool selected = false;
};

// Counts from 0; -1 is "none". Out of range nothing changes, and false, -1 or null is the answer.
class Rows {
public:
  int Count() const { return static_cast<int>(rows_.size()); }
  Row* At(int row);
  int Insert(int row, const char* text); // -1: at the end
  bool Remove(int row);
  void Clear();

  bool SelectOnly(int row); // -1 clears the selection
  bool Select(int row, bool select);
  // Selects the rows from one to the other and no others.
  void SelectRange(int from, int to);
  int NextSelected(int after) const;
  int CountSelected() const { return selected_; }

  int Caret() const { return Count() == 0 ? -1 : caret_; }
  bool SetCaret(int row);

private:
  bool Holds(int row) const { return row >= 0 && row < Count(); }
  void Mark(Row& row, bool select);

  std::vector<Row> rows_;
  int selected_ = 0;
  int caret_ = 0;
};

} // namespace tq::headless
