#include "platform/qt/Keys.h"

#include <iterator>

namespace tq::qt {

namespace {

struct KeyPair {
  Qt::Key qt;
  WindowKey key;
};
constexpr KeyPair kKeys[] = {
    {Qt::Key_Return, WindowKey::Enter},
    {Qt::Key_Enter, WindowKey::Enter},
    {Qt::Key_Escape, WindowKey::Escape},
    {Qt::Key_Tab, WindowKey::Tab},
    {Qt::Key_Backtab, WindowKey::Tab},
    {Qt::Key_Space, WindowKey::Space},
    {Qt::Key_Up, WindowKey::Up},
    {Qt::Key_Down, WindowKey::Down},
    {Qt::Key_Home, WindowKey::Home},
    {Qt::Key_End, WindowKey::End},
    {Qt::Key_Delete, WindowKey::Delete},
    {Qt::Key_PageUp, WindowKey::PageUp},
    {Qt::Key_PageDown, WindowKey::PageDown},
    {Qt::Key_F2, WindowKey::F2},
    {Qt::Key_A, WindowKey::A},
    {Qt::Key_Y, WindowKey::Y},
    {Qt::Key_Z, WindowKey::Z},
};

} // namespace

std::optional<WindowKey> KeyOf(const QKeyEvent& event) {
  for (const KeyPair& each : kKeys) {
    if (event.key() == each.qt)
      return each.key;
  }
  return std::nullopt;
}

WindowHeldKeys HeldBy(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers();
  return {(held & Qt::ShiftModifier) != 0, (held & Qt::ControlModifier) != 0,
          (held & Qt::AltModifier) != 0};
}

char LetterOf(const QKeyEvent& event) {
  const int key = event.key();
  const bool is = (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
  return is ? static_cast<char>(key) : '\0';
}

Qt::Key QtKeyOf(WindowKey key) {
  for (const KeyPair& each : kKeys) {
    if (each.key == key)
      return each.qt;
  }
  return Qt::Key_unknown;
}

} // namespace tq::qt
