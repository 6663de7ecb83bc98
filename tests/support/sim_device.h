// A CD drive that plays on the virtual clock, and the device over it, which writes down every command.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/disc/mci_device.h"
#include "tests/support/virtual_clock.h"

namespace orvanta::test {

/// A table of contents of audio tracks that start at `starts`; negative starts are data tracks.
inline Toc tocOf(const std::vector<int>& starts, int leadOut) {
  Toc toc;
  for (const int start : starts) toc.tracks.push_back({toc.count() + 1, std::abs(start), start < 0});
  toc.leadOut = leadOut;
  return toc;
}

class SimPlayer : public DiscPlayer {
 public:
  explicit SimPlayer(VirtualClock& clock) : clock_(clock) {}

  void insert(const Toc& toc, const std::string& entry = "Track01.cda") {
    disc = toc;
    name = entry;
    place_ = toc.count() > 0 ? toc.startOf(1) : kFirstFrame;
    state_ = PlayState::Stopped;
  }

  Holder holder() const override { return held; }
  Toc toc() const override { return disc; }
  std::string firstEntry() const override { return name; }
  SheetTexts texts() const override { return disc.tracks.empty() ? SheetTexts{} : told; }
  bool soundless() const override { return quiet; }
  std::string missingDrive() const override { return absent; }
  PlayState state() const override {
    settle();
    return state_;
  }
  int frame() const override {
    settle();
    return state_ == PlayState::Playing ? past(place_, clock_.milliseconds() - since_) : place_;
  }
  bool takeFailure() override { return std::exchange(failure, false); }
  void play(int from, int to) override {
    place_ = from;
    to_ = to;
    since_ = clock_.milliseconds();
    state_ = PlayState::Playing;
  }
  void pause() override { halt(PlayState::Paused); }
  void resume() override { play(place_, to_); }
  void stop() override { halt(PlayState::Stopped); }
  void seek(int frame) override {
    place_ = frame;
    state_ = PlayState::Stopped;
  }
  void eject() override {
    if (!stuck) insert({}, "");
    ++ejected;
  }
  void offer(const std::string& imagePath) override {
    const bool known = images.count(imagePath) == 1;
    answer = {known ? TrayOffer::Answer::Accepted : TrayOffer::Answer::Refused, known ? "" : imagePath + " is no disc."};
    if (known) next = images[imagePath];
  }
  TrayOffer takeAnswer() override { return std::exchange(answer, TrayOffer{}); }
  void closeTray() override {
    ++closed;
    if (next.count() > 0) insert(next);
  }

  Toc disc;
  std::string name;
  bool quiet = false;
  std::string absent;
  SheetTexts told;  ///< by the disc that is in
  Holder held = Holder::Us;
  bool failure = false;
  int ejected = 0;
  int closed = 0;
  bool stuck = false;  ///< the tray does not open
  std::map<std::string, Toc> images;
  TrayOffer answer;
  Toc next;

 private:
  void halt(PlayState state) {
    place_ = frame();
    state_ = state;
  }

  /// Where sound from `from` has come to; data tracks are passed over.
  int past(int from, int64_t milliseconds) const {
    int frame = from + static_cast<int>(milliseconds * kFramesPerSecond / 1000);
    for (const TocTrack& track : disc.tracks) {
      if (track.data && track.start >= from && frame >= track.start) frame += disc.endOf(track.number) - track.start;
    }
    return frame;
  }

  void settle() const {
    const int end = std::min(to_, lastSound());
    if (state_ != PlayState::Playing || past(place_, clock_.milliseconds() - since_) < end) return;
    place_ = end;
    state_ = PlayState::Stopped;
  }

  int lastSound() const {
    int end = disc.leadOut;
    for (int number = disc.count(); number > 0 && disc.isData(number); --number) end = disc.startOf(number);
    return end;
  }

  VirtualClock& clock_;
  mutable PlayState state_ = PlayState::Stopped;
  mutable int place_ = kFirstFrame;
  int to_ = 0;
  int64_t since_ = 0;
};

class SimDevice : public MciDevice {
 public:
  using MciDevice::MciDevice;
  void command(std::string_view word) override {
    tape.emplace_back(word);
    MciDevice::command(word);
  }
  void setFrom(uint32_t tmsf) override {
    tape.push_back("From " + std::to_string(tmsf));
    MciDevice::setFrom(tmsf);
  }
  std::vector<std::string> tape;
};

}  // namespace orvanta::test
