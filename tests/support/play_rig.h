// The core with a disc in, and what playback tests look at: who plays, which keys are lit, what stands on the display.
#pragma once

#include <functional>
#include <sstream>

#include "tests/support/core_rig.h"

namespace orvanta::test {

inline Toc tracksOf(int count, int seconds) {
  std::vector<int> starts;
  for (int i = 0; i < count; ++i) starts.push_back(150 + i * seconds * 75);
  return tocOf(starts, 150 + count * seconds * 75);
}

/// The lines of a form's text that differ, of controls that can be seen.
inline std::string changedLines(const std::string& before, const std::string& after) {
  std::istringstream old(before);
  std::istringstream now(after);
  std::string text;
  for (std::string was, is; std::getline(old, was) && std::getline(now, is);) {
    const auto hidden = [](const std::string& line) { return line.find(" hidden") != std::string::npos; };
    if (was != is && !(hidden(was) && hidden(is))) text += was + " -> " + is + "\n";
  }
  return text;
}

struct PlayRig : CoreRig {
  explicit PlayRig(const Toc& toc = discB(), bool repeat = false, const std::function<void(PlayRig&)>& prepare = {}) {
    settings.repeatOn = repeat ? kOn : kOff;
    if (prepare) prepare(*this);
    startWith(toc);
    clock.advance(50);  // so that status events fall between the ticks
    for (size_t i = 1; i <= 100; ++i) state.disc.trackTitles[i] = "Title " + std::to_string(i);
    clock.onDelay = [this] { ++waits; };
    device.tape.clear();
  }
  /// Moves on to `second` of play, counted from begin().
  void at(double second) { clock.advance(begun + static_cast<int64_t>(second * 1000) + 10 - clock.milliseconds()); }
  void begin() { begun = clock.milliseconds(); }
  void keys(std::string_view codes) {
    for (const char code : codes) key(code);
  }
  void play() {
    begin();
    key('D');
  }
  void program(std::vector<int16_t> tracks) {
    press(form.Image4[PgmKey]);
    std::copy(tracks.begin(), tracks.end(), state.program.pgmList.begin() + 1);
    state.program.pgmCount = static_cast<int16_t>(tracks.size());
    begin();
    press(form.icntla[Play]);
  }
  void mode(size_t key) { press(form.Image4[key]); }
  void hold(forms::Control& control) {
    gate.enter([&] { form.mouseDown(&control, {}); });
  }
  void letGo(int x = 0, int y = 0) {
    gate.enter([&] { form.mouseUp({forms::MouseButton::Left, x, y}); });
  }
  /// On the bar, at a part of its width.
  void clickBar(double part) {
    const int x = static_cast<int>(form.CDStatusBar.width * part) + kBarMargin;
    gate.enter([&] { form.mouseDown(&form.CDStatusBar, {forms::MouseButton::Left, x, 5}); });
    letGo(x, 5);
  }
  int heardTrack() const { return unpackTmsf(device.position()).track; }
  int heardSecond() const { return framesOf(unpackTmsf(device.position()).time) / 75; }
  /// "playing 2 at 7".
  std::string heard() const {
    const char* mode = device.mode() == DeviceMode::Playing ? "playing" : device.mode() == DeviceMode::Paused ? "paused" : "stopped";
    return std::string(mode) + " " + std::to_string(heardTrack()) + " at " + std::to_string(heardSecond());
  }
  /// Number, length and title.
  std::string shown() const { return track() + " " + form.Label43.caption.get() + " " + form.Label13.caption.get(); }
  /// Lit transport keys, masked ones, "scan" for masked scan keys, grey legends; keys by their letters.
  std::string look() const {
    const auto letters = [](const auto& array) {
      std::string text;
      for (size_t key = Previous; key <= Record; ++key) text += array[key].visible ? std::string(1, "ASDFGH"[key]) : "";
      return text;
    };
    std::string text =
        letters(form.icntlc) + "/" + letters(form.icntlb) + (form.scntlb[0].visible && form.scntlb[3].visible ? " scan" : "");
    for (const auto* label : {&form.Label17, &form.Label24, &form.Label38, &form.Label39}) {
      if (label->foreColor == colours::kGrey) text += " " + label->caption.get();
    }
    return text;
  }
  /// The mode that the lit keys tell of.
  DeviceMode litFor() const {
    const std::string keys = look();
    return keys[0] == 'D' ? DeviceMode::Playing : keys[0] == 'F' ? DeviceMode::Paused : DeviceMode::Stopped;
  }
  int64_t begun = 0;
  int waits = 0;  ///< for which the window stood still
};

}  // namespace orvanta::test
