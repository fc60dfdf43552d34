// Keys as Qt tells them and as this layer has them. Internal.
#pragma once

#include <QKeyEvent>

#include <optional>

#include "platform/framework/window/WindowTypes.h"

namespace tq::qt {

std::optional<WindowKey> KeyOf(const QKeyEvent& event);
WindowHeldKeys HeldBy(const QKeyEvent& event);
// The letter or digit of a key that is pressed; 0 for others.
char LetterOf(const QKeyEvent& event);

// For programs that act as the user.
Qt::Key QtKeyOf(WindowKey key);

} // namespace tq::qt
