// The real drive's logic over a fake of the kernel's calls.
#include "platform/disc/cdrom_drive.h"

#include <gtest/gtest.h>

#include <atomic>

#include "platform/disc/player.h"
#include "tests/support/stepped_output.h"
#include "tests/support/test_discs.h"

namespace orvanta::test {
namespace {

/// A drive of which the test holds the other end.
struct FakeState {
  std::atomic<CdromStatus> status{CdromStatus::Disc};
  std::vector<int> starts{0, 400, 800};  ///< blocks; the last may be data
  int leadOut = 1200;
  bool lastIsData = false;
  std::atomic<int> badFrom{1 << 30};
  std::atomic<int> reads{0};
  std::atomic<int> opens{0};
  std::atomic<int> most{0};
  std::atomic<int> tableDelay{0};  ///< milliseconds
};

class FakeCalls : public CdromCalls {
 public:
  explicit FakeCalls(FakeState& state) : s_(state) {}
  bool reopen() override { return ++s_.opens > 0; }
  bool lock() override { return true; }
  CdromStatus driveStatus() override { return s_.status; }
  std::optional<int> lastTrack() override {
    std::this_thread::sleep_for(std::chrono::milliseconds(s_.tableDelay));
    return static_cast<int>(s_.starts.size());
  }
  std::optional<CdromEntry> entry(int track) override {
    if (track == kLeadOut) return CdromEntry{s_.leadOut, false};
    return CdromEntry{s_.starts[static_cast<size_t>(track - 1)], s_.lastIsData && track == static_cast<int>(s_.starts.size())};
  }
  bool readAudio(int block, int count, int16_t* samples) override {
    ++s_.reads;
    s_.most = std::max(s_.most.load(), count);
    if (s_.status != CdromStatus::Disc || block + count > s_.leadOut || block + count > s_.badFrom) return false;
    for (int i = 0; i < count; ++i) {
      const auto one = frameSamples(block + i + kFirstFrame);
      std::copy(one.begin(), one.end(), samples + ptrdiff_t{i} * kShortsPerFrame);
    }
    return true;
  }
  bool readBlock(int /*block*/, unsigned char* /*bytes*/) override { return false; }
  void setSpeed(int /*speed*/) override {}
  void eject() override { s_.status = CdromStatus::TrayOpen; }
  void closeTray() override { s_.status = CdromStatus::Disc; }

