// Positions and text widths of a template's controls, in dialog units.
//
// Text widths are a rule of thumb for the dialogs' font, whose letters are half as wide as high: 8
// for a full-width character, 4 for an ASCII one. A "&" marks the next letter and has no width.
#pragma once

#include "tests/dialogs/Templates.h"

using tq::ControlKind;
using tq::TemplateRow;

constexpr int kFullWidth = 8;
constexpr int kHalfWidth = 4;
constexpr int kLineHeight = 8;
constexpr int kButtonPadding = 4; // at each side of its text
constexpr int kClosedCombo = 14;  // a template gives the height of the open one
constexpr int kCaptionParts = 24; // in the title bar: close button and borders

struct Box {
  int left, top, right, bottom;
};

inline Box Place(const TemplateRow& row) {
  const int height = row.kind == ControlKind::ComboBox ? kClosedCombo : row.height;
  return {row.x, row.y, row.x + row.width, row.y + height};
}

// Whether the boxes are less than `gap` units apart in both directions.
inline bool AreCloser(const Box& one, const Box& other, int gap) {
  return one.left < other.right + gap && other.left < one.right + gap &&
         one.top < other.bottom + gap && other.top < one.bottom + gap;
}

inline bool Contains(const Box& outer, const Box& inner) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
         inner.bottom <= outer.bottom;
}

inline int TextWidth(const char* utf8) {
  int width = 0;
  for (const char* at = utf8; at != nullptr && *at != '\0'; ++at) {
    const unsigned char byte = static_cast<unsigned char>(*at);
    if (byte >= 0xC0)
      width += kFullWidth;
    else if (byte < 0x80 && byte != '&')
      width += kHalfWidth;
  }
  return width;
}

inline int RoomForText(const TemplateRow& row) {
  switch (row.kind) {
  case ControlKind::Dialog:
    return row.width - kCaptionParts;
  case ControlKind::Button:
    return row.width - 2 * kButtonPadding;
  default:
    return row.width;
  }
}

// The letters behind the single "&" of a text.
inline std::string AccessKeys(const char* text) {
  std::string keys;
  for (const char* at = text; at != nullptr && *at != '\0'; ++at) {
    if (*at == '&')
      keys += *++at;
  }
  return keys;
}

inline std::string Describe(const TemplateRow& row) {
  return std::to_string(row.id) + " " + (row.traditional == nullptr ? "" : row.traditional);
}
