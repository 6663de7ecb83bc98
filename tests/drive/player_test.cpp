// The player over real images: every sample, every frame, and what happens when things break.
#include "platform/disc/player.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <filesystem>
#include <functional>

#include "platform/disc/image_drive.h"
#include "platform/sound/clocked_output.h"
#include "platform/sound/wav_file.h"
#include "tests/support/places.h"
#include "tests/support/stepped_output.h"
#include "tests/support/test_discs.h"

namespace orvanta::test {
namespace {

constexpr size_t kSecond = kSampleRate;

struct Deck {
  explicit Deck(const std::string& folder) : drive(folder) { player.waitUntilKnown(5000); }
  void playAll() { player.play(player.toc().startOf(1), player.toc().leadOut); }
  ImageDrive drive;
  SteppedOutputs outputs;
  Player player{drive, outputs};
};

/// The frames heard, as runs "first-last".
std::string runs(const std::vector<int16_t>& samples) {
  std::string text;
  int last = -2;
  for (size_t at = 0; at + kShortsPerFrame <= samples.size(); at += kShortsPerFrame) {
    const int frame = samples[at];
    if (!isFrame(frame, &samples[at])) return text + " broken at frame " + std::to_string(at / kShortsPerFrame);
    if (frame != last + 1) text += (text.empty() ? "" : "-" + std::to_string(last) + " ") + std::to_string(frame);
    last = frame;
  }
  return text + "-" + std::to_string(last);
}

TEST(Player, PlaysAWholeDiscWithoutAGap) {
  const TempFolder folder;
  makeDisc(folder, std::vector<int>(99, 30), 50);
  Deck deck(folder.path());
  ASSERT_EQ(deck.player.toc().count(), 99);
  EXPECT_EQ(deck.player.toc().startOf(1), 200);
  deck.playAll();
  ASSERT_TRUE(becomes([&] { return deck.outputs.open(); }));
  deck.outputs.hear(100 * kSecond);
  EXPECT_EQ(runs(deck.outputs.samples), "200-3169");
  EXPECT_TRUE(becomes([&] { return deck.player.state() == PlayState::Stopped; }));
  EXPECT_EQ(deck.player.frame(), deck.player.toc().leadOut);
  EXPECT_EQ(deck.outputs.streams, 1);
}

TEST(Player, PlaysTheDemoDiscSampleForSample) {
  Deck deck(demoFolder());
  ASSERT_EQ(deck.player.toc().count(), 5);
  deck.playAll();
  ASSERT_TRUE(becomes([&] { return deck.outputs.open(); }));
  deck.outputs.hear(600 * kSecond);
  std::string error;
  const std::string image = readSmallFile(demoFolder() + "/harbour-lights.bin", 1 << 30, error);
  ASSERT_EQ(deck.outputs.samples.size() * sizeof(int16_t), image.size());
  EXPECT_EQ(std::memcmp(deck.outputs.samples.data(), image.data(), image.size()), 0);
}

TEST(Player, PauseAndResumeLoseNoSample) {
  const TempFolder folder;
  makeDisc(folder, {750});
  Deck deck(folder.path());
  deck.playAll();
  ASSERT_TRUE(becomes([&] { return deck.outputs.open(); }));
  for (int i = 0; i < 20; ++i) {
    deck.outputs.hear(12345);
    deck.player.pause();
    EXPECT_EQ(deck.player.state(), PlayState::Paused);
    ASSERT_TRUE(becomes([&] { return deck.outputs.hear(1) == 0 || deck.outputs.samples.size() > 12345 * 2 * 21; }));
    const int place = deck.player.frame();
    EXPECT_NEAR(place, 150 + static_cast<int>(deck.outputs.samples.size() / kShortsPerFrame), 1);
    deck.player.resume();
    ASSERT_TRUE(becomes([&] { return deck.outputs.hear(1) == 1; }));
  }
  deck.outputs.hear(20 * kSecond);
  EXPECT_EQ(runs(deck.outputs.samples), "150-899");
}

TEST(Player, AMovedSliderReachesWhatWasNotHeardYet) {
  const TempFolder folder;
  makeDisc(folder, {750});
  constexpr size_t kRamp = 441;
  for (const auto& [held, reached] :
       {std::pair{size_t{10000}, size_t{10000}}, {2 * kMostHeldPairs, kMostHeldPairs}, {size_t{0}, size_t{0}}}) {
    Deck deck(folder.path());
    deck.outputs.held = held;
    deck.playAll();
    ASSERT_TRUE(becomes([&] { return deck.outputs.open(); }));
    auto& samples = deck.outputs.samples;
    deck.outputs.hear(5 * kSecond);
    const auto before = samples;
    const auto shorts = static_cast<ptrdiff_t>(reached * 2);
    deck.player.level().set(0, 0);
    deck.player.relevel();
    deck.outputs.hear(kSecond);
    EXPECT_TRUE(std::equal(before.begin(), before.end() - shorts, samples.begin())) << "heard already: " << held;
    const auto silent = samples.begin() + static_cast<ptrdiff_t>(before.size()) - shorts + kRamp * 2;
    EXPECT_TRUE(std::all_of(silent, samples.end(), [](int16_t sample) { return sample == 0; })) << held;
    deck.player.level().set(Level::kFull, Level::kFull);
    deck.player.relevel();
    deck.outputs.hear(kSecond);
    const ptrdiff_t end = kShortsPerFrame * 500;
    EXPECT_EQ(runs({samples.begin() + end, samples.begin() + end + kShortsPerFrame * 20}), "650-669") << "in its place again";
  }
}

TEST(Player, SeeksAndSkipsDataTracks) {
  const TempFolder folder;
  writeFile(folder / "disc.bin", frameBytes(150, 400));
  writeFile(folder / "disc.cue",
            "FILE disc.bin BINARY\nTRACK 01 AUDIO\nINDEX 01 00:00:00\nTRACK 02 MODE1/2352\nINDEX 01 00:01:25\nTRACK 03 AUDIO\nINDEX 01 "
            "00:02:50\n");
  Deck deck(folder.path());
  deck.player.play(200, 550);
  ASSERT_TRUE(becomes([&] { return deck.outputs.open(); }));
  deck.outputs.hear(60 * size_t{kSamplesPerFrame});
  EXPECT_EQ(deck.player.frame(), 350 + 10) << "the place is told past the data";
  deck.player.play(400, 420);
  ASSERT_TRUE(becomes([&] { return deck.outputs.streams == 2 && deck.outputs.open(); }));
  deck.outputs.hear(kSecond);
  EXPECT_EQ(runs(deck.outputs.samples), "200-249 350-359 400-419");
}

TEST(Player, ADeadSoundServerCostsNothing) {
  const TempFolder folder;
  makeDisc(folder, {300});
  Deck deck(folder.path());
  deck.playAll();
  ASSERT_TRUE(becomes([&] { return deck.outputs.open(); }));
  deck.outputs.hear(100 * size_t{kSamplesPerFrame});
  deck.outputs.failing = true;
  ASSERT_TRUE(becomes([&] { return deck.outputs.afterFailures == 1 && deck.outputs.open(); }));
  EXPECT_EQ(deck.player.state(), PlayState::Playing);
  deck.outputs.hear(10 * kSecond);
  EXPECT_EQ(runs(deck.outputs.samples), "150-449");
}

TEST(Player, SoundComesBackByItself) {
  const TempFolder folder;
  makeDisc(folder, {1500});
  Deck deck(folder.path());
  EXPECT_FALSE(deck.player.soundless());
  // As at a start without any sound server.
  deck.outputs.serverGone = true;
  deck.playAll();
  ASSERT_TRUE(becomes([&] { return deck.player.soundless(); }));
  deck.outputs.hear(100 * size_t{kSamplesPerFrame});
  const auto start = std::chrono::steady_clock::now();
  ASSERT_TRUE(becomes([&] { return deck.outputs.tries >= 2; })) << "it tries, and tries again";
  EXPECT_GT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(1000)) << "a second apart: a try takes time";
  EXPECT_EQ(deck.outputs.streams, 1) << "without giving up what plays";
  deck.player.pause();
  ASSERT_TRUE(becomes([&] { return deck.player.settled(); }));
  const int tries = deck.outputs.tries;
  EXPECT_FALSE(becomes([&] { return deck.outputs.tries > tries; }, 2200)) << "not while it is paused";
  deck.outputs.serverGone = false;
  deck.player.resume();
  ASSERT_TRUE(becomes([&] { return deck.outputs.streams == 2 && deck.outputs.open(); }));
  ASSERT_TRUE(becomes([&] { return deck.player.settled(); }));
  EXPECT_FALSE(deck.player.soundless());
  EXPECT_EQ(deck.player.state(), PlayState::Playing);
  deck.outputs.hear(30 * kSecond);
  EXPECT_EQ(runs(deck.outputs.samples), "150-1649");
}

TEST(Player, OrdersGivenWhileAStreamIsRenewedCount) {
  const TempFolder folder;
  makeDisc(folder, {3000});
  Deck deck(folder.path());
  for (int round = 0; round < 20; ++round) {
    deck.player.play(150, 3150);
    deck.outputs.failing = true;
    const int target = 200 + round * 100;
    deck.player.play(target, 3150);
    ASSERT_TRUE(becomes([&] { return deck.player.settled() && deck.outputs.open(); }));
    EXPECT_EQ(deck.player.frame() >= target, true) << round;
    deck.player.eject();
    EXPECT_EQ(deck.player.toc().count(), 0);
    deck.player.closeTray();
    ASSERT_TRUE(becomes([&] { return deck.player.toc().count() == 1; }));
  }
}

TEST(Player, TellsTheTextsOfTheDiscThatIsIn) {
  const TempFolder folder;
  const std::string sheet = makeDisc(folder, {300});
  std::string error;
  writeFile(sheet, "TITLE Harbour\n" + readSmallFile(sheet, 1000, error));
  Deck deck(folder.path());
  EXPECT_EQ(deck.player.texts().title, "Harbour");
  deck.player.eject();
  EXPECT_TRUE(deck.player.texts().empty()) << "at once, before the tray has moved";
  deck.player.closeTray();
  EXPECT_TRUE(becomes([&] { return deck.player.texts().title == "Harbour"; }));
}

TEST(Player, OnePlayerHoldsADrive) {
  const TempFolder folder;
  makeDisc(folder, {300});
  auto first = std::make_unique<Deck>(folder.path());
  EXPECT_EQ(first->player.holder(), Holder::Us);
  ImageDrive drive(folder.path());
  SteppedOutputs outputs;
  Player second(drive, outputs);
  EXPECT_EQ(second.holder(), Holder::Unknown) << "however long a start takes: nobody waits yet";
  EXPECT_FALSE(second.waitUntilKnown(100));
  EXPECT_EQ(second.holder(), Holder::Other);
  // It goes on trying: the first one leaves within the time that the second is waited for now.
  first.reset();
  second.waitUntilKnown(5000);
  EXPECT_EQ(second.holder(), Holder::Us);
  EXPECT_EQ(second.toc().count(), 1);
}

/// A drive that fails where it is told to.
class BadDrive : public DiscSource {
 public:
  bool lock() override { return true; }
  DriveStatus poll() override { return DriveStatus::Disc; }
  const Toc& toc() const override { return toc_; }
  std::string firstEntry() const override { return "Track01.cda"; }
  bool read(int frame, int count, int16_t* samples) override {
    ++reads;
    for (int i = 0; i < count; ++i) {
      if (bad(frame + i)) return false;
      const auto one = frameSamples(frame + i);
      std::copy(one.begin(), one.end(), samples + ptrdiff_t{i} * kShortsPerFrame);
    }
    return true;
  }
  void openTray() override {}
  void closeTray() override {}
  std::string accept(const std::string& /*imagePath*/) override { return "no"; }

