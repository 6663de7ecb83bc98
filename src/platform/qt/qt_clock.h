// Time by Qt's event loop.
#pragma once

#include "platform/ports/clock.h"
#include "platform/ports/core_gate.h"

namespace orvanta {

class QtClock : public Clock {
 public:
  explicit QtClock(CoreGate& gate) : gate_(gate) {}
  double secondsToday() const override;
  int year() const override;
  int64_t milliseconds() const override;
  void delaySeconds(double seconds) override;
  void yield() override;
  std::unique_ptr<Timer> makeTimer(std::function<void()> onTick) override;

 private:
  CoreGate& gate_;
};

}  // namespace orvanta
