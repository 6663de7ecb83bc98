// The faceplate's layouts: large or small, normal or expanded display.
#pragma once

#include "faceplate/window_place.h"
#include "playback/key_looks.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class Screen;

class Layout {
 public:
  Layout(Screen& screen, WindowPlace& place, KeyLooks& looks, CDForm& form, SharedState& state)
      : screen_(screen), place_(place), looks_(looks), form_(form), state_(state) {}

  /// At load: the layout that the settings ask for, at its stored place.
  void apply();
  /// To the small faceplate; nothing when it is small.
  void fpsm1();
  /// To the large faceplate; nothing when it is large.
  void fpLG1();
  void setexpdsp();
  void setnormdsp();
  /// The transport keys to their places on the large faceplate.
  void icntlsf();
  /// The two title lines, after a change of their text or of the display's width.
  void layTitles();

  void Image11_Click();
  void Image13_Click();
  /// The display key: expanded or normal.
  void Image20_MouseUp();

  /// The window's size on the large faceplate.
  void sizeLarge();
  /// The border's lines, as the settings and the size have them.
  void border();
  /// The volume panel, or the mixer key in its place, as soundMode has it.
  void placeVolumePanel();

 private:
  enum class Display { Expanded, Normal, Small };
  void placeDisplay(Display display);
  void showLargeParts(bool show);
  void resize(int width, int height);
  bool drawerOpen() const;
  bool coarse() const { return state_.process.smallFonts; }

  Screen& screen_;
  WindowPlace& place_;
  KeyLooks& looks_;
  CDForm& form_;
  SharedState& state_;
};

}  // namespace orvanta
