// When the wallpaper stands behind the deck, and how it fills the screen that the deck is on.
#include "shell/wallpaper.h"

#include <array>

#include "faceplate/drawer.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/screen.h"

namespace orvanta {

namespace {

/// Values of wallpaperMode.
enum WallpaperMode : int16_t { kNothing = 0, kDarkBlue = 1, kColour = 2, kTiled = 3, kStretched = 4 };
/// Values of wallpaperOption; all from kFirst up mean the same.
enum WallpaperOption : int16_t { kNever = 0, kWithDeck = 1, kFirst = 3 };

constexpr Colour kDarkBlueColour = 0x400000;

}  // namespace

Wallpaper::Wallpaper(const ShellPorts& ports, const Drawer& drawer, Form26& form, CDForm& deck, SharedState& state)
    : ports_(ports), drawer_(drawer), form_(form), deck_(deck), state_(state) {
  form.setEvents(this);
}

void Wallpaper::beforeDeck() {
  if (state_.settings.wallpaperOption >= kFirst && state_.settings.wallpaperMode != kNothing) show();
}

void Wallpaper::behindDeck() {
  if (state_.settings.wallpaperOption != kWithDeck || state_.settings.wallpaperMode == kNothing) return;
  show();
  deck_.show(ports_.desktop);
}

void Wallpaper::show() {
  form_.unload();
  form_.show(ports_.desktop);
  shown_ = true;
  waits_ = false;
}

void Wallpaper::takeAway() {
  shown_ = false;
  form_.unload();
}

void Wallpaper::wpfp1() {
  if (drawer_.busy()) return;
  const Settings& settings = state_.settings;
  const bool picture = settings.wallpaperMode >= kTiled && !settings.wallpaperFile.empty();
  if (settings.wallpaperOption == kNever) {
    ports_.dialogs.message(BoxStyle::Information, "Orvanta",
                           "Wallpaper option is currently turned off!\n\nAccess the Orvanta Setup section to select wallpaper options.");
  } else if (shown_ || !picture) {
    takeAway();
  } else {
    ports_.screen.setPointer(Pointer::Normal);
    show();
  }
  deck_.show(ports_.desktop);
}

void Wallpaper::hideWithDeck() {
  waits_ = shown_;
  if (shown_) form_.hide();
}

void Wallpaper::comeBackWithDeck() {
  if (shown_ && state_.settings.wallpaperOption != kNever) show();
}

void Wallpaper::settingsChanged() {
  if (!shown_) return;
  if (state_.settings.wallpaperOption == kNever || state_.settings.wallpaperMode == kNothing) {
    takeAway();
  } else if (!waits_) {
    show();
    deck_.show(ports_.desktop);
  }
}

void Wallpaper::load() {
  fit();
  for (forms::Image* tile : form_.tiles()) tile->visible = false;
  switch (state_.settings.wallpaperMode) {
    case kDarkBlue: form_.backColor = state_.settings.wallpaperColor = kDarkBlueColour; break;
    case kColour: form_.backColor = state_.settings.wallpaperColor; break;
    case kTiled: tile(); break;
    case kStretched:
      form_.Image1.picture = state_.settings.wallpaperFile;
      form_.Image1.visible = true;
      break;
    default: break;
  }
}

/// Over what panels and docks leave of the deck's screen.
void Wallpaper::fit() {
  const WorkArea area = ports_.screen.workAreaOf({deck_.left, deck_.top, deck_.left + deck_.width, deck_.top + deck_.height});
  form_.left = area.twips.left;
  form_.top = area.twips.top;
  form_.width = form_.Image1.width = area.width();
  form_.height = form_.Image1.height = area.height();
}

/// As many tiles as it takes, three by three at most: a picture of less than a third of the screen leaves a rim.
void Wallpaper::tile() {
  constexpr int kRows = 3;
  const std::string& file = state_.settings.wallpaperFile;
  const PictureSize size = ports_.screen.pictureSize(file);
  if (size.width <= 0 || size.height <= 0) return;
  const auto tiles = form_.tiles();
  for (int i = 0; i < static_cast<int>(tiles.size()); ++i) {
    forms::Image& tile = *tiles[static_cast<size_t>(i)];
    tile.move(i / kRows * size.width, i % kRows * size.height);
    tile.width = size.width;
    tile.height = size.height;
    tile.visible = tile.left < form_.width && tile.top < form_.height;
    tile.picture = tile.visible ? file : std::string();
  }
}

void Wallpaper::activate() {
  if (state_.settings.wallpaperOption >= kFirst && deck_.loaded() && !deck_.minimised) deck_.show(ports_.desktop);
}

/// Its window takes no focus, so that a click does not activate it; the deck comes to the front all the same.
void Wallpaper::mouseDown(forms::Control* /*control*/, const forms::Mouse& /*mouse*/) { activate(); }

void Wallpaper::closeAsked() { takeAway(); }

}  // namespace orvanta
