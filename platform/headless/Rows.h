// The rows of a list box, combo box or list view in memory. Internal.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/framework/CString.h"
#include "platform/framework/FrameworkApi.h"

namespace tq::headless {

struct Row {
  CString text;
  std::vector<CString> more; // columns 1 and up of a list view, as far as they were set
  intptr_t data = 0;
  bool selected = false;
};

// Rows count from 0; -1 means none. A row out of range changes nothing and returns false, -1 or
// null.
class TQFRAMEWORK_API Rows {
public:
  // Counts what changes the look of the list, so that a screen sees when it has to draw it again.
  unsigned Changes() const { return changes_; }
  void Touch() { ++changes_; } // asks for that

  int Count() const { return isVirtual_ ? static_cast<int>(marks_.size()) : HeldCount(); }
  bool Holds(int row) const { return row >= 0 && row < Count(); }
  const Row* At(int row) const;          // null in a virtual list
  Row* Change(int row);                  // the same, to be changed
  int Insert(int row, const char* text); // -1: at the end
  bool Remove(int row);
  void Clear();
  // Virtual rows: only their number and selection are stored.
  void MakeVirtual() { isVirtual_ = true; }
  void SetVirtualCount(int count);

  bool SelectOnly(int row); // makes it the caret row too; -1 clears the selection
  bool Select(int row, bool select);
  // Selects exactly the rows from one to the other.
  void SelectRange(int from, int to);
  bool IsSelected(int row) const;
  int NextSelected(int after) const;
  int CountSelected() const { return selected_; }

  // The caret row and the row from which Shift selects stay with their rows.
  int Caret() const { return Count() == 0 ? -1 : caret_; }
  bool SetCaret(int row);
  int Anchor() const { return Count() == 0 ? -1 : anchor_; }
  void SetAnchor(int row) { anchor_ = row; }

  // Which rows are in sight.
  void SetPage(int rows) { page_ = rows; }
  void SetTop(int row);
  int Page() const { return page_; }
  int Top() const { return top_; }
  bool InSight(int row) const { return Holds(row) && row >= top_ && row < top_ + page_; }
  void Reveal(int row); // scrolls as little as needed

private:
  int HeldCount() const { return static_cast<int>(rows_.size()); }
  void Mark(int row, bool select);

  std::vector<Row> rows_;
  std::vector<bool> marks_; // the selection of virtual rows
  bool isVirtual_ = false;
  int selected_ = 0;
  int caret_ = 0;
  int anchor_ = 0;
  int top_ = 0;
  int page_ = 1;
  unsigned changes_ = 0;
};

} // namespace tq::headless
