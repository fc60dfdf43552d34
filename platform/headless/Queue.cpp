#include "platform/headless/Queue.h"

#include <algorithm>
#include <chrono>
#include <deque>
#include <tuple>

#include "platform/framework/window/DialogAccess.h"
#include "platform/headless/Screen.h"

namespace tq::headless {

namespace {

std::deque<Message>& Waiting() {
  static std::deque<Message> messages;
  return messages;
}

uint64_t now = 0; // milliseconds, without a screen
uint64_t timersSet = 0;

struct DueTimer {
  Dialog* dialog = nullptr;
  unsigned id = 0;
  Timer* timer = nullptr;
};

bool IsEarlier(const Timer& left, const Timer& right) {
  return std::tie(left.due, left.order) < std::tie(right.due, right.order);
}

DueTimer NextTimer() {
  DueTimer next;
  for (Dialog* dialog : Running()) {
    for (auto& [id, timer] : dialog->timers) {
      if (next.timer == nullptr || IsEarlier(timer, *next.timer))
        next = {dialog, id, &timer};
    }
  }
  return next;
}

} // namespace

std::vector<Dialog*>& Running() {
  static std::vector<Dialog*> running;
  return running;
}

void Enqueue(const Message& message) {
  Waiting().push_back(message);
  if (Screen* const screen = CurrentScreen())
    screen->Wake();
}

void DropMessages(WindowHandle dialog) {
  std::erase_if(Waiting(), [dialog](const Message& message) { return message.dialog == dialog; });
}

void StartTimer(Dialog& dialog, unsigned id, unsigned milliseconds) {
  const unsigned period = std::max(1U, milliseconds);
  dialog.timers[id] = {period, Now() + period, ++timersSet};
  if (Screen* const screen = CurrentScreen())
    screen->Wake();
}

uint64_t Now() {
  if (CurrentScreen() == nullptr)
    return now;
  const auto time = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(time).count());
}

uint64_t NextDue() {
  const DueTimer next = NextTimer();
  return next.timer == nullptr ? UINT64_MAX : next.timer->due;
}

bool DeliverMessage() {
  if (Waiting().empty())
    return false;
  const Message message = Waiting().front();
  Waiting().pop_front();
  Dialog* const dialog = FindDialog(message.dialog);
  if (dialog == nullptr)
    return true;
  if (message.code == kModalMessage)
    DialogAccess::TellModalHandler(*dialog->object);
  else
    DialogAccess::Posted(*dialog->object, message.code, message.first, message.second);
  return true;
}

bool FireTimer(uint64_t until) {
  const DueTimer next = NextTimer();
  if (next.timer == nullptr || next.timer->due > until)
    return false;
  now = std::max(now, next.timer->due);
  next.timer->due = (CurrentScreen() == nullptr ? now : Now()) + next.timer->period;
  next.timer->order = ++timersSet; // behind the others that are due with it
  DialogAccess::Timer(*next.dialog->object, next.id);
  return true;
}

void Rest(unsigned milliseconds) {
  const uint64_t until = now + milliseconds;
  while (DeliverMessage() || FireTimer(until)) {
  }
  now = std::max(now, until);
}

} // namespace tq::headless
