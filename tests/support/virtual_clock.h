// Time that moves only when a test moves it: timers fire in the order of their moments.
#pragma once

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "platform/ports/clock.h"
#include "platform/ports/core_gate.h"

namespace orvanta::test {

class VirtualClock : public Clock {
 public:
  explicit VirtualClock(CoreGate& gate) : gate_(gate) {}

  double secondsToday() const override { return std::fmod(startOfDay + static_cast<double>(now_) / 1000, 86400.0); }
  int year() const override { return 2026; }
  int64_t milliseconds() const override { return now_; }
  /// Time passes, nothing is delivered: what fell due is delivered late, once.
  void delaySeconds(double seconds) override {
    if (onDelay) onDelay();
    now_ += std::llround(seconds * 1000);
  }
  void yield() override { advance(0); }

  std::unique_ptr<Timer> makeTimer(std::function<void()> onTick) override {
    auto timer = std::make_unique<VirtualTimer>(*this, std::move(onTick));
    timers_.push_back(timer.get());
    return timer;
  }

  /// Moves on, firing what falls due on the way.
  void advance(int64_t milliseconds) {
    const int64_t target = now_ + milliseconds;
    while (VirtualTimer* next = nextDue(target)) {
      now_ = std::max(now_, next->due);
      next->fire();
    }
    now_ = std::max(now_, target);
  }

  double startOfDay = 36000;      ///< seconds since midnight at the clock's zero
  std::function<void()> onDelay;  ///< at each pause, before it

 private:
  class VirtualTimer : public Timer {
   public:
    VirtualTimer(VirtualClock& clock, std::function<void()> onTick) : clock_(clock), onTick_(std::move(onTick)) {}
    ~VirtualTimer() override { std::erase(clock_.timers_, this); }
    void setInterval(int milliseconds) override {
      if (milliseconds == interval_) return;
      interval_ = milliseconds;
      due = clock_.now_ + milliseconds;
    }
    int interval() const override { return interval_; }
    void fire() {
      due = std::max(due, clock_.now_) + interval_;
      running = true;
      clock_.gate_.enter(onTick_);
      running = false;
    }
    int64_t due = 0;
    bool running = false;

   private:
    VirtualClock& clock_;
    std::function<void()> onTick_;
    int interval_ = 0;
  };

  VirtualTimer* nextDue(int64_t target) const {
    VirtualTimer* next = nullptr;
    for (VirtualTimer* timer : timers_) {
      const bool waits = timer->interval() > 0 && !timer->running && timer->due <= target;
      if (waits && (next == nullptr || timer->due < next->due)) next = timer;
    }
    return next;
  }

  CoreGate& gate_;
  std::vector<VirtualTimer*> timers_;
  int64_t now_ = 0;
};

}  // namespace orvanta::test
