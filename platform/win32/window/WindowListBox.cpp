#include "platform/win32/window/WindowListBox.h"

#include <algorithm>

#include "platform/win32/window/WindowRun.h"

namespace tq {

namespace {

constexpr int kNone = -1;

int AfterInsert(int row, int came) {
  return row >= came ? row + 1 : row;
}

// For the caret: for a deleted row, the row that takes its number.
int AfterRemove(int row, int went) {
  return row > went ? row - 1 : row;
}

void Put(HWND box, UINT get, UINT set, int value) {
  if (AskBox(box, get) != value)
    AskBox(box, set, IndexParam(value));
}

} // namespace

int AskBox(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
  const Silence silence;
  return box == nullptr ? LB_ERR : static_cast<int>(::SendMessageW(box, message, wParam, lParam));
}

bool IsMultiBox(HWND box) {
  return HasStyle(box, LBS_EXTENDEDSEL | LBS_MULTIPLESEL);
}

int RowsInSightOf(HWND box) {
  RECT client{};
  ::GetClientRect(box, &client);
  return client.bottom / std::max(1, AskBox(box, LB_GETITEMHEIGHT));
}

int AnchorOf(HWND box) {
  return std::max(0, AskBox(box, LB_GETANCHORINDEX));
}

void PutAnchor(HWND box, int row) {
  AskBox(box, LB_SETANCHORINDEX, IndexParam(row));
}

KeepPlace::KeepPlace(HWND box)
    : box_(box), multi_(IsMultiBox(box)), selected_(multi_ ? kNone : AskBox(box, LB_GETCURSEL)),
      caret_(std::max(0, AskBox(box, LB_GETCARETINDEX))), anchor_(AnchorOf(box)),
      top_(AskBox(box, LB_GETTOPINDEX)) {}

void KeepPlace::RowCame(int row) {
  selected_ = AfterInsert(selected_, row);
  caret_ = AfterInsert(caret_, row);
  anchor_ = AfterInsert(anchor_, row);
}

void KeepPlace::RowWent(int row) {
  selected_ = selected_ == row ? kNone : AfterRemove(selected_, row);
  caret_ = AfterRemove(caret_, row);
  anchor_ = AfterRemove(anchor_, row);
}

void KeepPlace::Restore() const {
  const int last = AskBox(box_, LB_GETCOUNT) - 1;
  if (last < 0)
    return;
  const bool isMoved = AskBox(box_, LB_GETCURSEL) != selected_ ||
                       (selected_ != kNone && AskBox(box_, LB_GETCARETINDEX) != selected_);
  if (!multi_ && isMoved) // puts the caret there too
    AskBox(box_, LB_SETCURSEL, IndexParam(selected_));
  if (multi_)
    Put(box_, LB_GETANCHORINDEX, LB_SETANCHORINDEX, std::min(anchor_, last));
  if (multi_ || selected_ == kNone)
    Put(box_, LB_GETCARETINDEX, LB_SETCARETINDEX, std::min(caret_, last));
  Put(box_, LB_GETTOPINDEX, LB_SETTOPINDEX, top_);
}

} // namespace tq
