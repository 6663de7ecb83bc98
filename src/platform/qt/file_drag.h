// A file that is dragged over a window out of another program.
#pragma once

#include <QObject>
#include <functional>
#include <string>

#include "platform/qt/rim.h"

class QDropEvent;

namespace orvanta {

/// What is dragged is read once, as it comes: each reading waits for the program that it comes from, for seconds when
/// that hangs, and a drag's file stays the same until it leaves or falls.
class FileDrag : public QObject {
 public:
  /// `used` says of a file whether the window can do something with it: its rim shows that.
  FileDrag(QWidget& window, double factor, std::function<bool(const std::string&)> used);

  void enters(QDropEvent& event);
  void moves(QDropEvent& event);
  void leaves();
  /// The file that is taken; "" for none.
  std::string falls(QDropEvent& event);

 protected:
  /// A press, a key or the mouse's coming tell that no drag is under way: its program has died without a word.
  bool eventFilter(QObject* window, QEvent* event) override;

 private:
  void answer(QDropEvent& event) const;

  QWidget& window_;
  std::function<bool(const std::string&)> used_;
  Rim* rim_;            ///< shown while a file that would be used hovers over the window
  bool known_ = false;  ///< what is dragged has been read
  std::string file_;    ///< "" for what is no file
};

}  // namespace orvanta