  std::function<bool(int)> bad = [](int) { return false; };
  std::atomic<int> reads{0};

 private:
  Toc toc_{{{1, 150, false}}, 150 + 2000};
};

TEST(Player, PassesAScratchAndGivesUpOnADeadDrive) {
  BadDrive drive;
  drive.bad = [](int frame) { return frame == 300 || (frame >= 400 && frame < 500) || frame >= 1000; };
  SteppedOutputs outputs;
  Player player(drive, outputs);
  player.waitUntilKnown(5000);
  player.play(150, 2150);
  ASSERT_TRUE(becomes([&] { return outputs.open(); }));
  outputs.hear(700 * size_t{kSamplesPerFrame});
  const auto frameAt = [&](int frame) { return &outputs.samples[static_cast<size_t>(frame - 150) * kShortsPerFrame]; };
  for (const int good : {150, 299, 301, 399, 600, 800}) EXPECT_TRUE(isFrame(good, frameAt(good))) << good;
  for (const int silent : {300, 400, 499}) EXPECT_EQ(*frameAt(silent), 0) << silent;
  EXPECT_GT(player.skippedFrames(), 100);
  EXPECT_LT(drive.reads, 250) << "a scratch is not read frame by frame";
  outputs.hear(20 * kSecond);
  EXPECT_TRUE(becomes([&] { return player.state() == PlayState::Stopped; }));
  EXPECT_TRUE(player.takeFailure());
  EXPECT_FALSE(player.takeFailure());
}

TEST(Player, SurvivesAnImageThatShrinksOrVanishesWhilePlaying) {
  const TempFolder folder;
  makeDisc(folder, {1500});
  Deck deck(folder.path());
  deck.playAll();
  ASSERT_TRUE(becomes([&] { return deck.outputs.open(); }));
  deck.outputs.hear(10 * size_t{kSamplesPerFrame});
  std::filesystem::resize_file(folder / "disc.bin", 200 * kBytesPerFrame);
  std::filesystem::remove(folder / "disc.bin");
  std::filesystem::remove(folder / "disc.cue");
  const size_t heard = deck.outputs.hear(30 * kSecond);
  EXPECT_GT(heard, 100 * size_t{kSamplesPerFrame});
  EXPECT_TRUE(becomes([&] { return deck.player.state() == PlayState::Stopped; }));
}

TEST(Player, SaysWhenItsImageIsCutShortAndPlaysOn) {
  const TempFolder folder;
  makeDisc(folder, {1500});
  Deck deck(folder.path());
  deck.playAll();
  ASSERT_TRUE(becomes([&] { return deck.outputs.open(); }));
  deck.outputs.hear(10 * size_t{kSamplesPerFrame});
  std::filesystem::resize_file(folder / "disc.bin", 600 * kBytesPerFrame);
  TrayOffer answer;
  ASSERT_TRUE(becomes([&] { return (answer = deck.player.takeAnswer()).answer == TrayOffer::Answer::Notice; }));
  EXPECT_NE(answer.refusal.find("cut short"), std::string::npos);
  EXPECT_EQ(deck.player.toc().count(), 1);
  deck.outputs.hear(30 * kSecond);
  ASSERT_TRUE(becomes([&] { return deck.player.state() == PlayState::Stopped; }));
  EXPECT_EQ(deck.outputs.samples.size(), size_t{1500} * kShortsPerFrame) << "to its end, in silence";
  EXPECT_TRUE(isFrame(749, &deck.outputs.samples[size_t{599} * kShortsPerFrame]));
  EXPECT_FALSE(deck.player.takeFailure()) << "the drive has not failed: nothing starts anew";
}

TEST(ClockedOutput, KeepsTimeAndStartsASeekAtOnce) {
  const TempFolder folder;
  makeDisc(folder, {3000});
  ImageDrive drive(folder.path());
  ClockedOutputs outputs(nullptr, Pace::RealTime);
  Player player(drive, outputs);
  player.waitUntilKnown(5000);
  const auto milliseconds = [] {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
  };
  // The best of three: a busy machine may hold up any one of them.
  double quickest = 1e9;
  double nearest = 1e9;
  for (const int from : {150, 1500, 700}) {
    const double ordered = milliseconds();
    player.play(from, 3150);
    ASSERT_TRUE(becomes([&] { return player.frame() > from; }));
    const double moved = milliseconds();
    quickest = std::min(quickest, moved - ordered);
    ASSERT_TRUE(becomes([&] { return milliseconds() > moved + 300; }));
    nearest = std::min(nearest, std::abs((player.frame() - from) * 1000.0 / 75 - (milliseconds() - moved + 13.3)));
  }
  EXPECT_LT(quickest, 14 + 50) << "one frame takes 13.3 ms";
  EXPECT_LT(nearest, 30);
}

TEST(ClockedOutput, UnpacedPlaysTheWholeDiscIntoAWavFile) {
  const TempFolder folder;
  makeDisc(folder, {500, 500, 321});
  {
    WavFile wav(folder / "heard.wav");
    ImageDrive drive(folder.path());
    ClockedOutputs outputs(&wav, Pace::Unpaced);
    Player player(drive, outputs);
    player.waitUntilKnown(5000);
    // Twice, the second time into the file as a new process finds it.
    player.play(150, 650);
    ASSERT_TRUE(becomes([&] { return player.state() == PlayState::Stopped; }));
  }
  {
    WavFile wav(folder / "heard.wav");
    ImageDrive drive(folder.path());
    ClockedOutputs outputs(&wav, Pace::Unpaced);
    Player player(drive, outputs);
    player.waitUntilKnown(5000);
    player.play(650, player.toc().leadOut);
    ASSERT_TRUE(becomes([&] { return player.state() == PlayState::Stopped; }));
  }
  const auto size = std::filesystem::file_size(folder / "heard.wav");
  std::string error;
  const std::string bytes = readSmallFile(folder / "heard.wav", 1 << 24, error);
  EXPECT_EQ(bytes.substr(size - 1321 * kBytesPerFrame), frameBytes(150, 1321));
}

}  // namespace
}  // namespace orvanta::test
