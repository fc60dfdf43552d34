// A line of text that takes no more than its limit in bytes of the code page, by whichever way a
// character comes: keys, input method, clipboard. Internal.
#pragma once

#include <QLineEdit>

#include "platform/headless/Windows.h"

namespace tq::qt {

class LimitedLine : public QLineEdit {
public:
  LimitedLine(const headless::Control& control, QWidget& parent);

protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; } // the dialog's

private:
  // As much of the text as there is room for in the place of what is selected.
  QString Fitting(const QString& text) const;
  void InsertFitting(const QString& text);
  void PasteFitting();

  const headless::Control& control_;
};

} // namespace tq::qt
