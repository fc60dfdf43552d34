// Dialog units in pixels, by the font as on Windows: a quarter of a letter's average width, an eighth
// of its height. Internal.
#pragma once

#include <QFont>
#include <QRect>

#include "platform/headless/Windows.h"

namespace tq::qt {

class DialogUnits {
public:
  explicit DialogUnits(const QFont& font);

  int Across(int units) const { return Scale(units, letter_, 4); }
  int Down(int units) const { return Scale(units, line_, 8); }
  QRect PlaceOf(const headless::Place& place) const;
  int LineHeight() const { return line_; }

private:
  static int Scale(int units, int base, int parts) { return (units * base + parts / 2) / parts; }

  int letter_; // the average width
  int line_;
};

} // namespace tq::qt
