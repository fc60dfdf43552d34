#include "platform/headless/Rows.h"

#include <algorithm>

namespace tq::headless {

Row* Rows::At(int row) {
  return Holds(row) ? &rows_[static_cast<size_t>(row)] : nullptr;
}

int Rows::Insert(int row, const char* text) {
  if (row < -1 || row > Count())
    return -1;
  const int at = row == -1 ? Count() : row;
  Row added;
  added.text = text;
  rows_.insert(rows_.begin() + at, std::move(added));
  if (Count() > 1 && at <= caret_)
    ++caret_;
  return at;
}

bool Rows::Remove(int row) {
  if (!Holds(row))
    return false;
  Mark(*At(row), false);
  rows_.erase(rows_.begin() + row);
  if (row < caret_ || caret_ == Count())
    caret_ = std::max(0, caret_ - 1);
  return true;
}

void Rows::Clear() {
  rows_.clear();
  selected_ = 0;
  caret_ = 0;
}

void Rows::Mark(Row& row, bool select) {
  if (row.selected != select)
    selected_ += select ? 1 : -1;
  row.selected = select;
}

bool Rows::SelectOnly(int row) {
  if (row != -1 && !Holds(row))
    return false;
  for (int at = NextSelected(-1); at != -1; at = NextSelected(at))
    Mark(*At(at), false);
  if (row == -1)
    return true;
  Mark(*At(row), true);
  caret_ = row;
  return true;
}

bool Rows::Select(int row, bool select) {
  if (!Holds(row))
    return false;
  Mark(*At(row), select);
  return true;
}

void Rows::SelectRange(int from, int to) {
  SelectOnly(-1);
  for (int row = std::min(from, to); row <= std::max(from, to); ++row)
    Select(row, true);
}

int Rows::NextSelected(int after) const {
  if (selected_ == 0 || after < -1)
    return -1;
  for (int row = after + 1; row < Count(); ++row) {
    if (rows_[static_cast<size_t>(row)].selected)
      return row;
  }
  return -1;
}

bool Rows::SetCaret(int row) {
  if (!Holds(row))
    return false;
  caret_ = row;
  return true;
}

} // namespace tq::headless
