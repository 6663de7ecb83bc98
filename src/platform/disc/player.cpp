// The player as the core's thread sees it: orders and answers. Its own thread is in player_thread.cpp.
#include "platform/disc/player.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "base/log.h"

namespace orvanta {

using std::chrono::milliseconds;

namespace {

constexpr size_t kRingPairs = size_t{2} * kSampleRate;

}  // namespace

Player::Player(DiscSource& source, SoundOutputs& outputs)
    : source_(source), outputs_(outputs), ring_(kRingPairs, kMostHeldPairs), thread_([this] { run(); }) {}

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

bool Player::waitUntilKnown(int lock, int table) { return waitForLook(lock, table, false); }

bool Player::waitForDisc(int lock, int table) { return waitForLook(lock, table, true); }

bool Player::waitForLook(int lock, int table, bool forDisc) {
  std::unique_lock guard(mutex_);
  known_.wait_for(guard, milliseconds(lock), [this] { return holder_ == Holder::Us; });
  if (holder_ != Holder::Us) holder_ = Holder::Other;
  if (!heldSince_) return false;
  const bool known = known_.wait_until(guard, *heldSince_ + milliseconds(table),
                                       [&] { return looked_ && (!forDisc || status_ != DriveStatus::NotReady); });
  if (!known && forDisc) {
    heldBack_ = true;
    notice_ = "The drive has not told what is on its disc. Take the disc out, and put it in again.";
  }
  return known;
}

int Player::playEnd() const {
  const std::lock_guard lock(mutex_);
  return shownEnd_;
}

bool Player::settled() const {
  const std::lock_guard lock(mutex_);
  return orders_.empty() && !busy_;
}

void Player::relevel() {
  const std::lock_guard lock(mutex_);
  if (output_) output_->relevel();
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

std::string Player::sheet() const {
  const std::lock_guard lock(mutex_);
  return sheet_;
}

bool Player::soundless() const {
  const std::lock_guard lock(mutex_);
  return output_ && output_->toNobody();
}

std::string Player::soundRoad() const {
  const std::lock_guard lock(mutex_);
  return road_;
}

std::string Player::missingDrive() const {
  const std::lock_guard lock(mutex_);
  return missing_;
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
  if (answer_.answer == TrayOffer::Answer::None && !notice_.empty()) {
    return {TrayOffer::Answer::Notice, std::exchange(notice_, {})};
  }
  return std::exchange(answer_, TrayOffer{});
}

void Player::closeTray() { give({Order::Kind::CloseTray}, PlayState::Stopped, kFirstFrame); }

}  // namespace orvanta
