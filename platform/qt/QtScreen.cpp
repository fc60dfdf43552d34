#include "platform/qt/QtScreen.h"

#include <QAbstractEventDispatcher>
#include <QCursor>
#include <QThread>

#include <algorithm>

#include "platform/headless/Queue.h"
#include "platform/interface/TQSymbolVersion.h"
#include "platform/qt/QtHands.h"

namespace tq::qt {

using headless::Dialog;

QtScreen::QtScreen() : hands_(std::make_unique<QtHands>(*this)) {}

QtScreen::~QtScreen() = default;

const char* QtScreen::Begin() {
  if (const char* const why = application_.Begin())
    return why;
  pump_ = std::make_unique<Pump>([this] { Refresh(); });
  SetCursor(GetWindowCursor());
  return nullptr;
}

void QtScreen::End() {
  SetCursor(WindowCursor::Arrow);
  pump_.reset();
  if (application_.IsOwn())
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  application_.End();
}

QWidget* QtScreen::ParentOf(WindowHandle parent) const {
  headless::Node* const node = headless::FindNode(parent);
  if (node == nullptr) {
    QWidget* const widget = QWidget::find(reinterpret_cast<WId>(parent));
    return widget == nullptr ? nullptr : widget->window();
  }
  const bool isDialog = node->kind == ControlKind::Dialog;
  return WindowOf(isDialog ? static_cast<Dialog*>(node)
                           : static_cast<headless::Control*>(node)->owner);
}

bool QtScreen::Open(Dialog& dialog, WindowHandle parent) {
  windows_.push_back(std::make_unique<DialogWindow>(dialog, ParentOf(parent)));
  pump_->SetLevel(windows_.back()->Level());
  windows_.back()->Refresh();
  return true;
}

void QtScreen::Close(const Dialog& dialog) {
  std::erase_if(windows_, [&](const auto& window) { return &window->Model() == &dialog; });
  if (windows_.empty())
    return;
  pump_->SetLevel(windows_.back()->Level());
  if (windows_.back()->isVisible())
    windows_.back()->activateWindow();
}

DialogWindow* QtScreen::WindowOf(const Dialog* dialog) const {
  for (const auto& window : windows_) {
    if (&window->Model() == dialog)
      return window.get();
  }
  return nullptr;
}

ControlWidget* QtScreen::WidgetOf(WindowHandle handle) const {
  const headless::Control* const control = headless::FindControl(handle);
  const DialogWindow* const window = control == nullptr ? nullptr : WindowOf(control->owner);
  return window == nullptr ? nullptr : window->Find(control);
}

void QtScreen::Refresh() {
  for (const auto& window : windows_)
    window->Refresh();
}

bool QtScreen::Serve(unsigned patience) {
  Refresh();
  QAbstractEventDispatcher* const dispatcher = QThread::currentThread()->eventDispatcher();
  if (application_.IsOwn()) // where no loop of Qt's runs it would wait for one
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  if (dispatcher->processEvents(QEventLoop::AllEvents))
    return true;
  if (patience == 0)
    return false;
  const uint64_t now = headless::Now();
  pump_->SetDue(std::min(headless::NextDue(), now + patience));
  dispatcher->processEvents(QEventLoop::WaitForMoreEvents);
  return headless::Now() < now + patience;
}

void QtScreen::Wake() {
  pump_->Wake();
}

bool QtScreen::FitsInRow(const headless::Control& list, const CString& text) {
  ControlWidget* const widget = WidgetOf(list.handle);
  return widget == nullptr || widget->FitsInRow(text);
}

void QtScreen::SetCursor(WindowCursor shape) {
  const bool waits = shape == WindowCursor::Wait;
  if (waits == waits_)
    return;
  waits_ = waits;
  if (waits)
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QGuiApplication::restoreOverrideCursor();
}

bool QtScreen::IsHostWindow(WindowHandle handle) {
  return QWidget::find(reinterpret_cast<WId>(handle)) != nullptr;
}

} // namespace tq::qt

// The name that kScreenEntry says.
extern "C" TQ_EXPORT tq::headless::Screen* tqScreen(int version) {
  if (version != TQSYMBOL_VERSION)
    return nullptr;
  static auto* const screen = new tq::qt::QtScreen; // as long as the process
  return screen;
}
