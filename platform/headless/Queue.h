// The waiting messages and the timers of all dialogs, and the clock the timers go by. Internal.
#pragma once

#include <cstdint>

#include "platform/headless/Windows.h"

namespace tq::headless {

struct Message {
  WindowHandle dialog;
  unsigned code; // kModalMessage, or one of Post
  intptr_t first;
  intptr_t second;
};

inline constexpr unsigned kModalMessage = 0; // tells the modal handler

void Enqueue(const Message& message);
void DropMessages(WindowHandle dialog);

void StartTimer(Dialog& dialog, unsigned id, unsigned milliseconds);

// Delivers the message that has waited longest. False when none waits.
bool DeliverMessage();
// Moves the clock to the next timer that is due, of all dialogs, and calls it. False when none is
// set, or none comes until that time.
bool FireTimer(uint64_t until = UINT64_MAX);
// So much time goes by, with all that arrives in it.
void Rest(unsigned milliseconds);

// The dialogs that are up, the innermost last.
std::vector<Dialog*>& Running();

} // namespace tq::headless
