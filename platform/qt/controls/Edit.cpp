// Edits. The widget takes the keys, the input method and the clipboard; memory holds the text.
#include <QLineEdit>

#include "platform/headless/user/Actions.h"
#include "platform/qt/Text.h"
#include "platform/qt/controls/ControlWidget.h"
#include "platform/qt/controls/LimitedLine.h"

namespace tq::qt {

namespace {

class Edit : public ControlWidget {
public:
  Edit(headless::Control& control, const DialogUnits& units, QWidget& parent)
      : ControlWidget(control, units), widget_(control, parent) {
    QObject::connect(&widget_, &QLineEdit::textChanged, &widget_, [this] { TakeText(); });
    QObject::connect(&widget_, &QLineEdit::selectionChanged, &widget_, [this] { TakeSelection(); });
    QObject::connect(&widget_, &QLineEdit::cursorPositionChanged, &widget_,
                     [this] { TakeSelection(); });
  }

  QWidget& Widget() override { return widget_; }

  void Refresh() override {
    isShowing_ = true;
    widget_.setReadOnly((control_.style & TemplateReadOnly) != 0);
    const bool isOther = !isShown_ || text_ != control_.text;
    if (isOther) {
      isShown_ = true;
      text_ = control_.text;
      widget_.setText(ToEditable(Code(), text_));
    }
    if (isOther || start_ != control_.selectionStart || end_ != control_.selectionEnd)
      ShowSelection();
    isShowing_ = false;
  }

private:
  void ShowSelection() {
    start_ = control_.selectionStart;
    end_ = control_.selectionEnd;
    const auto first = static_cast<int>(ToEditable(Code(), text_.Left(start_)).size());
    const auto last = static_cast<int>(ToEditable(Code(), text_.Left(end_)).size());
    if (first == last)
      widget_.setCursorPosition(first);
    widget_.setSelection(first, last - first);
  }

  // What the user typed, pasted or deleted.
  void TakeText() {
    if (isShowing_)
      return;
    text_ = FromEditable(Code(), widget_.text());
    control_.text = text_;
    TakeSelection();
    headless::TellTextChanged(control_);
  }

  void TakeSelection() {
    if (isShowing_)
      return;
    const bool several = widget_.hasSelectedText();
    start_ = BytesTo(several ? widget_.selectionStart() : widget_.cursorPosition());
    end_ = several ? BytesTo(widget_.selectionEnd()) : start_;
    control_.selectionStart = start_;
    control_.selectionEnd = end_;
  }

  int BytesTo(int character) const {
    return FromEditable(Code(), widget_.text().left(character)).GetLength();
  }

  LimitedLine widget_;
  CString text_; // as the widget shows it
  int start_ = 0;
  int end_ = 0;
  bool isShown_ = false;
  bool isShowing_ = false; // it is the program that changes the widget
};

} // namespace

std::unique_ptr<ControlWidget> MakeEdit(headless::Control& control, const DialogUnits& units,
                                        QWidget& parent) {
  return std::make_unique<Edit>(control, units, parent);
}

} // namespace tq::qt
