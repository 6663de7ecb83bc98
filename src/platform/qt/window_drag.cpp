// The system does not tell when its drag ends: it has when the window rests and no button is down.
#include "platform/qt/window_drag.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>
#include <utility>

#include "platform/qt/window_traits.h"

namespace orvanta {

namespace {

constexpr int kRest = 300;  ///< milliseconds without a move

}  // namespace

WindowDrag::WindowDrag(QWidget& window, std::function<void()> begun, std::function<void()> ended)
    : window_(window), begun_(std::move(begun)), ended_(std::move(ended)) {
  rest_.setSingleShot(true);
  QObject::connect(&rest_, &QTimer::timeout, this, [this] { mayHaveEnded(); });
}

/// What waits comes first: with the release among it, the window would stick to the mouse.
void WindowDrag::begin() {
  QTimer::singleShot(0, this, [this] { start(); });
}

void WindowDrag::start() {
  if (!held_ || dragging_) return;
  dragging_ = true;
  held_ = false;
  begun_();
  byHand_ = window_.windowHandle() == nullptr || !window_.windowHandle()->startSystemMove();
  rest_.start(kRest);
}

void WindowDrag::pressed(const QMouseEvent& event) {
  grip_ = event.globalPosition().toPoint() - window_.pos();
  held_ = event.button() == Qt::LeftButton;
}

bool WindowDrag::moved(const QMouseEvent& event) {
  if (byHand_) window_.move(event.globalPosition().toPoint() - grip_);
  return byHand_;
}

bool WindowDrag::released(const QMouseEvent& event) {
  const bool left = event.button() == Qt::LeftButton;
  if (left) held_ = false;
  // The window manager came too late to see it: with the window on the mouse it would wait for the next one.
  if (left && dragging_ && !byHand_) cancelSystemMove(window_);
  if (!std::exchange(byHand_, false)) return false;
  mayHaveEnded();
  return true;
}

void WindowDrag::windowMoved() {
  if (dragging_) rest_.start(kRest);
}

void WindowDrag::mayHaveEnded() {
  if (!dragging_ || byHand_) return;
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    rest_.start(kRest);
    return;
  }
  dragging_ = false;
  ended_();
}

}  // namespace orvanta
