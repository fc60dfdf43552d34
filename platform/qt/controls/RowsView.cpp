#include "platform/qt/controls/RowsView.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include <algorithm>

#include "platform/framework/window/CListCtrl.h"
#include "platform/headless/user/Actions.h"
#include "platform/qt/Text.h"

namespace tq::qt {

using headless::kBeside;

namespace {

constexpr int kIndent = 2; // pixels in front of a text

headless::Modifier HeldBy(const QMouseEvent& event) {
  if ((event.modifiers() & Qt::ShiftModifier) != 0)
    return headless::Modifier::Shift;
  if ((event.modifiers() & Qt::ControlModifier) != 0)
    return headless::Modifier::Control;
  return headless::Modifier::None;
}

} // namespace

RowsView::RowsView(headless::Control& control, const DialogUnits& units, QWidget& parent)
    : QAbstractScrollArea(&parent), control_(control), units_(units),
      rowHeight_(units.LineHeight()) {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setBackgroundRole(QPalette::Base);
  viewport()->setAutoFillBackground(true);
  verticalScrollBar()->setFocusPolicy(Qt::NoFocus);
}

QString RowsView::ToQtText(const CString& text) const {
  return ToQt(control_.owner->code, text);
}

int RowsView::InnerWidth() const {
  const int bar = verticalScrollBar()->sizeHint().width();
  return width() - 2 * frameWidth() - bar;
}

void RowsView::Refresh() {
  if (!control_.drawn)
    return;
  RefreshLayout();
  RefreshPage();
  viewport()->setMouseTracking((control_.listStyles & CListCtrl::HoverSelect) != 0);
  const bool same = isShown_ && changes_ == TheRows().Changes() && focused_ == IsFocused();
  if (same)
    return;
  isShown_ = true;
  changes_ = TheRows().Changes();
  focused_ = IsFocused();
  viewport()->update();
}

// How many rows are in sight, and which.
void RowsView::RefreshPage() {
  const int across = IsWiderThan(InnerWidth()) ? horizontalScrollBar()->sizeHint().height() : 0;
  const int inner = height() - 2 * frameWidth() - HeaderHeight() - across;
  headless::Rows& rows = TheRows();
  rows.SetPage(std::max(1, inner / rowHeight_));
  const int last = std::max(0, rows.Count() - rows.Page());
  if (rows.Top() > last)
    rows.SetTop(last);
  QScrollBar& bar = *verticalScrollBar();
  if (bar.maximum() == last && bar.value() == rows.Top() && bar.pageStep() == rows.Page())
    return;
  isShowing_ = true;
  bar.setRange(0, last);
  bar.setPageStep(rows.Page());
  bar.setSingleStep(1);
  bar.setValue(rows.Top());
  isShowing_ = false;
  viewport()->update();
}

QRect RowsView::PlaceOfRow(int row) const {
  return {0, (row - TheRows().Top()) * rowHeight_, viewport()->width(), rowHeight_};
}

int RowsView::RowAt(const QPoint& point) const {
  const int row = TheRows().Top() + point.y() / rowHeight_;
  return point.y() >= 0 && TheRows().Holds(row) ? row : kBeside;
}

void RowsView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  const QRect area = event->rect();
  const int top = TheRows().Top();
  const int first = top + std::max(0, area.top() / rowHeight_);
  for (int row = first; TheRows().Holds(row); ++row) {
    const QRect place = PlaceOfRow(row);
    if (place.top() > area.bottom())
      break;
    PaintRow(painter, row, place);
  }
}

void RowsView::PaintBack(QPainter& painter, int row, const QRect& place) const {
  if (TheRows().IsSelected(row))
    painter.fillRect(place, palette().highlight());
  if (row != TheRows().Caret() || !IsFocused())
    return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  option.rect = place;
  option.backgroundColor = palette().color(QPalette::Base);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void RowsView::PaintText(QPainter& painter, const QRect& place, const QString& text,
                         bool selected) const {
  const QRect inner = place.adjusted(kIndent, 0, -kIndent, 0);
  const QString fitting = painter.fontMetrics().elidedText(text, Qt::ElideRight, inner.width());
  style()->drawItemText(&painter, inner, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                        palette(), isEnabled(), fitting,
                        selected ? QPalette::HighlightedText : QPalette::Text);
}

void RowsView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  RefreshPage();
}

void RowsView::scrollContentsBy(int, int) {
  if (!isShowing_)
    TheRows().SetTop(verticalScrollBar()->value());
  viewport()->update();
}

void RowsView::mousePressEvent(QMouseEvent* event) {
  StopHover();
  if (event->button() == Qt::LeftButton && headless::TakesMouse(control_))
    headless::PressOnRow(control_, RowAt(event->pos()), HeldBy(*event));
}

void RowsView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && headless::TakesMouse(control_))
    headless::PressAgainOnRow(control_, RowAt(event->pos()));
}

void RowsView::mouseMoveEvent(QMouseEvent* event) {
  const int row = RowAt(event->pos());
  if ((control_.listStyles & CListCtrl::HoverSelect) == 0 || row == hoverRow_)
    return;
  StopHover();
  if (row == kBeside || event->buttons() != Qt::NoButton)
    return;
  hoverRow_ = row;
  const unsigned own = control_.hoverTime;
  hoverTimer_ = startTimer(static_cast<int>(own == 0 ? headless::kSystemHoverTime : own));
}

void RowsView::StopHover() {
  if (hoverTimer_ != 0)
    killTimer(hoverTimer_);
  hoverTimer_ = 0;
  hoverRow_ = kBeside;
}

void RowsView::timerEvent(QTimerEvent* event) {
  if (event->timerId() != hoverTimer_)
    return QAbstractScrollArea::timerEvent(event);
  const int row = hoverRow_;
  killTimer(hoverTimer_);
  hoverTimer_ = 0;
  if (headless::TakesMouse(control_) && TheRows().Holds(row))
    headless::RestOnRow(control_, row);
}

bool RowsView::ShowRowTip(const QPoint& point, const QPoint& global) {
  const int row = RowAt(point);
  const headless::Row* const at = TheRows().At(row);
  const bool hasOwn = control_.owner->tips.count(control_.id) != 0;
  if (!control_.rowTips || hasOwn || at == nullptr || FitsInRow(at->text))
    return false;
  QToolTip::showText(global, ToQtText(at->text), viewport(), PlaceOfRow(row));
  return true;
}

bool RowsView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Leave)
    StopHover();
  if (event->type() == QEvent::ToolTip) {
    const auto& help = static_cast<const QHelpEvent&>(*event);
    if (ShowRowTip(help.pos(), help.globalPos()))
      return true;
  }
  return QAbstractScrollArea::viewportEvent(event);
}

} // namespace tq::qt
