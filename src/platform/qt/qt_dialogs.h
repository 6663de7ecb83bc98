// Boxes of the desktop's own look.
#pragma once

#include "platform/ports/core_gate.h"
#include "platform/ports/dialogs.h"

namespace orvanta {

class Screen;

class QtDialogs : public Dialogs {
 public:
  QtDialogs(CoreGate& gate, Screen& screen) : gate_(gate), screen_(screen) {}
  void message(BoxStyle style, const std::string& title, const std::string& text) override;
  bool askYesNo(const std::string& title, const std::string& text) override;
  std::optional<std::string> askText(const std::string& title, const std::string& prompt, const std::string& proposed) override;
  std::optional<std::string> askOpenFile(const FileQuestion& question) override;
  std::optional<std::string> askSaveFile(const FileQuestion& question) override;

 private:
  std::optional<std::string> askFile(const FileQuestion& question, bool save);

  CoreGate& gate_;
  Screen& screen_;
};

}  // namespace orvanta
