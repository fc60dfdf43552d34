// The keys that take steps back and do them again, in every editor.
#pragma once

#include "platform/framework/window/WindowTypes.h"

namespace tq {

enum class HistoryWay { None, Undo, Redo };

// Control and Z undo; Control and Y, and Control, Shift and Z, redo.
inline HistoryWay HistoryWayOf(WindowKey key, WindowHeldKeys held) {
  if (!held.control || (key != WindowKey::Y && key != WindowKey::Z))
    return HistoryWay::None;
  return key == WindowKey::Y || held.shift ? HistoryWay::Redo : HistoryWay::Undo;
}

} // namespace tq
