// The table of looks, and how a row and a glow come onto the faceplate.
#include "playback/key_looks.h"

#include <algorithm>
#include <array>

#include "platform/ports/clock.h"

namespace orvanta {

namespace {

constexpr int kGlow = 300;  ///< milliseconds
constexpr int kNumberKeys = 20;

constexpr uint8_t keys(std::initializer_list<TransportKey> list) {
  unsigned bits = 0;
  for (const TransportKey key : list) bits |= 1U << key;
  return static_cast<uint8_t>(bits);
}

enum Legend : uint16_t {
  kAb = 1,
  kTime = 2,
  kShuffle = 4,
  kRepeat = 8,
  kRecord = 16,
  kInfo = 32,
  kData = 64,
  kPlaylist = 128,
  kInternet = 256,
  kAbove20 = 512,
};
constexpr uint16_t kDoorGrey = kAb | kTime | kShuffle | kRepeat | kRecord | kInfo | kData | kPlaylist | kInternet;

// Rows in the order of DeckState.
constexpr Look kLooks[] = {
    {keys({Previous, Next, Pause, Stop}), 0, true, 0, 0},
    {0, keys({Play}), false, 0, kAb | kTime | kShuffle | kRepeat},
    {keys({Previous, Next, Stop}), keys({Pause}), true, kAb | kTime | kRepeat, 0},
    {keys({Next, Play, Pause, Stop}), 0, true, kDoorGrey, 0},
    {keys({Previous, Next, Play, Pause, Stop, Record}), 0, true, kDoorGrey | kAbove20, 0},
    {keys({Previous, Next, Play, Pause, Stop, Record}), 0, true, 0, 0},
};

const Look& lookOf(DeckState state) { return kLooks[static_cast<size_t>(state)]; }

bool has(unsigned bits, size_t key) { return (bits >> key & 1U) != 0; }

}  // namespace

KeyLooks::KeyLooks(Clock& clock, CDForm& form, const Settings& settings)
    : form_(form), settings_(settings), glowEnd_(clock.makeTimer([this] {
        glowEnd_->setInterval(0);
        glow_.reset();
        paint();
      })) {}

KeyLooks::~KeyLooks() = default;

void KeyLooks::reset() {
  state_ = DeckState::Stopped;
  show(state_);
}

void KeyLooks::arrange() {
  if (settings_.smallFaceplate == kOn) darkenScan();
  paint();
}

void KeyLooks::show(DeckState state) {
  glow_.reset();
  glowEnd_->setInterval(0);
  enter(state);
}

void KeyLooks::follow(DeckState state) {
  if (state != state_) enter(state);
}

void KeyLooks::enter(DeckState state) {
  // What a pause has taken away comes back with whatever follows it.
  if (state_ == DeckState::Paused && state != state_) colour(lookOf(state_).grey, colours::kBlack);
  state_ = state;
  colour(lookOf(state).grey, colours::kGrey);
  colour(lookOf(state).black, colours::kBlack);
  if (state == DeckState::DoorOpen || state == DeckState::NoDisc) {
    for (auto& number : form_.Label34) number.foreColor = colours::kGrey;
    darkenScan();
  }
  paint();
}

void KeyLooks::flash(TransportKey key) {
  glow_ = key;
  glowEnd_->setInterval(0);
  glowEnd_->setInterval(kGlow);
  paint();
}

bool KeyLooks::accepts(size_t key) const {
  const Look& look = lookOf(state_);
  return !has(look.masked | look.lit, key);
}

bool KeyLooks::acceptsScan() const { return !lookOf(state_).scanMasked; }

void KeyLooks::lightScan(size_t key, bool lit) { form_.scntlc[key].visible = lit; }

void KeyLooks::darkenScan() {
  for (auto& symbol : form_.scntlc) symbol.visible = false;
}

void KeyLooks::lightMode(ModeKey mode) {
  for (size_t key = 0; key < 4; ++key) {
    form_.Image3[key].visible = key == mode;
    form_.Image4[key].visible = key != mode;
  }
}

void KeyLooks::darkenIntro() {
  form_.Image4[3].visible = true;
  form_.Image3[3].visible = false;
}

void KeyLooks::greyChance(bool stored) {
  colour(kShuffle | kRepeat, colours::kGrey);
  programStored(stored);
}

void KeyLooks::programStored(bool stored) { colour(kRecord, stored ? colours::kBlack : colours::kGrey); }

void KeyLooks::numbers(int tracks) {
  if (tracks > kNumberKeys) return;
  colour(kAbove20, colours::kGrey);
  for (int key = std::max(tracks, 0); key < kNumberKeys; ++key) form_.Label34[static_cast<size_t>(key)].foreColor = colours::kGrey;
}

void KeyLooks::allowShuffle() { colour(kShuffle, colours::kBlack); }

bool KeyLooks::acceptsShuffle() const { return form_.Label38.foreColor != colours::kGrey; }

bool KeyLooks::acceptsRepeat() const { return form_.Label39.foreColor == colours::kBlack; }

void KeyLooks::timeLegend() { colour(kTime, colours::kBlack); }

void KeyLooks::goingOff() {
  form_.Label28.foreColor = colours::kDarkRed;
  form_.SSPanel3.backColor = colours::kRed;
}

void KeyLooks::abLegend(Colour shade) { colour(kAb, shade); }

void KeyLooks::colour(unsigned which, Colour shade) {
  const std::array<forms::Label*, 10> labels{&form_.Label17, &form_.Label24, &form_.Label38, &form_.Label39, &form_.Label40,
                                             &form_.Label35, &form_.Label19, &form_.Label20, &form_.Label25, &form_.Label44};
  for (size_t i = 0; i < labels.size(); ++i) {
    if (has(which, i)) labels[i]->foreColor = shade;
  }
}

/// A glow stands in place of what is lit, and frees its own key of its mask; play is dark meanwhile.
void KeyLooks::paint() {
  const Look& look = lookOf(state_);
  for (size_t key = Previous; key <= Record; ++key) {
    const bool glows = glow_ == static_cast<TransportKey>(key);
    const bool darkened = glow_ && key == Play && has(look.lit, key);
    form_.icntlc[key].visible = glows || (!glow_ && has(look.lit, key));
    form_.icntlb[key].visible = !glows && (has(look.masked, key) || darkened);
  }
  // The small faceplate has no scan keys that could be masked.
  const bool scanMasked = look.scanMasked && settings_.smallFaceplate != kOn;
  for (const size_t key : {ScanBack, ScanForward}) form_.scntlb[key].visible = scanMasked;
}

}  // namespace orvanta
