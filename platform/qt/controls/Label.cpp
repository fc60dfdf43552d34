// Labels: a line of text, in which an ampersand marks a letter.
#include <QPainter>
#include <QStyle>

#include "platform/qt/Text.h"
#include "platform/qt/controls/ControlWidget.h"

namespace tq::qt {

namespace {

class LabelWidget : public QWidget {
public:
  explicit LabelWidget(QWidget& parent) : QWidget(&parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  void Show(const QString& text) {
    text_ = text;
    setAccessibleName(text);
    update();
  }

protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    constexpr int kHow = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic;
    style()->drawItemText(&painter, rect(), kHow, palette(), isEnabled(), text_,
                          QPalette::WindowText);
  }

private:
  QString text_;
};

class Label : public ControlWidget {
public:
  Label(headless::Control& control, const DialogUnits& units, QWidget& parent)
      : ControlWidget(control, units), widget_(parent) {}
  QWidget& Widget() override { return widget_; }
  void Refresh() override {
    if (isShown_ && shown_ == control_.text)
      return;
    isShown_ = true;
    shown_ = control_.text;
    widget_.Show(ToQt(Code(), shown_));
  }

private:
  LabelWidget widget_;
  CString shown_;
  bool isShown_ = false;
};

} // namespace

std::unique_ptr<ControlWidget> MakeLabel(headless::Control& control, const DialogUnits& units,
                                         QWidget& parent) {
  return std::make_unique<Label>(control, units, parent);
}

} // namespace tq::qt
