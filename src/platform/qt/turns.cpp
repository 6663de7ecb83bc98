// A turn begins when the loop wakes and ends when it waits again.
#include "platform/qt/turns.h"

#include <QAbstractEventDispatcher>
#include <chrono>
#include <memory>
#include <string>

#include "base/log.h"

namespace orvanta {

void watchTurns() {
  if (!logs("turns")) return;
  using Clock = std::chrono::steady_clock;
  static constexpr std::chrono::milliseconds kFrame{16};
  QAbstractEventDispatcher* loop = QAbstractEventDispatcher::instance();
  const auto began = std::make_shared<Clock::time_point>(Clock::now());
  QObject::connect(loop, &QAbstractEventDispatcher::awake, [began] { *began = Clock::now(); });
  QObject::connect(loop, &QAbstractEventDispatcher::aboutToBlock, [began] {
    const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - *began);
    if (took > kFrame) logLine("turns", std::to_string(took.count()) + " ms");
  });
}

}  // namespace orvanta
