// The one road to what the deck does, for mouse, Space, letter keys, menus and other programs.
#pragma once

#include <optional>

#include "faceplate/acts.h"
#include "playback/deck_status.h"

namespace orvanta {

class Actions {
 public:
  Actions(const ActParts& parts, StatusBoard& status) : on_(parts), status_(status) {}

  /// Press and release in one.
  void run(Action action, By by = By::Person, int argument = 0);
  /// A person's hand goes down: a key clicks and gives way, a scan starts.
  void press(Action action);
  /// It comes up over the key: what the key stands for is done.
  void release(Action action, int argument = 0);
  /// It slid off: the key comes back up and does nothing.
  void letGo(Action action);

  /// A key that stands for nothing yet gives way and clicks all the same.
  void click() const { on_.sounds.play(Sound::Click1); }

  /// Whether a person would be heard now.
  bool enabled(Action action, int argument = 0) const { return actOf(action).enabled(on_, argument); }
  /// Whether a menu marks it as on.
  bool checked(Action action) const { return actOf(action).checked(on_); }

 private:
  bool pressTransport(Action action);
  void act(Action action, By by, int argument);

  ActParts on_;
  StatusBoard& status_;
  std::optional<Action> held_;  ///< a transport key whose press was taken
};

}  // namespace orvanta
