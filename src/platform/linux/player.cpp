// The player's two sides: orders and answers on the core's thread, reading and streams on its own.
#include "platform/linux/player.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "base/log.h"

namespace orvanta {

using std::chrono::milliseconds;

namespace {

constexpr size_t kRingPairs = size_t{2} * kSampleRate;
constexpr int kReadFrames = 25;  ///< a third of a second at a time
constexpr int kFirstFrames = 8;
constexpr size_t kFirstFill = size_t{kFirstFrames} * kSamplesPerFrame;
constexpr milliseconds kLockTime{2000};
constexpr milliseconds kLookTime{300};
constexpr milliseconds kIdleNap{1000};
constexpr milliseconds kPlayNap{400};
constexpr int kMaxSkip = kFramesPerSecond;
constexpr int kGiveUp = 10 * kFramesPerSecond;  ///< frames that failed in a row: the drive is gone

}  // namespace

Player::Player(DiscSource& source, SoundOutputs& outputs)
    : source_(source), outputs_(outputs), ring_(kRingPairs), scratch_(size_t{kReadFrames} * kShortsPerFrame), thread_([this] { run(); }) {}

Player::~Player() {
  finish(0);
  thread_.join();
}

bool Player::finish(int wait) {
  std::unique_lock lock(mutex_);
  quit_ = true;
  wake_.notify_all();
  return known_.wait_for(lock, milliseconds(wait), [this] { return finished_; });
}

void Player::waitUntilKnown(int wait) {
  std::unique_lock lock(mutex_);
  known_.wait_for(lock, milliseconds(wait), [this] { return holder_ != Holder::Unknown; });
  known_.wait_for(lock, kLookTime, [this] { return looked_ || holder_ != Holder::Us; });
}

int Player::playEnd() const {
  const std::lock_guard lock(mutex_);
  return shownEnd_;
}

bool Player::settled() const {
  const std::lock_guard lock(mutex_);
  return orders_.empty() && !busy_;
}

Holder Player::holder() const {
  const std::lock_guard lock(mutex_);
  return holder_;
}

Toc Player::toc() const {
  const std::lock_guard lock(mutex_);
  return toc_;
}

std::string Player::firstEntry() const {
  const std::lock_guard lock(mutex_);
  return entry_;
}

SheetTexts Player::texts() const {
  const std::lock_guard lock(mutex_);
  return texts_;
}

PlayState Player::state() const {
  const std::lock_guard lock(mutex_);
  return shownState_;
}

int Player::frame() const {
  const std::lock_guard lock(mutex_);
  return busy_ || !orders_.empty() || !output_ ? shownFrame_ : heardFrame();
}

bool Player::takeFailure() {
  const std::lock_guard lock(mutex_);
  return std::exchange(failure_, false);
}

int Player::heardFrame() const {
  const uint64_t heard = output_->heard();
  auto span = std::find_if(spans_.rbegin(), spans_.rend(), [&](const Span& s) { return s.sample <= heard; });
  if (span == spans_.rend()) return shownFrame_;
  return span->frame + static_cast<int>((heard - span->sample) / kSamplesPerFrame);
}

void Player::give(const Order& order, PlayState state, int frame) {
  static constexpr const char* kWords[] = {"play", "pause", "resume", "stop", "seek", "eject", "offer", "close"};
  if (logs("sound")) logLine("sound", std::string(kWords[static_cast<int>(order.kind)]) + " at frame " + std::to_string(frame));
  {
    const std::lock_guard lock(mutex_);
    // Only the last of several orders that stop or start sound matters.
    const auto ofTray = [](const Order& one) { return one.kind >= Order::Kind::Eject; };
    if (order.kind != Order::Kind::Pause && order.kind != Order::Kind::Resume && !ofTray(order)) {
      std::erase_if(orders_, [&](const Order& waiting) { return !ofTray(waiting); });
    }
    orders_.push_back(order);
    shownState_ = state;
    shownFrame_ = frame;
    if (order.kind == Order::Kind::Play) shownEnd_ = order.to;
  }
  wake_.notify_all();
}

void Player::play(int from, int to) { give({Order::Kind::Play, from, to}, PlayState::Playing, from); }
void Player::pause() { give({Order::Kind::Pause}, PlayState::Paused, frame()); }
void Player::resume() { give({Order::Kind::Resume}, PlayState::Playing, frame()); }
void Player::stop() { give({Order::Kind::Stop}, PlayState::Stopped, frame()); }
void Player::seek(int frame) { give({Order::Kind::Seek, frame}, PlayState::Stopped, frame); }

void Player::eject() {
  {
    const std::lock_guard lock(mutex_);
    toc_ = {};
    entry_.clear();
    texts_ = {};
  }
  give({Order::Kind::Eject}, PlayState::Stopped, kFirstFrame);
}

void Player::offer(const std::string& imagePath) {
  const PlayState state = this->state();
  give({Order::Kind::Offer, 0, 0, imagePath}, state, frame());
}

TrayOffer Player::takeAnswer() {
  const std::lock_guard lock(mutex_);
  return std::exchange(answer_, TrayOffer{});
}

void Player::closeTray() { give({Order::Kind::CloseTray}, PlayState::Stopped, kFirstFrame); }

// ---- the owner thread

void Player::run() {
  const auto start = std::chrono::steady_clock::now();
  std::unique_lock lock(mutex_);
  while (!quit_) {
    if (orders_.empty()) {
      lock.unlock();
      if (holder_ == Holder::Us) {
        tend();
      } else {
        tryToHold(std::chrono::steady_clock::now() - start > kLockTime);
      }
      lock.lock();
      wake_.wait_for(lock, nap(), [this] { return quit_ || !orders_.empty(); });
      continue;
    }
    const Order order = orders_.front();
    orders_.pop_front();
    busy_ = true;
    lock.unlock();
    carryOut(order);
    lock.lock();
    busy_ = false;
  }
  lock.unlock();
  dropStream();
  lock.lock();
  finished_ = true;
  known_.notify_all();
}

void Player::tryToHold(bool tooLate) {
  const bool ours = source_.lock();
  if (!ours && !tooLate) return;
  {
    const std::lock_guard lock(mutex_);
    holder_ = ours ? Holder::Us : Holder::Other;
  }
  known_.notify_all();
  if (ours) lookAtDrive();
}

milliseconds Player::nap() const {
  if (holder_ != Holder::Us) return holder_ == Holder::Unknown ? milliseconds(20) : kIdleNap;
  if (!output_ || shownState_ != PlayState::Playing) return kIdleNap;
  if (!output_->paced()) return milliseconds(1);
  if (!readAll_) return kPlayNap;
  const uint64_t heard = output_->heard();
  const uint64_t left = produced_ > heard ? produced_ - heard : 0;
  return std::clamp(milliseconds(left * 1000 / kSampleRate + 1), milliseconds(1), kPlayNap);
}

void Player::lookAtDrive() {
  const DriveStatus status = source_.poll();
  lastLook_ = std::chrono::steady_clock::now();
  const std::lock_guard lock(mutex_);
  looked_ = true;
  known_.notify_all();
  // While a disc is being ejected it is gone already.
  const bool ejecting = std::any_of(orders_.begin(), orders_.end(), [](const Order& order) { return order.kind == Order::Kind::Eject; });
  if (ejecting || (status == status_ && status == DriveStatus::Disc && source_.toc() == toc_)) return;
  status_ = status;
  toc_ = status == DriveStatus::Disc ? source_.toc() : Toc{};
  entry_ = status == DriveStatus::Disc ? source_.firstEntry() : "";
  texts_ = status == DriveStatus::Disc ? source_.texts() : SheetTexts{};
  if (toc_.tracks.empty()) {
    shownState_ = PlayState::Stopped;
  } else if (!output_) {
    shownFrame_ = std::clamp(shownFrame_, toc_.startOf(1), toc_.leadOut);
  }
}

void Player::carryOut(const Order& order) {
  switch (order.kind) {
    case Order::Kind::Play:
      playTo_ = order.to;
      startStream(order.from, false);
      break;
    case Order::Kind::Pause:
      if (output_) output_->pause();
      break;
    case Order::Kind::Resume:
      if (output_) output_->resume();
      break;
    case Order::Kind::Stop:
    case Order::Kind::Seek: dropStream(); break;
    case Order::Kind::Eject:
      dropStream();
      source_.openTray();
      lookAtDrive();
      break;
    case Order::Kind::Offer: {
      TrayOffer answer;
      answer.refusal = source_.accept(order.path);
      answer.answer = answer.refusal.empty() ? TrayOffer::Answer::Accepted : TrayOffer::Answer::Refused;
      const std::lock_guard lock(mutex_);
      answer_ = answer;
      break;
    }
    case Order::Kind::CloseTray:
      source_.closeTray();
      lookAtDrive();
      break;
  }
}

/// The place that was heard last stays in shownFrame_: who ends a stream has put it there.
void Player::dropStream() {
  std::unique_ptr<SoundOutput> old;
  {
    const std::lock_guard lock(mutex_);
    old = std::move(output_);
  }
  old.reset();
  ring_.clear();
}

void Player::startStream(int from, bool afterFailure) {
  dropStream();
  if (logs("sound")) logLine("sound", "stream from frame " + std::to_string(from) + (afterFailure ? " after a failure" : ""));
  next_ = runEnd_ = from;
  produced_ = 0;
  readAll_ = false;
  skipAhead_ = skipLeft_ = failedInARow_ = 0;
  {
    const std::lock_guard lock(mutex_);
    spans_.clear();
  }
  readAhead(kFirstFill);
  std::unique_ptr<SoundOutput> output = outputs_.make(*this, afterFailure);
  const std::lock_guard lock(mutex_);
  if (afterFailure && shownState_ == PlayState::Paused) output->pause();
  output_ = std::move(output);
}

/// Goes to the next stretch of sound before playTo_, past data tracks. False: there is none.
bool Player::nextRun() {
  const Toc toc = this->toc();
  int number = toc.trackAt(next_);
  while (toc.has(number) && (toc.isData(number) || next_ >= toc.soundEnd(number))) {
    ++number;
    if (toc.has(number)) next_ = toc.startOf(number);
  }
  if (!toc.has(number) || next_ >= playTo_) return false;
  while (toc.has(number + 1) && !toc.isData(number + 1)) ++number;
  runEnd_ = std::min(playTo_, toc.soundEnd(number));
  const std::lock_guard lock(mutex_);
  spans_.push_back({produced_, next_});
  return next_ < runEnd_;
}

/// Fills the ring up to `enough` pairs, or to the end of what is to be played.
void Player::readAhead(size_t enough) {
  while (!readAll_ && ring_.filled() < enough && ring_.space() >= size_t{kReadFrames} * kSamplesPerFrame) {
    if (next_ >= runEnd_ && !nextRun()) {
      readAll_ = true;
      return;
    }
    // Little at first, so that sound begins at once.
    const int count = std::min(produced_ == 0 ? kFirstFrames : kReadFrames, runEnd_ - next_);
    readFrames(next_, count, scratch_.data());
    next_ += count;
    produced_ += ring_.write(scratch_.data(), static_cast<size_t>(count) * kSamplesPerFrame);
  }
}

/// A read that fails is halved, down to one frame. What cannot be had is silence, and the next
/// frames with it: twice as many each time, up to a second, so that a scratch is soon passed.
void Player::readFrames(int frame, int count, int16_t* samples) {
  const int silent = std::min(skipLeft_, count);
  if (silent > 0) {
    skipLeft_ -= silent;
    silence(silent, samples);
    if (silent < count) readFrames(frame + silent, count - silent, samples + ptrdiff_t{silent} * kShortsPerFrame);
  } else if (source_.read(frame, count, samples)) {
    skipAhead_ = failedInARow_ = 0;
  } else if (count > 1) {
    const int half = count / 2;
    readFrames(frame, half, samples);
    readFrames(frame + half, count - half, samples + ptrdiff_t{half} * kShortsPerFrame);
  } else {
    skipAhead_ = std::clamp(skipAhead_ * 2, 1, kMaxSkip);
    skipLeft_ = skipAhead_ - 1;
    silence(1, samples);
  }
}

void Player::silence(int frames, int16_t* samples) {
  std::fill_n(samples, ptrdiff_t{frames} * kShortsPerFrame, int16_t{0});
  skipped_ += frames;
  failedInARow_ += frames;
}

/// What there is to do between orders: read on, notice the end, a dead sound server or drive.
void Player::tend() {
  if (!output_) {
    lookAtDrive();
  } else if (output_->failed()) {
    {
      const std::lock_guard lock(mutex_);
      shownFrame_ = heardFrame();
      busy_ = true;
    }
    startStream(shownFrame_, true);
    const std::lock_guard lock(mutex_);
    busy_ = false;
  } else {
    readAhead(ring_.capacity());
    endWhenHeard();
    if (std::chrono::steady_clock::now() - lastLook_ < kIdleNap) return;
    // A disc pulled out while it plays.
    lookAtDrive();
    if (toc_.tracks.empty()) dropStream();
  }
}

void Player::endWhenHeard() {
  const bool broken = failedInARow_ > kGiveUp;
  {
    const std::lock_guard lock(mutex_);
    const bool over = readAll_ && output_->heard() >= produced_;
    if (!orders_.empty() || shownState_ != PlayState::Playing || !(over || broken)) return;
    shownFrame_ = heardFrame();
    shownState_ = PlayState::Stopped;
    failure_ = broken;
  }
  dropStream();
}

}  // namespace orvanta
