// A window without a frame, dragged by the system, or by hand where there is no window manager.
#pragma once

#include <QObject>
#include <QPoint>
#include <QTimer>
#include <functional>

class QMouseEvent;
class QWidget;

namespace orvanta {

class WindowDrag : public QObject {
 public:
  /// `begun`: the system takes the mouse, so the press has had its one release. `ended`: the window rests in its new place.
  WindowDrag(QWidget& window, std::function<void()> begun, std::function<void()> ended);

  /// From the next turn of the event loop on, if the mouse is still held.
  void begin();
  bool underWay() const { return dragging_; }

  void pressed(const QMouseEvent& event);
  /// True: the move or release was the drag's.
  bool moved(const QMouseEvent& event);
  bool released(const QMouseEvent& event);
  void windowMoved();

 private:
  void start();
  void mayHaveEnded();

  QWidget& window_;
  std::function<void()> begun_;
  std::function<void()> ended_;
  QTimer rest_;
  QPoint grip_;        ///< of a drag by hand: the mouse from the window's corner
  bool held_ = false;  ///< the left mouse button is down
  bool dragging_ = false;
  bool byHand_ = false;
};

}  // namespace orvanta
