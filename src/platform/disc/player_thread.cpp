// The player's own thread: it holds the drive, reads ahead, starts and ends streams.
#include <algorithm>
#include <chrono>
#include <utility>

#include "base/log.h"
#include "platform/disc/player.h"

namespace orvanta {

using std::chrono::milliseconds;
using SteadyClock = std::chrono::steady_clock;

namespace {

constexpr int kReadFrames = 25;  ///< a third of a second at a time
constexpr int kFirstFrames = 8;
constexpr size_t kFirstFill = size_t{kFirstFrames} * kSamplesPerFrame;
constexpr milliseconds kIdleNap{1000};
constexpr milliseconds kPlayNap{400};
constexpr milliseconds kSoundTry{1000};  ///< between two tries to have sound again
constexpr int kMaxSkip = kFramesPerSecond;
constexpr int kGiveUp = 10 * kFramesPerSecond;  ///< frames that failed in a row: the drive is gone

}  // namespace

void Player::run() {
  scratch_.resize(size_t{kReadFrames} * kShortsPerFrame);
  std::unique_lock lock(mutex_);
  while (!quit_) {
    if (orders_.empty()) {
      lock.unlock();
      if (held()) {
        tend();
      } else {
        tryToHold();
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

bool Player::held() const {
  const std::lock_guard lock(mutex_);
  return holder_ == Holder::Us;
}

/// One try after the other for as long as the player lives: whoever waits for the drive says when that is too long.
void Player::tryToHold() {
  if (!source_.lock()) return;
  {
    const std::lock_guard lock(mutex_);
    holder_ = Holder::Us;
    heldSince_ = SteadyClock::now();
  }
  known_.notify_all();
  if (logs("sound")) logLine("sound", "holds the drive");
  lookAtDrive();
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
  DriveStatus status = source_.poll();
  lastLook_ = SteadyClock::now();
  std::string notice = source_.takeNotice();
  std::string missing = source_.missing();
  std::string sheet = source_.sheet();
  const std::lock_guard lock(mutex_);
  looked_ = true;
  missing_ = std::move(missing);
  sheet_ = std::move(sheet);
  if (!notice.empty()) notice_ = std::move(notice);
  heldBack_ = heldBack_ && (status == DriveStatus::Disc || status == DriveStatus::NotReady);
  if (heldBack_) status = DriveStatus::NotReady;
  // While a disc is being ejected it is gone already.
  const bool ejecting = std::any_of(orders_.begin(), orders_.end(), [](const Order& order) { return order.kind == Order::Kind::Eject; });
  if (ejecting || (status == status_ && status == DriveStatus::Disc && source_.toc() == toc_)) return known_.notify_all();
  status_ = status;
  toc_ = status == DriveStatus::Disc ? source_.toc() : Toc{};
  entry_ = status == DriveStatus::Disc ? source_.firstEntry() : "";
  texts_ = status == DriveStatus::Disc ? source_.texts() : SheetTexts{};
  if (toc_.tracks.empty()) {
    shownState_ = PlayState::Stopped;
  } else if (!output_) {
    shownFrame_ = std::clamp(shownFrame_, toc_.startOf(1), toc_.leadOut);
  }
  known_.notify_all();
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
  road_ = output_->road();
  lastTry_ = SteadyClock::now();
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
  } else if (output_->failed() || soundIsBack()) {
    renewStream();
  } else {
    readAhead(ring_.capacity());
    endWhenHeard();
    if (SteadyClock::now() - lastLook_ < kIdleNap) return;
    // A disc pulled out while it plays.
    lookAtDrive();
    if (toc().tracks.empty()) dropStream();
  }
}

/// While it plays to nobody, a look now and then whether somebody could hear it.
bool Player::soundIsBack() {
  if (!output_->toNobody() || state() != PlayState::Playing || SteadyClock::now() - lastTry_ < kSoundTry) return false;
  const bool back = outputs_.canSound();
  lastTry_ = SteadyClock::now();
  return back;
}

/// A new stream goes on where the old one was heard last.
void Player::renewStream() {
  int from = 0;
  {
    const std::lock_guard lock(mutex_);
    from = shownFrame_ = heardFrame();
    busy_ = true;
  }
  startStream(from, true);
  const std::lock_guard lock(mutex_);
  busy_ = false;
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
    if (logs("sound")) logLine("sound", "ended at frame " + std::to_string(shownFrame_));
  }
  dropStream();
}

}  // namespace orvanta
