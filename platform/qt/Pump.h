// Has the messages and timers of memory arrive where a loop runs that is not this layer's: a menu,
// a message box of the host's. Internal.
#pragma once

#include <QObject>

#include <cstdint>
#include <functional>
#include <utility>

namespace tq::qt {

class Pump : public QObject {
public:
  // `refresh` shows what memory holds now.
  explicit Pump(std::function<void()> refresh) : refresh_(std::move(refresh)) {}

  // A message waits, or a timer was set.
  void Wake();
  // The timer that is due next, in headless::Now's time; UINT64_MAX for none.
  void SetDue(uint64_t due);

  // How many loops of Qt's run below the innermost dialog's own, which sees to messages and timers
  // itself.
  static int Level();
  void SetLevel(int level) { level_ = level; }

protected:
  bool event(QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

private:
  bool IsForeignLoop() const { return Level() > level_; }

  std::function<void()> refresh_;
  int level_ = 0;
  bool isAwake_ = false;
  uint64_t due_ = UINT64_MAX;
  int timer_ = 0;
};

} // namespace tq::qt
