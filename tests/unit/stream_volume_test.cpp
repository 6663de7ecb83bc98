// The level that outlives the process: what is written, and when.
#include "platform/sound/stream_volume.h"

#include <gtest/gtest.h>

#include "tests/support/fakes.h"
#include "tests/support/virtual_clock.h"

namespace orvanta::test {
namespace {

struct VolumeRig {
  CoreGate gate;
  VirtualClock clock{gate};
  FakeFiles files;
  Level level;
  int changes = 0;
  StreamVolume volume{level, files, clock, "/data/level.dat", [this] { ++changes; }};
};

TEST(StreamVolume, IsKeptASecondAfterItsLastChange) {
  VolumeRig rig;
  for (uint32_t place = 0; place < 30; ++place) {
    EXPECT_EQ(rig.volume.setVolume(0, place << 16U | (1000 + place)), 0);
    rig.clock.advance(100);
  }
  EXPECT_EQ(rig.files.tape, Tape{}) << "a slider that moves writes nothing";
  EXPECT_EQ(rig.changes, 30) << "and is heard at each step";
  rig.clock.advance(899);
  EXPECT_EQ(rig.files.tape, Tape{});
  rig.clock.advance(1);
  EXPECT_EQ(rig.files.read("/data/level.dat"), "1029 29\n");
  rig.clock.advance(10000);
  rig.volume.keep();
  EXPECT_EQ(rig.files.tape, Tape{"write /data/level.dat"}) << "once";
  StreamVolume next(rig.level, rig.files, rig.clock, "/data/level.dat", [] {});
  EXPECT_EQ(next.volume(0).volume, 29U << 16U | 1029U);
  EXPECT_NE(next.setVolume(1, 5), 0) << "there is one line";
  EXPECT_EQ(next.volume(0).volume, 29U << 16U | 1029U);
}

TEST(StreamVolume, AProcessThatReadsNextFindsIt) {
  VolumeRig rig;
  rig.volume.setVolume(0, 7);
  rig.volume.keep();
  EXPECT_EQ(rig.files.read("/data/level.dat"), "7 0\n");
  // A full disk keeps what was there, and the next change tries again.
  rig.files.full = true;
  rig.volume.setVolume(0, 8);
  rig.clock.advance(1000);
  EXPECT_EQ(rig.files.read("/data/level.dat"), "7 0\n");
  EXPECT_EQ(rig.volume.volume(0).volume, 8U);
  rig.files.full = false;
  rig.volume.setVolume(0, 9);
  rig.clock.advance(1000);
  EXPECT_EQ(rig.files.read("/data/level.dat"), "9 0\n");
}

/// A deck that is killed while it is muted is heard again at its next start.
TEST(StreamVolume, AMuteIsNotKept) {
  VolumeRig rig;
  rig.volume.setVolume(0, 7);
  EXPECT_EQ(rig.volume.mute(0), 0);
  EXPECT_NE(rig.volume.mute(1), 0);
  rig.clock.advance(5000);
  EXPECT_EQ(rig.volume.volume(0).volume, 0U);
  EXPECT_EQ(rig.files.read("/data/level.dat"), "7 0\n");
  rig.volume.setVolume(0, 0);
  rig.volume.keep();
  EXPECT_EQ(rig.files.read("/data/level.dat"), "0 0\n") << "sliders at the bottom are";
}

TEST(StreamVolume, ReadsWhatItWroteAndNothingElse) {
  constexpr auto kNone = std::optional<uint32_t>{};
  const std::pair<const char*, std::optional<uint32_t>> cases[] = {{"0 0\n", 0U},         {"65535 65535\n", 0xFFFFFFFFU},
                                                                   {" 1\r\n2", 0x20001U}, {"1 2 3\n", 0x20001U},
                                                                   {"", kNone},           {"5\n", kNone},
                                                                   {"65536 1", kNone},    {"1 65536", kNone},
                                                                   {"-1 1", kNone},       {"x 1", kNone},
                                                                   {"1,2", kNone},        {"99999999999999999999 1", kNone}};
  for (const auto& [bytes, volume] : cases) EXPECT_EQ(levelOf(bytes), volume) << bytes;
  // Softer is softer on its own side.
  Level level;
  setLevel(level, 0xFFFF);
  std::vector<int16_t> pairs(2000, 10000);
  level.apply(pairs.data(), 1000);
  EXPECT_EQ(pairs[1998], 10000);
  EXPECT_EQ(pairs[1999], 0);
}

TEST(CoreGate, TellsTheEndOnce) {
  CoreGate gate;
  int ends = 0;
  gate.setOnEnd([&] { ++ends; });
  // As a handler that opens a box, in which another handler ends the process.
  gate.enter([&] {
    gate.enter([] { end(); });
    gate.leaveIfEnded();
    FAIL() << "nothing runs on";
  });
  EXPECT_EQ(ends, 1);
  gate.enter([&] { ++ends; });
  EXPECT_EQ(ends, 1);
}

}  // namespace
}  // namespace orvanta::test
