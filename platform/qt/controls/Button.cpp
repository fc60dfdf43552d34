// Buttons with a text or a picture. What a press means is memory's; keys never reach the widget.
#include <QBitmap>
#include <QIcon>
#include <QImage>
#include <QPushButton>

#include "platform/framework/window/ButtonPictures.h"
#include "platform/headless/user/Actions.h"
#include "platform/qt/Text.h"
#include "platform/qt/controls/ControlWidget.h"

namespace tq::qt {

namespace {

QIcon IconOf(WindowButtonIcon icon, const QColor& colour) {
  QImage image(kPictureSize, kPictureSize, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  const auto& picture = kButtonPictures[static_cast<int>(icon)];
  for (int y = 0; y < kPictureSize; ++y) {
    for (int x = 0; x < kPictureSize; ++x) {
      if ((picture[y] >> (kPictureSize - 1 - x) & 1) != 0)
        image.setPixelColor(x, y, colour);
    }
  }
  return QIcon(QPixmap::fromImage(image));
}

class Button : public ControlWidget {
public:
  Button(headless::Control& control, const DialogUnits& units, QWidget& parent)
      : ControlWidget(control, units), widget_(&parent) {
    widget_.setAutoDefault(false);
    widget_.setDefault((control.style & TemplateDefault) != 0);
    QObject::connect(&widget_, &QPushButton::clicked, &widget_, [this] {
      if (headless::TakesMouse(control_))
        headless::ClickButton(control_);
    });
  }

  QWidget& Widget() override { return widget_; }

  void Refresh() override {
    if ((control_.style & TemplateIcon) != 0)
      RefreshIcon();
    else
      RefreshText();
  }

private:
  void RefreshIcon() {
    if (icon_ == control_.icon)
      return;
    icon_ = control_.icon;
    // A button that cannot be pressed now draws the same picture paler.
    const QPalette& palette = widget_.palette();
    widget_.setIcon(IconOf(icon_, palette.color(QPalette::Active, QPalette::ButtonText)));
  }

  void RefreshText() {
    if (isShown_ && text_ == control_.text)
      return;
    isShown_ = true;
    text_ = control_.text;
    widget_.setText(ToQt(Code(), text_));
    widget_.setShortcut(QKeySequence()); // the letter is the dialog's to press
  }

  QPushButton widget_;
  WindowButtonIcon icon_ = WindowButtonIcon::None;
  CString text_;
  bool isShown_ = false;
};

} // namespace

std::unique_ptr<ControlWidget> MakeButton(headless::Control& control, const DialogUnits& units,
                                          QWidget& parent) {
  return std::make_unique<Button>(control, units, parent);
}

} // namespace tq::qt