 private:
  FakeState& s_;
};

struct RealDeck {
  explicit RealDeck(FakeState& state) : drive(std::make_unique<FakeCalls>(state)) { player.waitUntilKnown(1000); }
  CdromDrive drive;
  SteppedOutputs outputs;
  Player player{drive, outputs};
};

TEST(Cdrom, ReadsTableAndSoundWithinTheDrivesLimits) {
  FakeState state;
  RealDeck deck(state);
  EXPECT_EQ(deck.player.toc().tracks, (std::vector<TocTrack>{{1, 150, false}, {2, 550, false}, {3, 950, false}}));
  EXPECT_EQ(deck.player.firstEntry(), "Track01.cda");
  deck.player.play(150, 1350);
  ASSERT_TRUE(becomes([&] { return deck.outputs.open(); }));
  EXPECT_EQ(deck.outputs.hear(size_t{20} * kSampleRate), size_t{1200} * kSamplesPerFrame);
  EXPECT_TRUE(isFrame(1349, &deck.outputs.samples[size_t{1199} * kShortsPerFrame]));
  EXPECT_LE(state.most, 75);
}

TEST(Cdrom, TheSoundOfAnEnhancedDiscEndsBeforeItsSession) {
  FakeState state;
  state.starts = {0, 300, 12000};
  state.leadOut = 13000;
  state.lastIsData = true;
  RealDeck deck(state);
  EXPECT_EQ(deck.player.toc().startOf(3) - deck.player.toc().startOf(2), 11700) << "lengths stay start to start";
  deck.player.play(450, deck.player.toc().leadOut);
  ASSERT_TRUE(becomes([&] { return deck.outputs.open(); }));
  EXPECT_EQ(deck.outputs.hear(size_t{20} * kSampleRate), size_t{300} * kSamplesPerFrame);
}

TEST(Cdrom, DiscsComeAndGo) {
  FakeState state;
  state.status = CdromStatus::NotReady;
  RealDeck deck(state);
  EXPECT_EQ(deck.player.toc().count(), 0);
  EXPECT_EQ(deck.player.firstEntry(), "");
  state.status = CdromStatus::Disc;
  ASSERT_TRUE(becomes([&] { return deck.player.toc().count() == 3; }));
  const int opens = state.opens;
  deck.player.eject();
  EXPECT_EQ(deck.player.firstEntry(), "") << "at once, before the tray has moved";
  ASSERT_TRUE(becomes([&] { return deck.player.settled(); }));
  EXPECT_EQ(state.status, CdromStatus::TrayOpen);
  state.starts = {0};
  deck.player.closeTray();
  ASSERT_TRUE(becomes([&] { return deck.player.toc().count() == 1; }));
  EXPECT_GT(state.opens, opens) << "a handle keeps the table of the disc before";
  deck.player.offer("/any.cue");
  TrayOffer answer;
  ASSERT_TRUE(becomes([&] { return (answer = deck.player.takeAnswer()).answer != TrayOffer::Answer::None; }));
  EXPECT_EQ(answer.answer, TrayOffer::Answer::Refused);
}

TEST(Cdrom, ATrayPulledWhilePlayingStopsThePlay) {
  FakeState state;
  RealDeck deck(state);
  deck.player.play(150, 1350);
  ASSERT_TRUE(becomes([&] { return deck.outputs.open(); }));
  deck.outputs.hear(100 * size_t{kSamplesPerFrame});
  state.status = CdromStatus::TrayOpen;
  ASSERT_TRUE(becomes([&] { return deck.player.toc().count() == 0; }));
  EXPECT_EQ(deck.player.state(), PlayState::Stopped);
  ASSERT_TRUE(becomes([&] { return !deck.outputs.open(); }));
}

TEST(Cdrom, ASlowDriveHoldsUpNobody) {
  FakeState state;
  state.tableDelay = 3000;
  const auto start = std::chrono::steady_clock::now();
  const auto passed = [&] { return std::chrono::steady_clock::now() - start; };
  CdromDrive drive(std::make_unique<FakeCalls>(state));
  SteppedOutputs outputs;
  auto player = std::make_unique<Player>(drive, outputs);
  EXPECT_FALSE(player->waitUntilKnown(1000, 300));
  EXPECT_LT(passed(), std::chrono::seconds(1));
  EXPECT_EQ(player->holder(), Holder::Us);
  EXPECT_EQ(player->toc().count(), 0);
  player->eject();
  EXPECT_EQ(player->state(), PlayState::Stopped);
  EXPECT_FALSE(player->finish(100)) << "still held up";
  EXPECT_LT(passed(), std::chrono::seconds(2));
}

TEST(Cdrom, ATableThatIsBeingReadIsWaitedFor) {
  for (const int delay : {0, 250, 400, 1500}) {
    FakeState state;
    state.tableDelay = delay;
    CdromDrive drive(std::make_unique<FakeCalls>(state));
    SteppedOutputs outputs;
    Player player(drive, outputs);
    EXPECT_TRUE(player.waitUntilKnown(1000)) << delay;
    EXPECT_EQ(player.toc().count(), 3) << delay;
  }
}

TEST(Cdrom, AProcessStartedForADiscWaitsWhileTheDriveSettles) {
  FakeState state;
  state.status = CdromStatus::NotReady;
  CdromDrive drive(std::make_unique<FakeCalls>(state));
  SteppedOutputs outputs;
  Player player(drive, outputs);
  EXPECT_TRUE(player.waitUntilKnown(1000)) << "a first start takes the drive at its word";
  EXPECT_EQ(player.toc().count(), 0);
  std::thread spinUp([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    state.status = CdromStatus::Disc;
  });
  EXPECT_TRUE(player.waitForDisc(1000, 5000));
  spinUp.join();
  EXPECT_EQ(player.toc().count(), 3);
}

TEST(Cdrom, ADiscWaitedForInVainIsNotStartedForAgain) {
  FakeState state;
  state.tableDelay = 400;
  CdromDrive drive(std::make_unique<FakeCalls>(state));
  SteppedOutputs outputs;
  Player player(drive, outputs);
  EXPECT_FALSE(player.waitForDisc(1000, 100));
  const TrayOffer notice = player.takeAnswer();
  EXPECT_EQ(notice.answer, TrayOffer::Answer::Notice);
  EXPECT_NE(notice.refusal.find("put it in again"), std::string::npos);
  EXPECT_EQ(player.takeAnswer().answer, TrayOffer::Answer::None) << "told once";
  // The table comes in, and two looks later the disc still does not show.
  EXPECT_FALSE(becomes([&] { return player.toc().count() > 0; }, 1500));
  EXPECT_EQ(player.firstEntry(), "");
  player.eject();
  ASSERT_TRUE(becomes([&] { return player.settled(); }));
  player.closeTray();
  EXPECT_TRUE(becomes([&] { return player.toc().count() == 3; }));
}

TEST(Cdrom, ADriveThatIsNotThereIsNamed) {
  CdromDrive drive(kernelCdrom("/dev/orvanta-no-such-drive"));
  SteppedOutputs outputs;
  Player player(drive, outputs);
  EXPECT_TRUE(player.waitUntilKnown(1000)) << "it is nobody's";
  EXPECT_EQ(player.missingDrive(), "/dev/orvanta-no-such-drive");
  FakeState state;
  EXPECT_EQ(RealDeck(state).player.missingDrive(), "");
}

TEST(Cdrom, NonsenseTablesAreNoDisc) {
  for (int kind = 0; kind < 6; ++kind) {
    FakeState state;
    if (kind == 0) state.starts = {};
    if (kind == 1) state.starts = {0, 400, 400};
    if (kind == 2) state.leadOut = 700;
    if (kind == 3) state.leadOut = 1 << 30;
    if (kind == 4) state.leadOut = 0x7FFFFFFF;
    if (kind == 5) state.starts = {0, 0x7FFFFFFF};
    RealDeck deck(state);
    EXPECT_EQ(deck.player.toc().count(), 0) << kind;
  }
}

}  // namespace
}  // namespace orvanta::test
