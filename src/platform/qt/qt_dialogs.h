// Boxes of the desktop's own look.
#pragma once

#include "platform/ports/core_gate.h"
#include "platform/ports/dialogs.h"

class QDialog;

namespace orvanta {

class Screen;

class QtDialogs : public Dialogs {
 public:
  QtDialogs(CoreGate& gate, Screen& screen) : gate_(gate), screen_(screen) {}
  void message(BoxStyle style, const std::string& title, const std::string& text) override;
  bool askYesNo(BoxStyle style, const std::string& title, const std::string& text) override;
  bool confirm(const std::string& title, const std::string& text) override;
  std::optional<std::string> askText(const std::string& title, const std::string& prompt, const std::string& proposed) override;
  std::optional<std::string> askOpenFile(const FileQuestion& question) override;
  std::optional<std::string> askSaveFile(const FileQuestion& question) override;
  bool open() const override { return open_ > 0; }
  void raiseOpen() override;

 private:
  /// Shows the box over the window in use and waits for its end.
  int run(QDialog& box);
  std::optional<std::string> askFile(const FileQuestion& question, bool save);

  CoreGate& gate_;
  Screen& screen_;
  int open_ = 0;
};

}  // namespace orvanta
