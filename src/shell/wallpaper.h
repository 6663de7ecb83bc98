// The wallpaper behind the deck: a colour, or the user's picture.
#pragma once

#include "platform/forms/form.h"
#include "shell/ports.h"
#include "state/shared_state.h"
#include "windows/cdform.h"
#include "windows/form26.h"

namespace orvanta {

class Drawer;

class Wallpaper : public forms::FormEvents {
 public:
  Wallpaper(const ShellPorts& ports, const Drawer& drawer, Form26& form, CDForm& deck, SharedState& state);

  /// Before the deck's window, where the user wants it first.
  void beforeDeck();
  /// Behind the deck that has just been shown.
  void behindDeck();
  /// The menu's switch. It brings pictures alone: a colour that was taken away stays away.
  void wpfp1();
  /// The deck has left the screen; the wallpaper will be there again when it comes back.
  void hideWithDeck();
  void comeBackWithDeck();
  /// It follows what the setup program wrote, where it shows.
  void settingsChanged();

  void load() override;
  void activate() override;
  void mouseDown(forms::Control* control, const forms::Mouse& mouse) override;
  void closeAsked() override;

 private:
  void show();
  void takeAway();
  void fit();
  void tile();

  ShellPorts ports_;
  const Drawer& drawer_;
  Form26& form_;
  CDForm& deck_;
  SharedState& state_;
  bool shown_ = false;
  bool waits_ = false;  ///< for the deck to come back
};

}  // namespace orvanta
