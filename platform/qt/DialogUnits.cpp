#include "platform/qt/DialogUnits.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace tq::qt {

namespace {

constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int kPairs = 26;

// What desktops have, the most usual first.
QStringList FamiliesOf(QFontDatabase::WritingSystem writing) {
  if (writing == QFontDatabase::SimplifiedChinese)
    return {QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Noto Sans SC"),
            QStringLiteral("Source Han Sans SC"), QStringLiteral("WenQuanYi Micro Hei"),
            QStringLiteral("WenQuanYi Zen Hei")};
  return {QStringLiteral("Noto Sans CJK TC"), QStringLiteral("Noto Sans TC"),
          QStringLiteral("Source Han Sans TC"), QStringLiteral("WenQuanYi Zen Hei"),
          QStringLiteral("AR PL UMing TW")};
}

// Of a line with Chinese in it, which may come from another font than the one that was asked for.
int HeightOfLine(const QFont& font) {
  QTextLayout layout(QStringLiteral("\u00C1g\u570B\u56FD"), font);
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  return static_cast<int>(std::ceil(line.height()));
}

} // namespace

QFont FontFor(headless::TextCode code, const QFont& desktop) {
  const auto writing = code == headless::TextCode::Gbk ? QFontDatabase::SimplifiedChinese
                                                       : QFontDatabase::TraditionalChinese;
  const QString own = QFontInfo(desktop).family();
  if (code == headless::TextCode::Utf8 || QFontDatabase::writingSystems(own).contains(writing))
    return desktop;
  const QStringList present = QFontDatabase::families(writing);
  for (const QString& family : FamiliesOf(writing)) {
    if (!present.contains(family))
      continue;
    QFont font = desktop;
    font.setFamilies({family, own});
    return font;
  }
  return desktop;
}

DialogUnits::DialogUnits(const QFont& font) {
  const QFontMetrics metrics(font);
  letter_ = (metrics.horizontalAdvance(QLatin1String(kLetters)) / kPairs + 1) / 2;
  line_ = std::max(metrics.height(), HeightOfLine(font));
}

QRect DialogUnits::PlaceOf(const headless::Place& place) const {
  const int left = Across(place.x);
  const int top = Down(place.y);
  return {left, top, Across(place.x + place.width) - left, Down(place.y + place.height) - top};
}

} // namespace tq::qt
