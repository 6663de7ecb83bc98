// What a CD audio device does, held against the simulated drive and against the real player over
// an image of the same disc.
#include <gtest/gtest.h>

#include <memory>

#include "platform/disc/image_drive.h"
#include "platform/disc/player.h"
#include "tests/support/sim_device.h"
#include "tests/support/stepped_output.h"
#include "tests/support/test_discs.h"

namespace orvanta::test {
namespace {

/// A disc of three tracks, 3 s, 4 s and 5 s, and a data track behind them.
const std::vector<int> kLengths = {225, 300, 375};
constexpr int kDataLength = 20;

class Rig {
 public:
  virtual ~Rig() = default;
  virtual MciDevice& device() = 0;
  virtual void pass(int milliseconds) = 0;
};

class SimRig : public Rig {
 public:
  explicit SimRig(const Toc& toc) { player_.insert(toc); }
  MciDevice& device() override { return device_; }
  void pass(int milliseconds) override { clock_.advance(milliseconds); }

 private:
  CoreGate gate_;
  VirtualClock clock_{gate_};
  SimPlayer player_{clock_};
  SimDevice device_{player_, clock_};
};

class RealRig : public Rig {
 public:
  RealRig() : sheet_(makeEnhancedDisc(folder_, kLengths, "START.EXE")) { player_.waitUntilKnown(5000); }
  MciDevice& device() override { return device_; }
  void pass(int milliseconds) override {
    // An order just given has to reach the sound before time passes over it.
    becomes([&] { return player_.settled(); });
    const size_t pairs = static_cast<size_t>(milliseconds) * kSampleRate / 1000;
    const bool playing = device_.mode() == DeviceMode::Playing;
    if (playing && outputs_.hear(pairs) < pairs) becomes([&] { return device_.mode() == DeviceMode::Stopped; });
    clock_.advance(milliseconds);
  }

 private:
  TempFolder folder_;
  std::string sheet_;
  SteppedOutputs outputs_;
  ImageDrive drive_{folder_.path()};
  Player player_{drive_, outputs_};
  CoreGate gate_;
  VirtualClock clock_{gate_};
  MciDevice device_{player_, clock_};
};

class DeviceFacts : public testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    if (GetParam()) {
      rig_ = std::make_unique<RealRig>();
    } else {
      rig_ = std::make_unique<SimRig>(tocOf({150, 375, 675, -1050}, 1050 + kDataLength));
    }
    command("Open");
  }
  MciDevice& device() { return rig_->device(); }
  int16_t command(const char* word) {
    device().command(word);
    return device().error();
  }
  int16_t play(uint32_t from) {
    device().setFrom(from);
    return command("Play");
  }
  Tmsf position() { return unpackTmsf(device().position()); }
  /// Within a frame of rounding.
  void expectAt(int track, int second) {
    const Tmsf now = position();
    EXPECT_EQ(now.track, track);
    EXPECT_NEAR(framesOf(now.time), second * kFramesPerSecond, 1);
  }
  std::unique_ptr<Rig> rig_;
};

TEST_P(DeviceFacts, TellsTheTableOneFrameShort) {
  EXPECT_EQ(device().tracks(), 4);
  device().setTrack(1);
  EXPECT_EQ(unpackMsf(device().trackLength()), (Msf{0, 3, 0}));
  device().setTrack(4);
  EXPECT_EQ(unpackMsf(device().trackLength()), msfOfFrames(kDataLength - 1));
  device().setTrack(5);
  EXPECT_EQ(device().trackLength(), 0U);
  EXPECT_EQ(unpackMsf(device().length()), msfOfFrames(900 + kDataLength - 1));
  device().sendString("set cdaudio time format milliseconds");
  EXPECT_EQ(device().sendString("status cdaudio position"), "2001");
  play(2);
  rig_->pass(1000);
  EXPECT_EQ(device().sendString("status cdaudio position track 1"), "2001") << "whatever plays";
}

