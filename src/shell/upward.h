// What the shell asks of the layers above it.
#pragma once

#include <string>

namespace orvanta {

class ShellUpward {
 public:
  virtual ~ShellUpward() = default;
  virtual void showAbout() = 0;
  /// What can be kept is kept, and the process ends.
  virtual void endAtOnce() = 0;
  /// In the browser.
  virtual void showPage(const std::string& address) = 0;
};

}  // namespace orvanta
