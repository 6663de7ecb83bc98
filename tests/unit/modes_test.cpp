// Play modes, programs, steps, scans and loops over whole discs on the virtual clock.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <random>
#include <set>

#include "tests/support/play_rig.h"

namespace orvanta::test {
namespace {

TEST(Shuffle, EveryOrderIsEquallyLikely) {
  for (const auto& [count, orders, presses] : {std::tuple{3, 6, 1200}, {5, 120, 6000}}) {
    PlayRig rig(tracksOf(count, 60));
    std::map<std::vector<int16_t>, int> seen;
    for (int i = 0; i < presses; ++i) {
      rig.key('E');
      const auto first = rig.state.program.pgmList.begin() + 1;
      ++seen[std::vector<int16_t>(first, first + count)];
    }
    EXPECT_EQ(seen.size(), static_cast<size_t>(orders));
    // Seven deviations from the mean: a fair draw stays within them.
    const double mean = static_cast<double>(presses) / orders;
    for (const auto& [order, times] : seen) EXPECT_NEAR(times, mean, 7 * std::sqrt(mean)) << order[0] << order[1] << order[2];
  }
}

/// Whatever is pressed, in whatever order, some things always hold.
TEST(RandomWalk, HoldsWhatAlwaysHolds) {
  for (const unsigned seed : {1U, 2U, 3U, 4U}) {
    std::mt19937 chance(seed);
    const Toc toc = seed % 2 == 0 ? tracksOf(24, 12) : tocOf({150, 150 + 75 * 5, 150 + 75 * 40}, 150 + 75 * 55);
    PlayRig rig(toc, seed > 2);
    int silent = 0;
    for (int step = 0; step < 2500 && !rig.gate.ended(); ++step) {
      static constexpr std::string_view kKeys = "ASDFGTWREYI0123456789";
      const auto& controls = rig.form.controls();
      const auto what = chance() % 10;
      if (what < 4) {
        rig.key(kKeys[chance() % kKeys.size()]);
      } else if (what < 7) {
        forms::Control& control = *controls[chance() % controls.size()];
        const std::string& name = control.name();
        // Not the ways out: those have tests of their own.
        if (name != "Image5" && name != "Image6" && name != "Panel3D2" && control.shown() && !(name == "icntla" && control.index() == 5) &&
            !(name == "Image16" && control.index() == 3)) {
          rig.press(control);
        }
      } else {
        rig.clock.advance(static_cast<int64_t>(chance() % 4000));
      }
      const TransportState& transport = rig.state.transport;
      ASSERT_FALSE(transport.playingFlag == kOn && transport.pausedFlag == kOn) << seed << " step " << step;
      ASSERT_GE(transport.curTrack, 0);
      ASSERT_LE(transport.curTrack, rig.state.disc.trackCount + 1) << seed << " step " << step;
      ASSERT_GE(transport.playMode, Pgm);
      ASSERT_LE(transport.playMode, Cont);
      // What is lit is what the device does, and number, length and title are those of one track.
      rig.clock.advance(300);
      if (rig.device.mode() != DeviceMode::NotOpen) {
        if (rig.litFor() != rig.device.mode()) rig.clock.advance(100);
        ASSERT_EQ(rig.litFor(), rig.device.mode()) << seed << " step " << step << ": " << rig.look();
      }
      const auto number = static_cast<size_t>(std::stoi(rig.track()));
      const std::string whole = number == 0 ? "0 0:00 " : rig.track() + " " + rig.state.disc.trackLengths[number] + " Title " + rig.track();
      if (rig.state.disc.discStarted == kOn) {
        ASSERT_EQ(rig.shown(), whole) << seed << " step " << step;
      }
      // A deck that says that it plays is heard, two seconds later at the latest.
      rig.clock.advance(100);
      silent = transport.playingFlag == kOn && rig.device.mode() != DeviceMode::Playing ? silent + 1 : 0;
      if (silent > 0) {
        rig.clock.advance(2200);
        ASSERT_FALSE(transport.playingFlag == kOn && rig.device.mode() != DeviceMode::Playing && rig.device.mode() != DeviceMode::NotOpen)
            << seed << " step " << step << " mode " << transport.playMode << " track " << transport.curTrack << " go " << transport.trackGo;
      }
    }
    EXPECT_FALSE(rig.gate.ended()) << seed;
    // The disc is pulled in the midst of it: nothing acts until another is in, and that is another process.
    rig.player.insert({}, "");
    rig.clock.advance(1500);
    EXPECT_EQ(rig.state.disc.drawerOpen, kOn);
    for (forms::Control* control : rig.form.controls()) {
      const std::string& name = control->name();
      if (name != "Image5" && name != "Image6" && control->shown()) rig.press(*control);
    }
    EXPECT_EQ(rig.state.transport.playingFlag + rig.state.transport.pausedFlag, 0) << seed;
    EXPECT_EQ(rig.device.mode(), DeviceMode::NotOpen) << seed;
    rig.player.insert(discA());
    rig.processes.onStart = [&] { rig.files.files.erase("/DATA/EJCD.TMP"); };
    // Windows that the walk has opened would hold the new process up.
    rig.gate.enter([&] {
      rig.orvanta.editor.closeAsked();
      rig.orvanta.playlistForm.closeAsked();
    });
    rig.clock.advance(1500);
    EXPECT_TRUE(rig.gate.ended()) << seed;
  }
}

TEST(Ticks, ASilentDeckWakesSeldomUntilSomethingChanges) {
  PlayRig rig;
  // Looks at the tray's answers, one each tenth of a second.
  const auto looks = [&](int tenths) {
    int count = 0;
    for (int i = 0; i < tenths; ++i) {
      rig.player.answer = {TrayOffer::Answer::Notice, ""};
      rig.clock.advance(100);
      if (rig.player.answer.answer == TrayOffer::Answer::None) ++count;
    }
    rig.player.answer = {};
    return count;
  };
  for (const char* keys : {"", "D", "F", "DG"}) {
    rig.keys(keys);
    EXPECT_EQ(looks(20), 20) << keys << ": at once at the full pace";
    rig.clock.advance(5000);
    const int later = looks(100);
    EXPECT_TRUE(std::string_view(keys) == "D" ? later == 100 : later <= 45) << keys << ": " << later;
    if (std::string_view(keys) == "F") continue;  // a paused deck refuses Repeat
    rig.key('R');
    EXPECT_GE(looks(10), 9) << keys << ": not by sound alone";
  }
}

}  // namespace
}  // namespace orvanta::test
