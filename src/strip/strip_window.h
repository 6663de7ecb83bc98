// How the strip comes and goes: the faceplate makes room, a task button stays, and one of several ways leads back.
#pragma once

#include "platform/forms/form.h"
#include "playback/engine.h"
#include "strip/ports.h"
#include "strip/strip_colours.h"
#include "strip/strip_layout.h"
#include "strip/strip_mirror.h"
#include "strip/strip_place.h"
#include "strip/strip_sliders.h"
#include "strip/upward.h"
#include "windows/iconmin.h"

namespace orvanta {

struct StripForms {
  VolCntl& strip;
  ICONmin& icon;
};

/// What lays the strip out and keeps it up to date.
struct StripParts {
  StripLayout& layout;
  StripColours& colours;
  StripSliders& sliders;
  StripMirror& mirror;
  StripPlace& place;
};

class StripWindow {
 public:
  StripWindow(const StripPorts& ports, const StripParts& parts, const Engine& engine, const StripForms& forms, CDForm& faceplate,
              SharedState& state, StripUpward& upward)
      : desktop_(ports.desktop),
        on_(parts),
        engine_(engine),
        form_(forms.strip),
        icon_(forms.icon),
        faceplate_(faceplate),
        state_(state),
        upward_(upward) {}

  /// Hides the faceplate. While a disc plays or pauses the strip stands in for it, or the tray where that is wanted;
  /// else there is the task button alone. From a strip that is out already to the tray, if that is wanted now.
  void minfp1();
  /// The faceplate comes back, whatever stands in for it.
  void restore();
  /// The faceplate is hidden.
  bool out() const { return icon_.loaded(); }

  /// To the tray at once where the user wants it there, else to its place.
  void vcposn();
  /// Into the tray, if it takes the strip.
  void Image13_MouseUp();
  /// Out of the tray to its place. A strip that has gone meanwhile leaves the faceplate to come.
  void showFromTray();

  void fold();
  void unfold();

  /// The settings have changed.
  void takeUp();

  // Of the form.
  void load();
  void unload();

 private:
  /// The level as the device has it, and as it was before a mute.
  struct Level {
    int32_t saveLeftRaw = 0;
    int32_t saveRightRaw = 0;
    int32_t saveMuteLeft = 0;
    int32_t saveMuteRight = 0;
  };
  void showStrip();
  void lookAnew();
  void keepLevel();
  void putLevelBack();

  forms::Desktop& desktop_;
  StripParts on_;
  const Engine& engine_;
  VolCntl& form_;
  ICONmin& icon_;
  CDForm& faceplate_;
  SharedState& state_;
  StripUpward& upward_;
  Level level_;
  bool onScreen_ = false;  ///< the strip is, and no icon stands for it
  bool changing_ = false;  ///< windows come and go: what they tell of themselves asks for nothing
};

}  // namespace orvanta
