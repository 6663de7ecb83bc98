// The About box: opened over the deck, in the deck's colours; its licences lead to their texts.
#pragma once

#include "faceplate/window_grip.h"
#include "platform/forms/form.h"
#include "shell/ports.h"

namespace orvanta {

class ShellUpward;
struct AboutBox;
struct CDForm;
struct Settings;

class About : public forms::FormEvents {
 public:
  About(const ShellPorts& ports, AboutBox& form, const CDForm& faceplate, const Settings& settings, ShellUpward& upward);

  void show();

  void load() override;
  void mouseDown(forms::Control* control, const forms::Mouse& mouse) override;
  void mouseMove(forms::Control* control, const forms::Mouse& mouse) override;
  void mouseUp(forms::Control* control, const forms::Mouse& mouse) override;
  void click(forms::Control& control) override;
  bool keyDown(const forms::KeyPress& key) override;
  void closeAsked() override;

 private:
  void place();
  void colour();
  void tellFacts();
  std::string fitted(const std::string& text, const forms::Label& label) const;

  ShellPorts ports_;
  AboutBox& form_;
  const CDForm& faceplate_;
  const Settings& settings_;
  ShellUpward& upward_;
  WindowGrip grip_;
};

}  // namespace orvanta
