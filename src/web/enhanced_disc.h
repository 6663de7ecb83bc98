// The program that an enhanced disc brings: found by its rules, and started only when the user has said yes to its name.
#pragma once

#include <string>

#include "state/shared_state.h"
#include "web/ports.h"
#include "windows/cdform.h"

namespace orvanta {

class Actions;

class EnhancedDisc {
 public:
  EnhancedDisc(const WebPorts& ports, Actions& actions, const CDForm& form, const SharedState& state)
      : ports_(ports), actions_(actions), form_(form), state_(state) {}

  void launchEnhancedCd();

 private:
  enum class Start { Started, Unwanted, Impossible };

  std::string startFile() const;
  std::string ofAutorun() const;
  std::string onlyProgram() const;
  bool discStays() const;
  /// Asks, naming the file.
  Start start(const std::string& way);
  /// Once for each copy of the disc.
  void tellUnread();
  void askForAnother(const std::string& failed);
  void giveWay();

  WebPorts ports_;
  Actions& actions_;
  const CDForm& form_;
  const SharedState& state_;
  std::string disc_;   ///< that it is about
  bool busy_ = false;  ///< one of its boxes stands
};

/// What the first line "open=" of an autorun.inf names, by its way from the root; "" for nothing, and for a way that leaves it.
std::string autorunFile(const std::string& text);

}  // namespace orvanta
