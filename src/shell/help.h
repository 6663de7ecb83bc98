// Help by topic: the family's help program, or a text in the desktop's editor where there is none.
#pragma once

#include <string>

#include "launch/known_applications.h"
#include "shell/ports.h"
#include "state/shared_state.h"

namespace orvanta {

class Help {
 public:
  Help(const ShellPorts& ports, const SharedState& state) : ports_(ports), known_(ports.dialogs, ports.processes), state_(state) {}

  /// A topic without a text of its own opens nothing while there is no help program.
  void show(int topic);

 private:
  bool showByCompanion(int topic);
  void showText(const std::string& path);
  std::string pathOf(const std::string& name) const;

  ShellPorts ports_;
  KnownApplications known_;
  const SharedState& state_;
};

}  // namespace orvanta
