#include "platform/headless/HitTest.h"

#include <algorithm>

namespace tq::headless {

namespace {

// In dialog units; a line of text is eight units high.
constexpr int kRowHeight = 8;
constexpr int kByteWidth = 4; // a full-width character is two bytes and twice as wide
constexpr int kBorder = 1;
constexpr int kHeaderHeight = 12;
constexpr int kClosedComboHeight = 12;

int HeaderOf(ControlKind kind) {
  return kind == ControlKind::ListView ? kHeaderHeight : 0;
}

Place PlaceOf(const Control& control) {
  Place place = control.place;
  if (control.kind == ControlKind::ComboBox) // the template's height is that of the open list
    place.height = kClosedComboHeight;
  return place;
}

bool Contains(const Place& place, int x, int y) {
  return x >= place.x && x < place.x + place.width && y >= place.y && y < place.y + place.height;
}

bool IsInFrontAt(const Control& control, const Place& place) {
  const int x = place.x + place.width / 2;
  const int y = place.y + place.height / 2;
  for (const auto& each : control.owner->controls) {
    if (each->TakesFocus() && Contains(PlaceOf(*each), x, y))
      return each.get() == &control;
  }
  return false;
}

} // namespace

int RowsInSight(ControlKind kind, const Place& place) {
  return std::max(1, (place.height - kBorder - HeaderOf(kind)) / kRowHeight);
}

bool FitsInRow(const Control& list, const CString& text) {
  return text.GetLength() * kByteWidth <= list.place.width - 2 * kBorder;
}

Place PlaceOfRow(const Control& list, int row) {
  const int y = list.place.y + HeaderOf(list.kind) + (row - list.rows.Top()) * kRowHeight;
  return {list.place.x, y, list.place.width, kRowHeight};
}

bool IsReached(const Control& control) {
  return IsInFrontAt(control, PlaceOf(control));
}

bool IsRowReached(const Control& list, int row) {
  return IsInFrontAt(list, PlaceOfRow(list, row));
}

} // namespace tq::headless
