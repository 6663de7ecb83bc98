// Looking for discs once a second or so: a new one is another process.
#include "playback/disc_watch.h"

#include "base/text.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/screen.h"
#include "playback/upward.h"

namespace orvanta {

DiscWatch::DiscWatch(const PlaybackPorts& ports, const TickParts& parts, CDForm& form, SharedState& state, PlaybackUpward& upward)
    : clock_(ports.clock), device_(ports.device), screen_(ports.screen), on_(parts), form_(form), state_(state), upward_(upward) {}

void DiscWatch::start() {
  timer3_ = clock_.makeTimer([this] { timer3_timer(); });
  timer3_->setInterval(kTimer3Interval);
}

void DiscWatch::timer3_timer() {
  tick();
  on_.status.tell();
  upward_.afterTick();
}

void DiscWatch::tick() {
  DiscState& disc = state_.disc;
  if (state_.process.setupWanted) {
    // Cleared first: the timer must not find it again while the setup program is open.
    state_.process.setupWanted = false;
    upward_.runSetup();
    // Nor again for a wish that came meanwhile.
    state_.process.setupWanted = false;
  }
  on_.answers.take();
  on_.modes.introTick();
  if (disc.drawerOpen) {
    drawerIsOpen();
    return;
  }
  if (disc.noDiscState != kDiscAtStart && discCameLater()) return;
  if (afterTheEnd()) return;
  disc.trackCount = device_.tracks();
  if (disc.trackCount == 0) discGone();
}

/// The way back from an open drawer: a disc that the drive can name.
void DiscWatch::drawerIsOpen() {
  if (device_.directoryEntry().empty()) {
    restartFailed_ = false;
    return;
  }
  if (restartFailed_ || upward_.restartWaits()) return;
  screen_.setPointer(Pointer::Hourglass);
  const bool shownOpen = form_.Panel3D7.visible;
  if (shownOpen) upward_.closeDrawer();
  device_.setDeviceType("CDAudio");
  device_.setNotify(0);
  device_.setWait(-1);
  device_.setShareable(0);
  device_.command("Close");
  upward_.restartForDisc();
  // Only a new process that died brings us here: go on with the drawer as it was.
  restartFailed_ = true;
  if (shownOpen) upward_.openDrawer();
  screen_.setPointer(Pointer::Normal);
}

/// The drive was not ready at the start and has a disc now. Audio takes the road of a new disc; a
/// disc of data stays where it is.
bool DiscWatch::discCameLater() {
  const std::string entry = device_.directoryEntry();
  if (entry.empty()) return false;
  if (endsWithNoCase(entry, ".CDA")) drawerIsOpen();
  return true;
}

/// The disc has ended, or was stopped at track 0. True when it was ejected for that.
bool DiscWatch::afterTheEnd() {
  if (on_.display.number() != 0) return false;
  if (state_.settings.timeMode == Time) {
    device_.command("stop");
    on_.display.clearBar();
    on_.engine.followState();
    // The small window has no mode keys: One would leave it at its track for good.
    if (state_.display.popupOpen && state_.transport.playMode == One) on_.modes.Image4_MouseUp(ContKey);
  }
  if (state_.settings.appOptions[kEjectAtEnd] != 1 || !state_.disc.discLoaded) return false;
  on_.engine.mmcontrol1_EjectClick();
  return true;
}

/// Somebody took the disc out by the drive's own button, or there was none from the start.
void DiscWatch::discGone() {
  device_.command("stop");
  device_.command("close");
  state_.transport.playingFlag = state_.transport.pausedFlag = false;
  state_.transport.pausePosition = 0;
  on_.engine.endScan();
  on_.engine.clrab();
  on_.engine.forgetAdvance();
  on_.modes.stopintro();
  on_.display.doorOpen();
  on_.display.clearTexts();
  on_.display.track(0);
  on_.display.clearTime("00:00");
  upward_.closeDiscWindows();
  // The state first: nothing that the opening door sets off may take the deck for one with a disc.
  state_.disc.drawerOpen = true;
  upward_.openDrawer();
  if (state_.disc.noDiscState != kDiscAtStart) upward_.showNoDisc();
}

}  // namespace orvanta
