// Time: the hour, elapsed time, pauses and the periodic timers of the core's thread.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace orvanta {

/// A periodic timer, stopped when made. It never fires while its own handler runs.
class Timer {
 public:
  virtual ~Timer() = default;
  /// Milliseconds between two calls; 0 stops. Setting the present value changes nothing.
  virtual void setInterval(int milliseconds) = 0;
  virtual int interval() const = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  /// Seconds since local midnight, with fractions, 0 to 86400; falls back to 0 at midnight.
  virtual double secondsToday() const = 0;
  /// Of the calendar.
  virtual int year() const = 0;
  /// Milliseconds since some fixed moment; never goes back.
  virtual int64_t milliseconds() const = 0;
  /// Sleeps without delivering any event.
  virtual void delaySeconds(double seconds) = 0;
  /// Delivers what is pending: the explicit yield of a long routine.
  virtual void yield() = 0;
  virtual std::unique_ptr<Timer> makeTimer(std::function<void()> onTick) = 0;
};

/// Seconds from `start` to `now`, both of secondsToday(). Never negative: midnight adds a day.
inline double secondsBetween(double start, double now) { return now >= start ? now - start : now - start + 86400; }

}  // namespace orvanta
