// Timers that call the core through its gate, one call at a time.
#include "platform/qt/qt_clock.h"

#include <QCoreApplication>
#include <QDate>
#include <QTime>
#include <QTimer>
#include <chrono>
#include <thread>

namespace orvanta {

namespace {

class QtTimer : public Timer {
 public:
  QtTimer(CoreGate& gate, std::function<void()> onTick) : gate_(gate), onTick_(std::move(onTick)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { fire(); });
  }

  void setInterval(int milliseconds) override {
    if (milliseconds == interval()) return;
    if (milliseconds <= 0) {
      timer_.stop();
    } else {
      timer_.start(milliseconds);
    }
  }

  int interval() const override { return timer_.isActive() ? timer_.interval() : 0; }

 private:
  void fire() {
    // Within a dialog of its own handler a timer stays quiet.
    if (running_) return;
    running_ = true;
    gate_.enter(onTick_);
    running_ = false;
  }

  CoreGate& gate_;
  std::function<void()> onTick_;
  QTimer timer_;
  bool running_ = false;
};

}  // namespace

double QtClock::secondsToday() const { return QTime::currentTime().msecsSinceStartOfDay() / 1000.0; }

int QtClock::year() const { return QDate::currentDate().year(); }

int64_t QtClock::milliseconds() const {
  return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void QtClock::delaySeconds(double seconds) { std::this_thread::sleep_for(std::chrono::duration<double>(seconds)); }

void QtClock::yield() {
  QCoreApplication::processEvents();
  gate_.leaveIfEnded();
}

std::unique_ptr<Timer> QtClock::makeTimer(std::function<void()> onTick) { return std::make_unique<QtTimer>(gate_, std::move(onTick)); }

}  // namespace orvanta
