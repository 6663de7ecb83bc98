// The display in its own colours or in the user's.
#include "faceplate/display_colours.h"

#include <algorithm>

#include "base/colour.h"
#include "base/log.h"
#include "base/text.h"
#include "faceplate/layout.h"
#include "platform/forms/design.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/disc_tray.h"
#include "platform/ports/files.h"
#include "platform/ports/screen.h"
#include "state/data_folder.h"

namespace orvanta {

namespace {

constexpr Colour kPrintOnGlass = 0x4F4F4F;
constexpr Colour kModelOnPicture = 0xCAC1AC;
constexpr Colour kMetal = 0x332E2B;  ///< the window's own

void ownFore(std::initializer_list<forms::Control*> controls) {
  for (auto* control : controls) control->foreColor = control->form().designRow(*control)->fore;
}

void ownBack(std::initializer_list<forms::Control*> controls) {
  for (auto* control : controls) control->backColor = control->form().designRow(*control)->back;
}

}  // namespace

void paintLegend(forms::Control& label, Colour ground) {
  constexpr double kLegible = 3;
  const Colour own = label.form().designRow(label)->fore;
  label.foreColor = contrast(own, ground) < kLegible ? colours::kBlack : own;
}

void chooseFont(forms::Label& label, const FontGroup& group) {
  forms::Font font = label.font;
  if (!group.fontName.empty()) font.family = group.fontName;
  if (group.fontSize > 0) font.points = group.fontSize;
  font.bold = group.fontBold != 0;
  font.italic = group.fontItalic != 0;
  font.underline = group.fontUnderline != 0;
  label.font = font;
}

std::string backgroundPicture(const Files& files, const Screen& screen, const Settings& settings) {
  const std::string& picture = settings.faceplateBitmap;
  if (settings.faceplateBitmapOn <= 0 || picture.empty() || !files.exists(picture)) return {};
  if (screen.pictureSize(picture).width > 0) return picture;
  logLine("faceplate", picture + " is no picture that can be read");
  return {};
}

bool lcdFont(const Screen& screen, const Settings& settings) { return screen.hasFont(forms::kLcdFont) && settings.noLcdFont != 1; }

bool metalOfUser(const SharedState& state) {
  const auto& colour = state.settings.customColor;
  return state.process.colourCount >= kFewColours &&
         colour[kCustomMetal] + uint64_t{colour[kCustomDoor]} + colour[kCustomKeypad] + colour[kCustomBars] > 0;
}

void tintGlass(forms::Panel& pane, const Settings& settings) {
  pane.bevelInner = 1;
  pane.backColor = settings.lcdBack;
  pane.foreColor = settings.lcdFore;
}

void paintLevelBars(CDForm& form, const Settings& settings) {
  const bool muted = form.Image2[0].visible;
  form.VbarbtmL.backColor = form.VbarbtmR.backColor = muted ? colours::kRed : settings.customColor[kCustomBars];
}

void DisplayColours::loadorvanta1() {
  for (auto& lamp : form_.Shape15) lamp.visible = state_.settings.showLights != 0;
  ownFonts();
  fonts();
  legendFonts();
  panes();
  display_.paint();
  paintLevelBars(form_, state_.settings);
  titleFonts();
  background();
  pictures();
}

/// What an earlier visit to the setup has chosen is taken back first.
void DisplayColours::ownFonts() {
  if (own_.empty()) {
    const auto note = [this](forms::Label& label) {
      own_.push_back({&label, label.font, label.left, label.top, label.width, label.height});
    };
    note(form_.Label8);
    note(form_.Label10);
    note(form_.Label12);
    note(form_.Label13);
    note(form_.Label24);
    note(form_.Label33);
    for (auto& label : form_.Label77) note(label);
    for (auto& label : form_.Label78) note(label);
  }
  for (const Own& own : own_) own.label->font = own.font;
  // The others' places are the layout's.
  for (const Own& own : own_) {
    if (own.label != &form_.Label24 && own.label != &form_.Label33) continue;
    own.label->move(own.left, own.top);
    own.label->width = own.width;
    own.label->height = own.height;
  }
}

/// Without the display's font plain digits serve, and the time key's caption goes a little up.
void DisplayColours::fonts() {
  const bool coarse = state_.process.smallFonts;
  if (lcdFont(screen_, state_.settings)) {
    if (!coarse) return;
    form_.Label24.move(5330, 2320);
    form_.Label33.top = 360;
    return;
  }
  form_.Label8.font = forms::Font{"Arial", 19, true};
  form_.Label33.font = forms::Font{"Arial", 19};
  form_.Label10.font = forms::Font{"Arial", 12, coarse || form_.Label10.font.get().bold};
  form_.Label24.font =
      coarse ? forms::Font{"Arial", 8, true} : forms::Font{"Arial", form_.Label24.font.get().points, form_.Label24.font.get().bold};
  if (coarse) {
    form_.Label24.move(5370, 2280);
  } else {
    form_.Label24.move(5380, 2290);
  }
  form_.Label24.width = 375;
  form_.Label24.height = 195;
}

void DisplayColours::legendFonts() {
  if (screen_.hasFont(form_.Label77[0].font.get().family)) return;
  const auto plain = [](forms::Label& label) {
    forms::Font font = label.font;
    font.family = "Arial";
    label.font = font;
  };
  for (auto& label : form_.Label77) plain(label);
  for (auto& label : form_.Label78) plain(label);
}

/// The user's fonts for the two title lines, when the first is named.
void DisplayColours::titleFonts() {
  if (state_.settings.fonts[kDiscFont].fontName.empty()) return;
  for (size_t i = 0; i < 2; ++i) {
    const FontGroup& group = state_.settings.fonts[i];
    forms::Label& label = i == 0 ? form_.Label12 : form_.Label13;
    chooseFont(label, group);
    if (state_.settings.lcdCustom != 1) display_.paintTitle(i, group.fontColor);
  }
  layout_.layTitles();
}

/// The picture that the user has put behind it all; it takes the window's own colour away.
void DisplayColours::background() {
  Settings& settings = state_.settings;
  layout_.border();
  form_.Image8.picture = backgroundPicture(files_, screen_, settings);
  // It may be another one under the same name.
  form_.Image8.pictureReading = form_.Image8.pictureReading + 1;
  if (form_.Image8.picture.get().empty()) return;
  settings.customColor[kCustomMetal] = 0;
  if (settings.faceplateBorder != 1) form_.Label41.foreColor = kModelOnPicture;
}

/// Pictures in the data folder's "system" take the place of the deck's own drawings, one by one.
void DisplayColours::pictures() {
  if (!state_.process.smallFonts) return;
  const auto load = [this](forms::Image& image, const char* name) {
    const std::string path = DataFolder(files_, state_.settings.appDir).own(name);
    image.picture = files_.exists(path) ? path : std::string();
    return !image.picture.get().empty();
  };
  load(form_.Image5, "apower1.bmp");
  for (auto* pair : {&form_.Image9, &form_.Image19, &form_.Image20}) {
    load((*pair)[0], "acblueds.bmp");
    load((*pair)[1], "acbluels.bmp");
  }
  load(form_.Image2[0], "acredls.bmp");
  load(form_.Image2[1], "acredds.bmp");
  static constexpr const char* kTransport[] = {"zpreva.bmp", "znexta.bmp", "zplaya.bmp", "zpausea.bmp", "zstopa.bmp", "zrecorda.bmp"};
  static constexpr const char* kScan[] = {"afrewa1.bmp", "ambtns1.bmp", "ambtns1.bmp", "affwda1.bmp"};
  // The rows are a set: without its first picture none of it is taken.
  if (!load(form_.icntla[Previous], kTransport[Previous])) return;
  for (size_t key = Next; key <= Record; ++key) load(form_.icntla[key], kTransport[key]);
  for (size_t key = 0; key < 4; ++key) load(form_.scntla[key], kScan[key]);
  form_.Label17.left = 5910;
  form_.Label17.width = 465;
}

void DisplayColours::loadorvanta1b() {
  const auto& colour = state_.settings.customColor;
  const auto paint = [](std::initializer_list<forms::Control*> controls, Colour back) {
    for (auto* control : controls) control->backColor = back;
  };
  if (metalOfUser(state_)) {
    for (auto* line : {&form_.Line2, &form_.Line3, &form_.Line4, &form_.Line5}) line->foreColor = colour[kCustomBorderLines];
    form_.backColor = colour[kCustomMetal];
    paint({&form_.Label1, &form_.Label2, &form_.Label3, &form_.Label4, &form_.Label5}, colour[kCustomMetal]);
    paint({&form_.Panel3D6, &form_.Panel3D7, &form_.Panel3D8}, colour[kCustomDoor]);
    // While it is open the door's place is the hole behind it.
    if (form_.Panel3D2.bevelInner != 1) paint({&form_.Panel3D2}, colour[kCustomDoor]);
    paint({&form_.Panel3D3, &form_.SSPanel1}, colour[kCustomKeypad]);
  } else if (state_.process.colourCount >= kFewColours) {
    form_.backColor = kMetal;
    ownBack({&form_.Label1, &form_.Label2, &form_.Label3, &form_.Label4, &form_.Label5, &form_.Panel3D6, &form_.Panel3D7, &form_.Panel3D8,
             &form_.Panel3D3, &form_.SSPanel1});
    if (form_.Panel3D2.bevelInner != 1) ownBack({&form_.Panel3D2});
  }
  display_.paintUser();
  paintLevelBars(form_, state_.settings);
  legends();
}

void DisplayColours::legends() {
  const bool picture = !form_.Image8.picture.get().empty();
  for (auto* label : {&form_.Label1, &form_.Label2, &form_.Label3, &form_.Label4, &form_.Label5, &form_.Label15, &form_.Label27})
    paintLegend(*label, form_.backColor);
  if (!picture) paintLegend(form_.Label41, form_.backColor);
  for (auto& label : form_.Label78) paintLegend(label, form_.SSPanel1.backColor);
  for (auto& label : form_.Label77) paintLegend(label, form_.Panel3D6.backColor);
}

/// The glass of the display and what is printed on it.
void DisplayColours::panes() {
  const bool custom = state_.settings.lcdCustom == 1;
  for (auto* panel : {&form_.Panel3D1, &form_.Panel3D5}) {
    if (custom) {
      tintGlass(*panel, state_.settings);
    } else {
      panel->bevelInner = 2;
      panel->backColor = colours::kBlack;
    }
  }
  if (!custom) {
    // The user's colours may have been here before.
    ownFore({&form_.Label32, &form_.Label33, &form_.Line1, &form_.Line8, &form_.Line10, &form_.Line11, &form_.Line12});
    return;
  }
  form_.Line12.foreColor = form_.Line10.foreColor = form_.Label32.foreColor = form_.Label33.foreColor = kPrintOnGlass;
  form_.Line11.foreColor = 0x606060;
  form_.Line1.foreColor = form_.Line8.foreColor = state_.settings.lcdBack;
}

void DisplayColours::loadorvanta1a() {
  display_.calendar();
  looks_.numbers(state_.disc.trackCount);
  looks_.programStored(state_.program.pgmStored);
}

void DisplayColours::disabledLook() {
  looks_.show(DeckState::NoDisc);
  form_.Label35.enabled = false;
  form_.Image16[4].enabled = false;
  for (size_t key = 1; key <= 3; ++key) form_.Image10[key].enabled = false;
  prompt();
}

void DisplayColours::prompt() {
  const std::string missing = device_.missingDrive();
  if (!missing.empty()) {
    display_.prompt("There is no drive " + missing, "choose another one in the setup");
    return;
  }
  display_.prompt("Please insert an Audio CD or Enh-CD into the drive...",
                  tray_.takesImages() ? "click the tray or drop a disc image" : "");
}

}  // namespace orvanta
