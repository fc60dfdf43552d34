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

// The time in milliseconds: with a screen the system's, else as the timers go.
TQFRAMEWORK_API uint64_t Now();
// When the next timer is due; UINT64_MAX when none is set.
TQFRAMEWORK_API uint64_t NextDue();

// Delivers the oldest waiting message. False when there is none.
TQFRAMEWORK_API bool DeliverMessage();
// Advances the clock to the next timer due of all dialogs and calls its handler. False when none is
// set, or none is due until that time.
TQFRAMEWORK_API bool FireTimer(uint64_t until = UINT64_MAX);
// Lets that much time pass and delivers everything that becomes due.
void Rest(unsigned milliseconds);

// The dialogs that are up, the innermost last.
TQFRAMEWORK_API std::vector<Dialog*>& Running();

} // namespace tq::headless