TEST_P(DeviceFacts, FromAndToServeOnce) {
  device().setTo(3);
  EXPECT_EQ(play(2), device_error::kNone);
  EXPECT_EQ(device().mode(), DeviceMode::Playing);
  EXPECT_EQ(position(), (Tmsf{2, {}}));
  rig_->pass(1000);
  expectAt(2, 1);
  rig_->pass(3100);
  EXPECT_EQ(device().mode(), DeviceMode::Stopped);
  EXPECT_EQ(position(), (Tmsf{3, {}}));
  EXPECT_EQ(command("Play"), device_error::kNone);
  rig_->pass(2000);
  expectAt(3, 2);
}

TEST_P(DeviceFacts, PlaysThroughTracksAndStopsBeforeTheData) {
  play(1);
  rig_->pass(5000);
  expectAt(2, 2);
  rig_->pass(6500);
  EXPECT_EQ(device().mode(), DeviceMode::Playing);
  rig_->pass(1000);
  EXPECT_EQ(device().mode(), DeviceMode::Stopped);
  EXPECT_EQ(position().track, 4);
}

TEST_P(DeviceFacts, PauseAndStopKeepThePlace) {
  play(2);
  rig_->pass(1000);
  command("PAUSE");
  EXPECT_EQ(device().mode(), DeviceMode::Paused);
  rig_->pass(2000);
  expectAt(2, 1);
  command("Resume");
  EXPECT_EQ(device().mode(), DeviceMode::Playing);
  rig_->pass(1000);
  expectAt(2, 2);
  command("Pause");
  EXPECT_EQ(command("Play"), device_error::kNone);
  rig_->pass(1000);
  expectAt(2, 3);
  command("stop");
  EXPECT_EQ(device().mode(), DeviceMode::Stopped);
  rig_->pass(500);
  expectAt(2, 3);
  command("Play");
  rig_->pass(500);
  EXPECT_EQ(position().track, 2);
  EXPECT_EQ(position().time.seconds, 3);
}

TEST_P(DeviceFacts, SeekStopsAndDropsAPendingFrom) {
  play(1);
  device().setFrom(3);
  device().setTo(packSeekTarget(2, 2));
  EXPECT_EQ(command("SEEK"), device_error::kNone);
  EXPECT_EQ(device().mode(), DeviceMode::Stopped);
  expectAt(2, 2);
  command("Play");
  rig_->pass(1000);
  expectAt(2, 3);
  EXPECT_EQ(command("Seek"), device_error::kMissingTarget);
  EXPECT_EQ(device().mode(), DeviceMode::Playing);
}

TEST_P(DeviceFacts, RefusesWhatLiesOutsideTheDisc) {
  play(2);
  rig_->pass(1000);
  for (const uint32_t from : {0U, 5U, 99U, packSeekTarget(1, 3600), 4U}) {
    EXPECT_EQ(play(from), device_error::kOutOfRange) << from;
    EXPECT_EQ(device().mode(), DeviceMode::Playing);
    expectAt(2, 1);
  }
  device().setTo(1);
  EXPECT_EQ(play(2), device_error::kOutOfRange);
  EXPECT_EQ(command("Play"), device_error::kNone) << "a failed command drops its From and To";
  EXPECT_EQ(command("Dance"), device_error::kUnknownCommand);
}

TEST_P(DeviceFacts, ClosedOrEmptyAnswersNothing) {
  play(1);
  command("close");
  EXPECT_EQ(device().mode(), DeviceMode::NotOpen);
  EXPECT_EQ(device().tracks(), 0);
  EXPECT_EQ(device().position(), 0U);
  EXPECT_EQ(command("Play"), device_error::kNotOpen);
  command("Open");
  command("Eject");
  EXPECT_EQ(device().tracks(), 0);
  EXPECT_EQ(device().directoryEntry(), "");
  EXPECT_EQ(command("Open"), device_error::kNoDisc);
}

INSTANTIATE_TEST_SUITE_P(Drives, DeviceFacts, testing::Bool(),
                         [](const auto& drive) { return std::string(drive.param ? "Image" : "Simulated"); });

}  // namespace
}  // namespace orvanta::test
