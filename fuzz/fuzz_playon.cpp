// What anybody says to the player without a window: it is answered in one word or one stretch, and nothing off the disc is played.
#include <cstdlib>

#include "base/text.h"
#include "platform/disc/play_on.h"
#include "platform/disc/play_on_talk.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

class Deaf : public orvanta::DiscPlayer {
 public:
  orvanta::Holder holder() const override { return orvanta::Holder::Us; }
  orvanta::Toc toc() const override { return {{{1, 150, false}}, 5000}; }
  std::string firstEntry() const override { return {}; }
  orvanta::SheetTexts texts() const override { return {}; }
  bool soundless() const override { return false; }
  std::string missingDrive() const override { return {}; }
  orvanta::PlayState state() const override { return state_; }
  int frame() const override { return frame_; }
  bool takeFailure() override { return false; }
  void play(int from, int to) override {
    if (from < 150 || from >= to || to > 5000) std::abort();
    frame_ = from;
    state_ = orvanta::PlayState::Playing;
  }
  void pause() override {}
  void resume() override {}
  void stop() override { state_ = orvanta::PlayState::Stopped; }
  void seek(int /*frame*/) override {}
  void eject() override {}
  void offer(const std::string& /*imagePath*/) override {}
  orvanta::TrayOffer takeAnswer() override { return {}; }
  void closeTray() override {}

 private:
  int frame_ = 150;
  orvanta::PlayState state_ = orvanta::PlayState::Stopped;
};

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Deaf player;
  orvanta::PlayOnTalk talk(player);
  for (const std::string& line : orvanta::splitLines({reinterpret_cast<const char*>(data), size})) {
    const std::string answer = talk.answer(line);
    if (answer != "ok" && answer != "no" && answer != "wait" && !orvanta::stretchOf(answer)) std::abort();
    if (answer.find('\n') != std::string::npos) std::abort();
  }
  return 0;
}
