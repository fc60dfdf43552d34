#include "platform/qt/Pump.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <algorithm>

#include "platform/headless/Queue.h"

namespace tq::qt {

int Pump::Level() {
  return QThread::currentThread()->loopLevel();
}

void Pump::Wake() {
  if (isAwake_)
    return;
  isAwake_ = true;
  QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void Pump::SetDue(uint64_t due) {
  if (due == due_)
    return;
  due_ = due;
  if (timer_ != 0)
    killTimer(timer_);
  timer_ = 0;
  if (due == UINT64_MAX)
    return;
  const uint64_t now = headless::Now();
  const uint64_t wait = due > now ? due - now : 0;
  timer_ = startTimer(static_cast<int>(std::min<uint64_t>(wait, INT_MAX)), Qt::PreciseTimer);
}

bool Pump::event(QEvent* event) {
  if (event->type() != QEvent::User)
    return QObject::event(event);
  isAwake_ = false;
  if (!IsForeignLoop())
    return true;
  while (IsForeignLoop() && headless::DeliverMessage()) {
  }
  SetDue(headless::NextDue());
  refresh_();
  return true;
}

// In this layer's own loop it has done its work: the wait is over.
void Pump::timerEvent(QTimerEvent*) {
  killTimer(timer_);
  timer_ = 0;
  if (!IsForeignLoop())
    return;
  headless::FireTimer(headless::Now());
  SetDue(headless::NextDue());
  refresh_();
}

} // namespace tq::qt
