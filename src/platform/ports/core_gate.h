// The door through which every adapter calls the core, and the one way to end the process.
#pragma once

#include <functional>
#include <utility>

namespace orvanta {

/// Thrown by end(): the core's only exception. It unwinds the handler that is running and is
/// caught by the gate that let the call in, never by a toolkit.
struct ProcessEnded {};

class CoreGate {
 public:
  /// Runs `call` unless the process has ended. After the call that ends it, `onEnd` runs once.
  template <class Call>
  void enter(Call&& call) {
    if (ended_) return;
    try {
      std::forward<Call>(call)();
    } catch (const ProcessEnded&) {
      // It comes here once for each call on the way out: a dialog's handler, then the handler that opened the dialog.
      if (!std::exchange(ended_, true) && onEnd_) onEnd_();
    }
  }

  bool ended() const { return ended_; }

  /// For an adapter that returns into the core from a nested loop (a dialog) in which the process
  /// may have ended: does not return then.
  void leaveIfEnded() const {
    if (ended_) throw ProcessEnded{};
  }

  void setOnEnd(std::function<void()> onEnd) { onEnd_ = std::move(onEnd); }

 private:
  std::function<void()> onEnd_;
  bool ended_ = false;
};

/// Ends the process from anywhere in the core. Nothing is delivered afterwards.
[[noreturn]] inline void end() { throw ProcessEnded{}; }

}  // namespace orvanta
