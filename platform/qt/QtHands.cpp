#include "platform/qt/QtHands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPointer>

#include "platform/framework/window/CListCtrl.h"
#include "platform/framework/window/DialogAccess.h"
#include "platform/headless/user/Actions.h"
#include "platform/qt/QtScreen.h"

namespace tq::qt {

using headless::kBeside;
using headless::Modifier;

struct QtHands::Target {
  QPointer<QWidget> widget;
  QPoint point; // in the widget
};

namespace {

constexpr int kHoverSlack = 1000; // milliseconds

Qt::KeyboardModifiers HeldFor(Modifier modifier) {
  switch (modifier) {
  case Modifier::Control:
    return Qt::ControlModifier;
  case Modifier::Shift:
    return Qt::ShiftModifier;
  case Modifier::Alt:
    return Qt::AltModifier;
  case Modifier::None:
    break;
  }
  return Qt::NoModifier;
}

void SendMouse(QWidget* widget, const QPoint& point, QEvent::Type type, Modifier modifier) {
  if (widget == nullptr)
    return;
  const bool moves = type == QEvent::MouseMove;
  const bool down = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
  QMouseEvent event(type, point, widget->mapToGlobal(point), moves ? Qt::NoButton : Qt::LeftButton,
                    down ? Qt::LeftButton : Qt::NoButton, HeldFor(modifier));
  QApplication::sendEvent(widget, &event);
}

bool IsList(const headless::Control& control) {
  return control.kind == ControlKind::ListBox || control.kind == ControlKind::ListView;
}

} // namespace

ControlWidget* QtHands::FindOpen(WindowHandle handle) {
  screen_.Refresh();
  ControlWidget* const control = screen_.WidgetOf(handle);
  return control != nullptr && headless::TakesMouse(control->Model()) ? control : nullptr;
}

// The widget that gets the mouse at a point of the control; false when it is another control's.
bool QtHands::Reach(ControlWidget& control, const QPoint& point, Target& target) {
  QWidget& widget = control.Widget();
  QWidget* const window = widget.window();
  QWidget* const hit = window->childAt(widget.mapTo(window, point));
  if (hit == nullptr || (hit != &widget && !widget.isAncestorOf(hit)))
    return false;
  target = {hit, hit->mapFrom(&widget, point)};
  return true;
}

bool QtHands::ReachMiddle(WindowHandle handle, Target& target) {
  ControlWidget* const control = FindOpen(handle);
  return control != nullptr && Reach(*control, control->Widget().rect().center(), target);
}

// Scrolls to the row. Row -1 is the lower end, where no row is as long as the list is not full.
bool QtHands::ReachRow(WindowHandle handle, int row, Target& target) {
  ControlWidget* const control = FindOpen(handle);
  if (control == nullptr || !IsList(control->Model()))
    return false;
  headless::Rows& rows = control->Model().rows;
  if (row == kBeside) {
    const QRect last = control->PlaceOfRow(rows.Top() + rows.Page() - 1);
    return rows.Count() < rows.Page() && Reach(*control, last.center(), target);
  }
  if (!rows.Holds(row))
    return false;
  rows.Reveal(row);
  screen_.Refresh();
  return Reach(*control, control->PlaceOfRow(row).center(), target);
}

bool QtHands::Click(WindowHandle handle) {
  Target target;
  const headless::Control* const control = headless::FindControl(handle);
  if (control == nullptr || control->HasRows() || !ReachMiddle(handle, target))
    return false;
  SendMouse(target.widget, target.point, QEvent::MouseButtonPress, Modifier::None);
  SendMouse(target.widget, target.point, QEvent::MouseButtonRelease, Modifier::None);
  return true;
}

bool QtHands::ClickRow(WindowHandle handle, int row, Modifier modifier) {
  Target target;
  if (!ReachRow(handle, row, target))
    return false;
  SendMouse(target.widget, target.point, QEvent::MouseButtonPress, modifier);
  SendMouse(target.widget, target.point, QEvent::MouseButtonRelease, modifier);
  return true;
}

bool QtHands::DoubleClickRow(WindowHandle handle, int row, Modifier modifier) {
  if (!ClickRow(handle, row, modifier))
    return false;
  Target target;
  if (!ReachRow(handle, row, target))
    return true;
  SendMouse(target.widget, target.point, QEvent::MouseButtonDblClick, modifier);
  SendMouse(target.widget, target.point, QEvent::MouseButtonRelease, modifier);
  return true;
}

bool QtHands::HoverRow(WindowHandle handle, int row) {
  Target target;
  const headless::Control* const control = headless::FindControl(handle);
  if (control == nullptr || (control->listStyles & CListCtrl::HoverSelect) == 0 || row == kBeside ||
      !ReachRow(handle, row, target))
    return false;
  const int before = CListCtrl(handle).GetCurSel();
  const unsigned own = control->hoverTime;
  const unsigned rest = own == 0 ? headless::kSystemHoverTime : own;
  SendMouse(target.widget, target.point, QEvent::MouseMove, Modifier::None);
  QElapsedTimer time;
  time.start();
  while (time.elapsed() < static_cast<qint64>(rest) + kHoverSlack &&
         CListCtrl(handle).GetCurSel() == before)
    headless::ServeWithin(rest);
  if (target.widget != nullptr) {
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(target.widget, &leave);
  }
  return true;
}

bool QtHands::IsRowInSight(WindowHandle handle, int row) {
  screen_.Refresh();
  const headless::Control* const list = headless::FindControl(handle);
  return list != nullptr && IsList(*list) && list->rows.InSight(row);
}

// The mouse opens the list; the entry is taken by Enter, for a list that has just opened takes no
// click for a while.
bool QtHands::PickEntry(WindowHandle handle, int index) {
  Target target;
  headless::Control* const control = headless::FindControl(handle);
  if (control == nullptr || control->kind != ControlKind::ComboBox || !control->rows.Holds(index) ||
      !ReachMiddle(handle, target))
    return false;
  SendMouse(target.widget, target.point, QEvent::MouseButtonPress, Modifier::None);
  auto* const combo = qobject_cast<QComboBox*>(target.widget.data());
  if (combo == nullptr || !combo->view()->isVisible())
    return true;
  combo->view()->setCurrentIndex(combo->model()->index(index, 0));
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(combo->view(), &enter);
  return true;
}

bool QtHands::CloseByTitleBar(WindowHandle handle) {
  DialogWindow* const window = FindListening(handle);
  if (window != nullptr)
    window->close();
  return window != nullptr;
}

} // namespace tq::qt
