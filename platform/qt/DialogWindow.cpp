#include "platform/qt/DialogWindow.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include "platform/headless/user/Actions.h"
#include "platform/headless/user/Focus.h"
#include "platform/qt/Keys.h"
#include "platform/qt/Pump.h"
#include "platform/qt/Text.h"

namespace tq::qt {

namespace {

constexpr Qt::WindowFlags kDialogFlags =
    Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

std::unique_ptr<ControlWidget> MakeControl(headless::Control& control, const DialogUnits& units,
                                           QWidget& parent) {
  switch (control.kind) {
  case ControlKind::Button:
    return MakeButton(control, units, parent);
  case ControlKind::Edit:
    return MakeEdit(control, units, parent);
  case ControlKind::ListBox:
    return MakeListBox(control, units, parent);
  case ControlKind::ComboBox:
    return MakeComboBox(control, units, parent);
  case ControlKind::ListView:
    return MakeListView(control, units, parent);
  case ControlKind::Label:
  case ControlKind::Dialog:
    break;
  }
  return MakeLabel(control, units, parent);
}

} // namespace

DialogWindow::DialogWindow(headless::Dialog& dialog, QWidget* parent)
    : QWidget(nullptr, kDialogFlags), dialog_(dialog), units_(FontFor(dialog.code, font())),
      host_(parent), level_(Pump::Level()) {
  setFont(FontFor(dialog.code, font()));
  setFixedSize(units_.Across(dialog.place.width), units_.Down(dialog.place.height));
  installEventFilter(this);
  MakeControls();
  Adopt(parent);
}

DialogWindow::~DialogWindow() = default;

// The first control lies in front.
void DialogWindow::MakeControls() {
  for (const auto& control : dialog_.controls) {
    controls_.push_back(MakeControl(*control, units_, *this));
    QWidget& widget = controls_.back()->Widget();
    widget.installEventFilter(this);
    widget.setGeometry(units_.PlaceOf(control->place));
    widget.lower();
  }
}

// The parent takes no input while this one is up. It is no parent in Qt's sense: that would destroy
// this window under the run.
void DialogWindow::Adopt(QWidget* parent) {
  if (parent == nullptr)
    return;
  setWindowModality(Qt::WindowModal);
  winId();
  parent->winId();
  windowHandle()->setTransientParent(parent->windowHandle());
  connect(parent, &QObject::destroyed, this,
          [this] { dialog_.object->EndDialog(CDialog::Cancelled); });
}

ControlWidget* DialogWindow::Find(const headless::Control* control) const {
  for (const auto& each : controls_) {
    if (&each->Model() == control)
      return each.get();
  }
  return nullptr;
}

ControlWidget* DialogWindow::WidgetOf(const QObject* object) const {
  for (const auto& each : controls_) {
    if (&each->Widget() == object)
      return each.get();
  }
  return nullptr;
}

void DialogWindow::Refresh() {
  RefreshTitle();
  setUpdatesEnabled(dialog_.drawn);
  for (const auto& control : controls_)
    RefreshControl(*control);
  RefreshVisible();
  RefreshFocus();
}

void DialogWindow::RefreshTitle() {
  if (isTitled_ && title_ == dialog_.text)
    return;
  isTitled_ = true;
  title_ = dialog_.text;
  setWindowTitle(ToQt(dialog_.code, title_));
}

// In the middle of the parent, or of the screen.
void DialogWindow::RefreshVisible() {
  if (dialog_.visible != isHidden())
    return;
  if (!dialog_.visible)
    return hide();
  const QRect around = host_ != nullptr ? host_->frameGeometry()
                                        : QGuiApplication::primaryScreen()->availableGeometry();
  move(around.center() - rect().center());
  show();
  activateWindow();
}

void DialogWindow::RefreshFocus() {
  ControlWidget* const control = Find(dialog_.focus);
  QWidget& target = control == nullptr ? *this : control->Widget();
  const bool has = control == nullptr ? focusWidget() == nullptr || focusWidget() == this
                                      : focusWidget() == &target;
  if (!has)
    target.setFocus(Qt::OtherFocusReason);
}

void DialogWindow::RefreshControl(ControlWidget& control) {
  const headless::Control& model = control.Model();
  QWidget& widget = control.Widget();
  if (widget.isEnabledTo(this) != model.enabled) {
    widget.setEnabled(model.enabled);
    if (model.kind != ControlKind::Label) // what lies behind gets the mouse
      widget.setAttribute(Qt::WA_TransparentForMouseEvents, !model.enabled);
  }
  RefreshPlace(control);
  if (widget.isVisibleTo(this) != model.visible)
    widget.setVisible(model.visible);
  widget.setUpdatesEnabled(model.drawn);
  control.RefreshTip();
  control.Refresh();
}

// An edit that was laid over a row of a list box.
void DialogWindow::RefreshPlace(ControlWidget& control) {
  const headless::Control& model = control.Model();
  ControlWidget* const list = Find(model.over);
  if (list == nullptr || !control.IsPlacedAnew())
    return;
  list->Refresh(); // it may have scrolled there
  constexpr int kBorder = 2;
  const QRect row = list->PlaceOfRow(model.overRow).translated(list->Widget().pos());
  control.Widget().setGeometry(row.adjusted(0, -kBorder, 0, kBorder));
}

void DialogWindow::closeEvent(QCloseEvent* event) {
  event->ignore(); // memory decides whether the dialog ends
  if (headless::IsOpen(dialog_))
    headless::CloseByUser(dialog_);
}

// A press on a control that cannot have the focus then, or in a dialog that hears nothing.
bool DialogWindow::IsPressRefused(const QObject& object) {
  ControlWidget* const control = WidgetOf(&object);
  if (control == nullptr || control->Model().kind == ControlKind::ListBox ||
      control->Model().kind == ControlKind::ListView)
    return false;
  return !headless::TakesMouse(control->Model()) || !headless::MoveFocus(control->Model());
}

// A combo box turns its entries where it has the focus, not where the mouse happens to be.
bool DialogWindow::IsWheelRefused(const QObject& object) const {
  const ControlWidget* const control = WidgetOf(&object);
  return control != nullptr && control->Model().kind == ControlKind::ComboBox &&
         dialog_.focus != &control->Model();
}

// Whether a key is not for the widget that has the focus.
bool DialogWindow::IsKeyDone(const QObject& object, const QKeyEvent& event) {
  if (!headless::IsOpen(dialog_))
    return true;
  const WindowHeldKeys held = HeldBy(event);
  const std::optional<WindowKey> key = KeyOf(event);
  if (key.has_value() && headless::TakeKey(dialog_, *key, held))
    return true;
  const char letter = LetterOf(event);
  if (letter != '\0' && !held.control && headless::TakeLetter(dialog_, letter, held.alt))
    return true;
  const ControlWidget* const control = Find(dialog_.focus);
  if (control == nullptr || WidgetOf(&object) != control)
    return true;
  const ControlKind kind = control->Model().kind;
  return kind != ControlKind::Edit && !(kind == ControlKind::ComboBox && held.alt);
}

bool DialogWindow::eventFilter(QObject* object, QEvent* event) {
  switch (event->type()) {
  case QEvent::ShortcutOverride: // the host's shortcuts are not for its dialogs
    event->accept();
    return true;
  case QEvent::KeyPress:
    return IsKeyDone(*object, static_cast<const QKeyEvent&>(*event));
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonDblClick:
    return static_cast<const QMouseEvent&>(*event).button() == Qt::LeftButton &&
           IsPressRefused(*object);
  case QEvent::Wheel:
    return IsWheelRefused(*object);
  default:
    return QWidget::eventFilter(object, event);
  }
}

} // namespace tq::qt
