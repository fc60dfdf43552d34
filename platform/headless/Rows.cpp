#include "platform/headless/Rows.h"

#include <algorithm>

namespace tq::headless {

namespace {

// The number of a row after another one was inserted, or deleted.
int AfterInsert(int row, int came) {
  return row >= came ? row + 1 : row;
}
int AfterRemove(int row, int went, int count) {
  return std::max(0, row > went || row == count ? row - 1 : row);
}

} // namespace

const Row* Rows::At(int row) const {
  return Holds(row) && !isVirtual_ ? &rows_[static_cast<size_t>(row)] : nullptr;
}

Row* Rows::Change(int row) {
  Touch();
  return Holds(row) && !isVirtual_ ? &rows_[static_cast<size_t>(row)] : nullptr;
}

int Rows::Insert(int row, const char* text) {
  if (isVirtual_ || row < -1 || row > Count())
    return -1;
  Touch();
  const int at = row == -1 ? Count() : row;
  Row added;
  added.text = text;
  rows_.insert(rows_.begin() + at, std::move(added));
  if (Count() == 1)
    return at;
  caret_ = AfterInsert(caret_, at);
  anchor_ = AfterInsert(anchor_, at);
  return at;
}

bool Rows::Remove(int row) {
  if (isVirtual_ || !Holds(row))
    return false;
  Touch();
  Mark(row, false);
  rows_.erase(rows_.begin() + row);
  caret_ = AfterRemove(caret_, row, Count());
  anchor_ = AfterRemove(anchor_, row, Count());
  top_ = std::max(0, std::min(top_, Count() - page_));
  return true;
}

void Rows::Clear() {
  Touch();
  rows_.clear();
  marks_.clear();
  selected_ = 0;
  caret_ = anchor_ = top_ = 0;
}

void Rows::SetVirtualCount(int count) {
  Clear();
  marks_.resize(static_cast<size_t>(count));
}

void Rows::Mark(int row, bool select) {
  if (IsSelected(row) == select)
    return;
  Touch();
  selected_ += select ? 1 : -1;
  if (isVirtual_)
    marks_[static_cast<size_t>(row)] = select;
  else
    rows_[static_cast<size_t>(row)].selected = select;
}

bool Rows::SelectOnly(int row) {
  if (row != -1 && !Holds(row))
    return false;
  for (int at = NextSelected(-1); at != -1; at = NextSelected(at))
    Mark(at, false);
  if (row == -1)
    return true;
  Mark(row, true);
  Touch();
  caret_ = anchor_ = row;
  return true;
}

bool Rows::Select(int row, bool select) {
  if (!Holds(row))
    return false;
  Mark(row, select);
  return true;
}

void Rows::SelectRange(int from, int to) {
  SelectOnly(-1);
  for (int row = std::min(from, to); row <= std::max(from, to); ++row)
    Select(row, true);
}

bool Rows::IsSelected(int row) const {
  if (!Holds(row))
    return false;
  const auto at = static_cast<size_t>(row);
  return isVirtual_ ? marks_[at] : rows_[at].selected;
}

int Rows::NextSelected(int after) const {
  if (selected_ == 0 || after < -1)
    return -1;
  for (int row = after + 1; row < Count(); ++row) {
    if (IsSelected(row))
      return row;
  }
  return -1;
}

bool Rows::SetCaret(int row) {
  if (!Holds(row))
    return false;
  Touch();
  caret_ = row;
  return true;
}

void Rows::Reveal(int row) {
  if (row < top_)
    SetTop(row);
  else if (row >= top_ + page_)
    SetTop(row - page_ + 1);
}

void Rows::SetTop(int row) {
  Touch();
  top_ = row;
}

} // namespace tq::headless
