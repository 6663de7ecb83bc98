// The icon's menu as a table, and what each of its items does.
#include "shell/tray_control.h"

#include <algorithm>
#include <utility>

#include "base/meanwhile.h"
#include "base/text.h"
#include "platform/ports/dialogs.h"
#include "shell/help.h"
#include "shell/upward.h"

namespace orvanta {

namespace {

constexpr int kPictures = 3;
constexpr size_t kTipLength = 64;  // characters; some trays cut there
constexpr int kTrayTopic = 21;
constexpr const char* kNothingIn = "Control Popup / Orvanta ";
constexpr const char* kPlayItem = "playtrk";
constexpr const char* kPauseItem = "pausetrk";
constexpr const char* kToFaceplate = "Display Orvanta Faceplate";

/// "Artist - Title - Track", of what is known.
std::string tipOf(const DeckStatus& status) {
  const bool moves = status.state == DeckState::Playing || status.state == DeckState::Paused;
  std::string track = status.trackTitle;
  if (track.empty() && moves && status.track > 0) track = "Track " + std::to_string(status.track);
  std::string tip;
  for (const std::string& part : {status.artist, status.title, track}) {
    if (!part.empty()) tip += (tip.empty() ? "" : " - ") + part;
  }
  return tip.empty() ? kNothingIn : std::string(firstCharacters(tip, kTipLength));
}

}  // namespace

struct TrayControl::Row {
  const char* name;
  const char* caption;
  void (TrayControl::*run)() = nullptr;
};

/// A row without a caption parts what stands above it from what stands below.
std::span<const TrayControl::Row> TrayControl::rows() {
  using T = TrayControl;
  static constexpr Row kRows[] = {
      {"mnuTrayLight(0)", "Display Orvanta Popup Controls", &T::light<0>},
      {"mnuTrayLight(1)", "Mute Sound", &T::light<1>},
      {"mnuTrayLight(2)", "Restore Sound", &T::light<2>},
      {"mnuTraySep1", ""},
      {"prevtrk", "Previous Track", &T::key<Previous>},
      {"nxttrk", "Next Track", &T::key<Next>},
      {kPlayItem, "Play", &T::key<Play>},
      {kPauseItem, "Pause", &T::key<Pause>},
      {"stoptrk", "Stop", &T::key<Stop>},
      {"ejectcdz", "Eject", &T::eject},
      {"sep004", ""},
      {"mnuTraySourceCode", "Orvanta &Help", &T::help},
      {"mnuTrayAbout", "A&bout Orvanta", &T::about},
      {"mnuTraySep2", ""},
      {"elimCntls", "Remove From Systray", &T::unload},
      {"sep002", ""},
      {"exitorvlxz", "Exit Orvanta", &T::exit},
  };
  return kRows;
}

TrayControl::TrayControl(const ShellPorts& ports, const TrayReach& on, StatusBoard& status, SharedState& state, ShellUpward& upward)
    : ports_(ports), on_(on), status_(status), state_(state), upward_(upward) {
  status.watch([this](const DeckStatus& /*now*/) { follow(); });
}

// ---- the icon

TrayIcon TrayControl::icon() const {
  const DeckStatus& now = status_.last();
  TrayIcon icon;
  icon.picture = iconState_;
  icon.tip = tipOf(now);
  icon.menu.name = "mnuTray";
  icon.menu.caption = "Orvanta Popup Control Menu";
  for (const Row& row : rows()) {
    MenuItem& item = icon.menu.items.emplace_back();
    item.name = row.name;
    item.caption = row.caption;
    item.isDefault = row.run == &TrayControl::about;
    // The marks tell the state; every item can be chosen.
    item.checked =
        (item.name == kPlayItem && now.state == DeckState::Playing) || (item.name == kPauseItem && now.state == DeckState::Paused);
  }
  if (state_.settings.minToTray == kOn) icon.menu.items.front().caption = kToFaceplate;
  return icon;
}

bool TrayControl::load() {
  if (!trayLoaded_) {
    if (!ports_.tray.available()) return false;
    iconState_ = 0;
    shown_ = icon();
    if (!ports_.tray.add(shown_, *this)) {
      ports_.dialogs.message(BoxStyle::Critical, "Orvanta", "Unable to add icon to system tray!");
      return false;
    }
  }
  sits_ = trayLoaded_ = true;
  return true;
}

void TrayControl::unload() {
  sits_ = false;
  if (std::exchange(trayLoaded_, false) && !ports_.tray.remove()) upward_.endAtOnce();
}

/// Tip and marks change with the deck; a tray that does not take them up keeps the old ones.
void TrayControl::follow() {
  if (!trayLoaded_ || busy_) return;
  TrayIcon now = icon();
  if (now == shown_) return;
  shown_ = std::move(now);
  ports_.tray.change(shown_);
}

void TrayControl::showPicture() {
  if (!trayLoaded_) return;
  shown_ = icon();
  if (!ports_.tray.change(shown_)) ports_.dialogs.message(BoxStyle::Critical, "Orvanta", "Unable to change icon in system tray!");
}

// ---- what the user does with it

/// Whoever is not heard because a box stands gets to see it.
bool TrayControl::passedOver() {
  if (!ports_.dialogs.open()) return busy_;
  ports_.dialogs.raiseOpen();
  return true;
}

void TrayControl::clicked() {
  if (passedOver()) return;
  {
    const Meanwhile busy(busy_, true);
    iconState_ = (iconState_ + 1) % kPictures;
    act(iconState_);
    showPicture();
  }
  follow();
}

void TrayControl::chosen(const std::string& item) {
  if (passedOver()) return;
  const auto all = rows();
  const auto row = std::find_if(all.begin(), all.end(), [&](const Row& each) { return each.name == item; });
  if (row == all.end() || row->run == nullptr) return;
  {
    const Meanwhile busy(busy_, true);
    (this->*row->run)();
  }
  follow();
}

/// A deck that sat in it comes back to the screen.
void TrayControl::gone() {
  trayLoaded_ = false;
  if (std::exchange(sits_, false)) on_.strip.window.showFromTray();
}

/// What the picture stands for: the sound goes, it comes back, the strip comes back.
void TrayControl::act(int picture) {
  if (picture == 1) {
    on_.strip.acts.Image5_MouseUp();
  } else if (picture == 2) {
    on_.strip.acts.Image7_MouseUp();
  } else {
    sits_ = false;
    on_.strip.window.showFromTray();
  }
}

template <int Item>
void TrayControl::light() {
  iconState_ = Item;
  showPicture();
  if (Item != 0) {
    act(Item);
  } else if (state_.settings.minToTray == kOn) {
    on_.strip.window.restore();
  } else {
    state_.display.trayWanted = false;
    act(Item);
    unload();
  }
}

template <size_t Key>
void TrayControl::key() {
  on_.strip.acts.Image1_MouseUp(Key);
}

/// Without a sound: nobody looks at the deck. The faceplate comes back with its drawer open.
void TrayControl::eject() {
  const Meanwhile quiet(state_.settings.soundsOff, kOn);
  on_.strip.acts.eject();
}

void TrayControl::exit() {
  const Meanwhile quiet(state_.settings.soundsOff, kOn);
  on_.strip.acts.Image12_MouseUp();
}

void TrayControl::help() { on_.help.show(kTrayTopic); }

void TrayControl::about() { upward_.showAbout(); }

}  // namespace orvanta
