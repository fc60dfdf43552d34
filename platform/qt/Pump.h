// Has the messages and timers of memory arrive where a loop runs that is not this layer's: a menu,
// a message box of the host's. Internal.
#pragma once

#include <QObject>

#include <cstdint>

namespace tq::qt {

class Pump : public QObject {
public:
  // A message waits.
  void Wake();
  // The timer that is due next, in headless::Now's time; UINT64_MAX for none.
  void SetDue(uint64_t due);

  // The scope of a loop of this layer's, which sees to messages and timers itself.
  class OwnLoop {
  public:
    explicit OwnLoop(Pump& pump);
    ~OwnLoop() { pump_.level_ = before_; }
    OwnLoop(const OwnLoop&) = delete;
    OwnLoop& operator=(const OwnLoop&) = delete;

  private:
    Pump& pump_;
    int before_;
  };

protected:
  bool event(QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

private:
  bool IsForeignLoop() const;

  int level_ = -1; // of the loops that ran when this layer's began
  bool isAwake_ = false;
  uint64_t due_ = UINT64_MAX;
  int timer_ = 0;
};

} // namespace tq::qt
