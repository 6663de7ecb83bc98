// What the shell asks of the layers above it.
#pragma once

namespace orvanta {

class ShellUpward {
 public:
  virtual ~ShellUpward() = default;
  virtual void showAbout() = 0;
  /// What can be kept is kept, and the process ends.
  virtual void endAtOnce() = 0;
};

}  // namespace orvanta
