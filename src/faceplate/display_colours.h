// Colours of the faceplate's display and grid.
#pragma once

#include <string>
#include <vector>

#include "faceplate/ports.h"
#include "playback/display.h"
#include "playback/key_looks.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class CdDevice;
class DiscTray;
class Files;
class Layout;
class Screen;

/// The display's font is there, and wanted.
bool lcdFont(const Screen& screen, const Settings& settings);
/// The user has colours for the metal, on a screen that can show them: one of few keeps its plain dark panels.
bool metalOfUser(const SharedState& state);
/// A pane of the display in the user's colours.
void tintGlass(forms::Panel& pane, const Settings& settings);
/// The lit channels of the sliders: red while muted.
void paintLevelBars(CDForm& form, const Settings& settings);

/// Family, size and style as the user has chosen them; "" and 0 leave the label's own.
void chooseFont(forms::Label& label, const FontGroup& group);
/// A legend has the colour of its design, and black on a ground that this one cannot be read on.
void paintLegend(forms::Control& label, Colour ground);
/// The user's own picture behind a window; "" for none, and for a file that is no picture.
std::string backgroundPicture(const Files& files, const Screen& screen, const Settings& settings);

class DisplayColours {
 public:
  DisplayColours(const FaceplatePorts& ports, Display& display, KeyLooks& looks, Layout& layout, CDForm& form, SharedState& state)
      : files_(ports.files),
        screen_(ports.screen),
        tray_(ports.tray),
        device_(ports.device),
        display_(display),
        looks_(looks),
        layout_(layout),
        form_(form),
        state_(state) {}

  /// Fonts, all display colours and the background picture, at the faceplate's load and after a visit to
  /// the setup program.
  void loadorvanta1();
  /// The user's own colours, at each activation.
  void loadorvanta1b();
  /// The track grid, once the track count is known.
  void loadorvanta1a();
  /// The look without an audio disc in the drive, with its prompt.
  void disabledLook();
  /// How a disc gets in, or that there is no drive.
  void prompt();

 private:
  /// A label's own font and place, before the settings have their say.
  struct Own {
    forms::Label* label;
    forms::Font font;
    int left, top, width, height;
  };
  void ownFonts();
  void fonts();
  void legendFonts();
  void panes();
  void titleFonts();
  void background();
  void legends();
  void pictures();

  Files& files_;
  Screen& screen_;
  DiscTray& tray_;
  CdDevice& device_;
  Display& display_;
  KeyLooks& looks_;
  Layout& layout_;
  CDForm& form_;
  SharedState& state_;
  std::vector<Own> own_;
};

}  // namespace orvanta
