// The font of a dialog, and dialog units in pixels by it as on Windows: a quarter of a letter's
// average width, an eighth of a line's height. Internal.
#pragma once

#include <QFont>
#include <QRect>

#include "platform/headless/Windows.h"

namespace tq::qt {

// The desktop's font. Where that has no Chinese, one that has it in the shapes of the dialog's
// language, for all of the text: what Qt puts in for single characters goes by the language of the
// desktop, and is higher than the line that the desktop's font asks for.
QFont FontFor(headless::TextCode code, const QFont& desktop);

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
