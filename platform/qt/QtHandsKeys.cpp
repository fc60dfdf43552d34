// The keyboard's part of QtHands.h.
#include <QApplication>
#include <QKeyEvent>

#include "platform/framework/window/Mnemonic.h"
#include "platform/headless/user/Actions.h"
#include "platform/qt/Keys.h"
#include "platform/qt/QtHands.h"
#include "platform/qt/QtScreen.h"
#include "platform/qt/Text.h"

namespace tq::qt {

using headless::Modifier;

namespace {

Qt::KeyboardModifiers HeldWith(Modifier modifier) {
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

// Where the keyboard's events go: to the control that has the focus, or to the dialog itself.
QWidget& KeyTarget(DialogWindow& window) {
  ControlWidget* const control = window.Find(window.Model().focus);
  return control == nullptr ? static_cast<QWidget&>(window) : control->Widget();
}

void SendKey(DialogWindow& window, int key, Modifier modifier, const QString& text) {
  QWidget& target = KeyTarget(window);
  QKeyEvent press(QEvent::KeyPress, key, HeldWith(modifier), text);
  QApplication::sendEvent(&target, &press);
}

bool IsLetterOfKeys(WindowKey key) {
  return key >= WindowKey::A;
}

const headless::Control* FocusedEdit(const DialogWindow& window) {
  const headless::Control* const focus = window.Model().focus;
  const bool is = focus != nullptr && focus->kind == ControlKind::Edit && focus->TakesInput();
  return is ? focus : nullptr;
}

} // namespace

DialogWindow* QtHands::FindListening(WindowHandle handle) {
  screen_.Refresh();
  const headless::Dialog* const dialog = headless::FindDialog(handle);
  return dialog != nullptr && headless::IsOpen(*dialog) ? screen_.WindowOf(dialog) : nullptr;
}

bool QtHands::TypeText(WindowHandle handle, const char* text) {
  DialogWindow* const window = FindListening(handle);
  const headless::Control* const edit = window == nullptr ? nullptr : FocusedEdit(*window);
  if (edit == nullptr)
    return false;
  for (const QChar each : ToQt(edit->owner->code, CString(text))) {
    if (FindListening(handle) == nullptr || FocusedEdit(*window) != edit)
      break;
    if (each == u'\b')
      SendKey(*window, Qt::Key_Backspace, Modifier::None, QString());
    else
      SendKey(*window, 0, Modifier::None, QString(each));
  }
  return true;
}

bool QtHands::PressKey(WindowHandle handle, WindowKey key, Modifier modifier) {
  DialogWindow* const window = FindListening(handle);
  if (window == nullptr)
    return false;
  if (IsLetterOfKeys(key) && modifier != Modifier::Control)
    return true;
  SendKey(*window, QtKeyOf(key), modifier, key == WindowKey::Space ? QString(u' ') : QString());
  return true;
}

bool QtHands::PressLetter(WindowHandle handle, char letter, Modifier modifier) {
  DialogWindow* const window = FindListening(handle);
  const char upper = AsMnemonic(letter);
  if (window == nullptr || upper == '\0')
    return false;
  const headless::Control* const focus = window->Model().focus;
  const bool inList = focus != nullptr && focus->HasRows();
  const bool isKnown = upper == 'A' || upper == 'Y' || upper == 'Z';
  if ((modifier == Modifier::Control && !isKnown) || (inList && modifier == Modifier::None))
    return false;
  const bool types = modifier == Modifier::None || modifier == Modifier::Shift;
  SendKey(*window, upper, modifier, types ? QString(QLatin1Char(letter)) : QString());
  return true;
}

} // namespace tq::qt
