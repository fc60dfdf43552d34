// The rows of a list box or list view, drawn from memory: a row costs nothing until it is in sight.
// Internal.
#pragma once

#include <QAbstractScrollArea>

#include "platform/headless/Windows.h"
#include "platform/headless/user/UserInput.h"
#include "platform/qt/DialogUnits.h"

namespace tq::qt {

class RowsView : public QAbstractScrollArea {
public:
  RowsView(headless::Control& control, const DialogUnits& units, QWidget& parent);

  void Refresh();
  QRect PlaceOfRow(int row) const; // in the viewport
  // The row under a point of the viewport; -1 beside the rows.
  virtual int RowAt(const QPoint& point) const;
  virtual bool FitsInRow(const CString&) const { return true; }

protected:
  headless::Rows& TheRows() const { return control_.rows; }
  QString ToQtText(const CString& text) const;
  bool IsFocused() const { return control_.owner->focus == &control_; }
  int RowHeight() const { return rowHeight_; }
  int InnerWidth() const;

  virtual int HeaderHeight() const { return 0; }
  virtual void RefreshLayout() {} // before the rows are
  virtual bool IsWiderThan(int) const { return false; }
  virtual void PaintRow(QPainter& painter, int row, const QRect& place) = 0;
  // Selection and focus, then the text in its colour.
  void PaintBack(QPainter& painter, int row, const QRect& place) const;
  void PaintText(QPainter& painter, const QRect& place, const QString& text, bool selected) const;

  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int across, int down) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent*) override {}
  void keyPressEvent(QKeyEvent*) override {} // keys are the dialog's
  void timerEvent(QTimerEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  bool focusNextPrevChild(bool) override { return false; }

  headless::Control& control_;
  const DialogUnits& units_;

private:
  void RefreshPage();
  void StopHover();
  bool ShowRowTip(const QPoint& point, const QPoint& global);

  int rowHeight_;
  unsigned changes_ = 0;
  bool focused_ = false;
  bool isShown_ = false;
  bool isShowing_ = false; // it is the program that scrolls
  int hoverTimer_ = 0;
  int hoverRow_ = -1;
};

} // namespace tq::qt
