// Plays a disc: one thread owns the drive, reads ahead into a ring, and starts and ends streams.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "platform/disc/disc_player.h"
#include "platform/disc/disc_source.h"
#include "platform/disc/sample_ring.h"
#include "platform/sound/level.h"
#include "platform/sound/sound_output.h"

namespace orvanta {

class Player : public DiscPlayer, private SampleFeed {
 public:
  Player(DiscSource& source, SoundOutputs& outputs);
  ~Player() override;

  /// For the start alone, so that a disc that is there is not taken for none. The drive's lock is waited for
  /// `lock` milliseconds from this call on: then another has it. A table of contents that is being read is
  /// waited for until `table` milliseconds after the lock was had. False: it took longer.
  bool waitUntilKnown(int lock, int table = kTableTime);
  /// The same in a process that was started for a disc. The drive may still be settling: until `table`
  /// it is not believed that it is not ready. A disc that is not known by then shows only after it
  /// was taken out, since a start for it would end here again.
  bool waitForDisc(int lock, int table);
  static constexpr int kTableTime = 2000;

  /// Ends the thread; false when a drive still holds it up after `milliseconds`.
  bool finish(int milliseconds);

  Holder holder() const override;
  Toc toc() const override;
  std::string firstEntry() const override;
  SheetTexts texts() const override;
  std::string sheet() const override;
  bool soundless() const override;
  /// What the last stream went through; "" before the first.
  std::string soundRoad() const;
  std::string missingDrive() const override;
  PlayState state() const override;
  int frame() const override;
  bool takeFailure() override;
  void play(int from, int to) override;
  void pause() override;
  void resume() override;
  void stop() override;
  void seek(int frame) override;
  void eject() override;
  void offer(const std::string& imagePath) override;
  TrayOffer takeAnswer() override;
  void closeTray() override;

  /// What goes out is made that much softer, from the next sample on.
  Level& level() { return level_; }
  /// The level has changed: so is what went out and was not heard yet.
  void relevel();

  /// Where the play under way is to end.
  int playEnd() const;

  /// Every order given was carried out.
  bool settled() const;

  /// Frames that could not be read and went out as silence.
  int skippedFrames() const { return skipped_; }

 private:
  struct Order {
    enum class Kind { Play, Pause, Resume, Stop, Seek, Eject, Offer, CloseTray } kind;
    int from = 0;
    int to = 0;
    std::string path = {};
  };
  /// Sound from `sample` of the stream on comes from `frame` of the disc on.
  struct Span {
    uint64_t sample;
    int frame;
  };

  bool waitForLook(int lock, int table, bool forDisc);
  void give(const Order& order, PlayState state, int frame);

  // The owner thread's.
  void run();
  void lookAtDrive();
  bool held() const;
  void tryToHold();
  void carryOut(const Order& order);
  void startStream(int from, bool afterFailure);
  void renewStream();
  bool soundIsBack();
  void dropStream();
  void readAhead(size_t enough);
  bool nextRun();
  void readFrames(int frame, int count, int16_t* samples);
  void silence(int frames, int16_t* samples);
  void tend();
  void endWhenHeard();
  int heardFrame() const;  ///< with mutex_ held
  std::chrono::milliseconds nap() const;

  // SampleFeed, the output's thread.
  size_t pull(int16_t* pairs, size_t count) override {
    const size_t got = ring_.read(pairs, count);
    level_.apply(pairs, got);
    return got;
  }
  size_t again(int16_t* pairs, size_t count) override {
    const size_t got = ring_.again(pairs, count);
    level_.apply(pairs, got);
    return got;
  }
  bool finished() const override { return readAll_; }

  DiscSource& source_;
  SoundOutputs& outputs_;
  SampleRing ring_;
  Level level_;
  std::vector<int16_t> scratch_;
  std::atomic<bool> readAll_{false};
  std::atomic<int> skipped_{0};

  // Owner thread alone.
  int next_ = 0;    ///< frame to be read next
  int runEnd_ = 0;  ///< of the audio run that next_ lies in
  int playTo_ = 0;
  uint64_t produced_ = 0;  ///< pairs put in the ring
  int skipAhead_ = 0;      ///< frames given up at the last failed read
  int skipLeft_ = 0;       ///< of them still to come
  int failedInARow_ = 0;
  std::chrono::steady_clock::time_point lastLook_;
  std::chrono::steady_clock::time_point lastTry_;  ///< to have sound again

  mutable std::mutex mutex_;  ///< over everything below; held for moments only
  std::condition_variable wake_;
  std::condition_variable known_;
  std::deque<Order> orders_;
  bool quit_ = false;
  bool finished_ = false;
  bool looked_ = false;    ///< at the drive, once at least
  bool heldBack_ = false;  ///< the disc that is in was waited for in vain
  std::optional<std::chrono::steady_clock::time_point> heldSince_;
  TrayOffer answer_;
  std::string notice_;
  bool busy_ = false;  ///< an order is being carried out: shown_ holds what it will come to
  PlayState shownState_ = PlayState::Stopped;
  int shownFrame_ = kFirstFrame;
  int shownEnd_ = kFirstFrame;
  std::unique_ptr<SoundOutput> output_;
  const char* road_ = "";
  std::vector<Span> spans_;
  Holder holder_ = Holder::Unknown;
  DriveStatus status_ = DriveStatus::NotReady;
  Toc toc_;
  std::string entry_;
  SheetTexts texts_;
  std::string missing_;
  std::string sheet_;
  bool failure_ = false;

  std::thread thread_;  ///< last: it runs on all of the above
};

}  // namespace orvanta
