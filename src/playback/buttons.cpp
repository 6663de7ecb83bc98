// Presses and releases of the faceplate's keys, and the keyboard's that stand for them.
#include "playback/buttons.h"

#include "base/text.h"
#include "playback/upward.h"

namespace orvanta {

namespace {

/// Where the pressed plateau lies on a face, and how far a pressed face goes right and down.
constexpr int kPlateauLeft = 54;
constexpr int kPlateauTop = 70;
constexpr int kHelpTopic = 15;

int pressDepth(const SharedState& state) { return state.process.smallFonts == kOn ? 10 : 12; }

}  // namespace

// ---- transport row

bool Buttons::pressStarts(size_t key) {
  if (asleep()) return false;
  modes_.stopintro();
  engine_.settle();
  if (!looks_.accepts(key)) return false;
  icntla_MouseDown(key);
  return true;
}

void Buttons::pressEnds(size_t key) {
  faceUp(key);
  if (asleep()) return;
  engine_.settle();
  if (looks_.accepts(key)) icntla_MouseUp(key);
}

void Buttons::icntla_MouseDown(size_t key) {
  if (asleep()) return;
  modes_.stopintro();
  // One key gives way at a time: a letter key struck meanwhile leaves the one under the mouse alone.
  if (state_.settings.smallFaceplate == kOn || down_ || !looks_.accepts(key)) return;
  auto& face = form_.icntla[key];
  const int depth = pressDepth(state_);
  face.move(face.left + depth, face.top + depth);
  form_.Shape2.move(face.left + kPlateauLeft, face.top + kPlateauTop);
  form_.Shape2.visible = true;
  down_ = key;
}

/// Whatever has become of the disc since the press, the face comes back.
void Buttons::faceUp(size_t key) {
  if (down_ != key) return;
  const int depth = pressDepth(state_);
  down_.reset();
  form_.Shape2.visible = false;
  form_.icntla[key].move(form_.icntla[key].left - depth, form_.icntla[key].top - depth);
}

void Buttons::icntla_MouseUp(size_t key) {
  faceUp(key);
  if (asleep()) return;
  switch (key) {
    case Previous: engine_.previousKey(); break;
    case Next: engine_.nextKey(); break;
    case Play: engine_.playKey(); break;
    case Pause: engine_.pauseKey(); break;
    case Stop: engine_.stopKey(); break;
    default: upward_.record(); break;
  }
}

// ---- scan row

void Buttons::scntla_MouseDown(size_t key) {
  if (asleep() || (key != ScanBack && key != ScanForward)) return;
  engine_.settle();
  if (state_.transport.playingFlag != kOn || !looks_.acceptsScan()) return;
  looks_.lightScan(key, true);
  state_.transport.scanCount = static_cast<int16_t>(key == ScanForward ? 1 : -1);
}

void Buttons::scntla_MouseUp(size_t key) {
  // A scan ends with its key, whatever has become of the disc meanwhile.
  if (key == ScanBack || key == ScanForward) engine_.endScan();
  if (asleep()) return;
  if (key == TimeKey) timeMode();
  if (key == AbKey) modes_.abKey();
}

void Buttons::timeMode() {
  if (state_.transport.pausedFlag == kOn) return;
  state_.display.lastShownTrack = state_.display.lastShownSec = 0;
  int16_t& mode = state_.settings.timeMode;
  mode = static_cast<int16_t>(mode < Time || mode >= TotRem ? Time : mode + 1);
  display_.showTimeModeLabel();
  if (state_.transport.playingFlag == kOn && display_.number() > 0) {
    engine_.showPlace();
  } else {
    display_.restTime();
  }
  looks_.timeLegend();
}

void Buttons::Label9_Click() {
  if (!asleep()) timeMode();
}

void Buttons::CDStatusBar_Click(int x) {
  engine_.settle();
  engine_.CDStatusBar_Click(x);
}

// ---- number and small keys

void Buttons::Image17_MouseUp(size_t key) {
  if (asleep() || form_.Label34[key].foreColor == colours::kGrey) return;
  jumpTo(static_cast<int>(key) + 1);
}

void Buttons::jumpTo(int track) {
  modes_.stopintro();
  engine_.settle();
  state_.transport.selTrack = static_cast<int16_t>(track - 1);
  engine_.clrab();
  engine_.jump();
}

void Buttons::Image16_MouseUp(size_t key) {
  switch (key) {
    case Above20:
      if (asleep() || form_.Label44.foreColor == colours::kGrey) return;
      form_.Image16[Above20].visible = form_.Label44.visible = false;
      form_.Text1.caption = "";
      form_.Text1.visible = true;
      form_.setFocus(form_.Text1);
      break;
    case Shuffle: modes_.shuffle(); break;
    case Repeat: modes_.repeatKey(); break;
    case Rip: pressed(Record); break;
    default:
      if (form_.Image16[Info].enabled) upward_.showTrackList();
      break;
  }
}

void Buttons::closeEntry() {
  form_.Text1.visible = false;
  form_.Text1.caption = "";
  form_.Image16[Above20].visible = form_.Label44.visible = true;
}

/// While the entry for a track above 20 is open, it takes the keys.
bool Buttons::entryKey(const forms::KeyPress& key) {
  const std::string text = form_.Text1.caption;
  if (key.code >= '0' && key.code <= '9' && text.size() < 2) {
    form_.Text1.caption = text + static_cast<char>(key.code);
  } else if (key.code == forms::key::kBackspace) {
    form_.Text1.caption = text.substr(0, text.empty() ? 0 : text.size() - 1);
  } else if (key.code == forms::key::kEscape) {
    closeEntry();
  } else if (key.code == forms::key::kEnter) {
    const int track = static_cast<int>(leadingNumber(text));
    closeEntry();
    if (asleep() || track < 21 || track > state_.disc.trackCount) return true;
    jumpTo(track);
    if (state_.settings.repeatOn == kOff) display_.lamps(20, kLcdDim);
  }
  return true;
}

// ---- keyboard

void Buttons::pressed(size_t key) {
  if (pressStarts(key)) pressEnds(key);
}

bool Buttons::keyDown(const forms::KeyPress& key) {
  if (key.control || key.alt) return false;
  if (form_.Text1.visible) return entryKey(key);
  return transportKey(key.code) || otherKey(key.code);
}

bool Buttons::transportKey(int code) {
  static constexpr std::string_view kKeys = "ASDFGH";
  static constexpr TransportKey kStandFor[] = {Previous, Next, Play, Pause, Stop, Record};
  const auto at = code > 0 && code < 128 ? kKeys.find(static_cast<char>(code)) : std::string_view::npos;
  if (at == std::string_view::npos) return false;
  pressed(kStandFor[at]);
  return true;
}

bool Buttons::otherKey(int code) {
  using namespace forms::key;  // NOLINT(google-build-using-namespace): the table below reads as one
  switch (code) {
    case kEscape: upward_.exitProgram(); break;
    case kF1:
    case kHelp: upward_.showHelp(kHelpTopic); break;
    case kF1 + 1: upward_.showMenu(); break;
    case kF1 + 3: upward_.muteKey(); break;
    case kF1 + 4: upward_.volumeKey(true); break;
    case kF1 + 5: upward_.volumeKey(false); break;
    case kF1 + 6: upward_.showPlaylist(); break;
    case 'J': engine_.mmcontrol1_EjectClick(); break;
    case 'L': upward_.showCdData(); break;
    case 'M': upward_.runMixer(); break;
    case 'N': upward_.launchEnhancedDisc(); break;
    case 'R': modes_.repeatKey(); break;
    case 'E': modes_.shuffle(); break;
    case 'T': scntla_MouseUp(TimeKey); break;
    case 'W': scntla_MouseUp(AbKey); break;
    case 'Y': modes_.nextMode(); break;
    case 'I': Image16_MouseUp(Info); break;
    default: return false;
  }
  return true;
}

}  // namespace orvanta
