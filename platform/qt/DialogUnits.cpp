#include "platform/qt/DialogUnits.h"

#include <QFontMetrics>

namespace tq::qt {

namespace {

constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int kPairs = 26;

} // namespace

DialogUnits::DialogUnits(const QFont& font) {
  const QFontMetrics metrics(font);
  letter_ = (metrics.horizontalAdvance(QLatin1String(kLetters)) / kPairs + 1) / 2;
  line_ = metrics.height();
}

QRect DialogUnits::PlaceOf(const headless::Place& place) const {
  const int left = Across(place.x);
  const int top = Down(place.y);
  return {left, top, Across(place.x + place.width) - left, Down(place.y + place.height) - top};
}

} // namespace tq::qt
