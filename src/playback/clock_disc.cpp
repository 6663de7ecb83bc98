// The clock's slower side: auto-start, setup, and discs that come and go.
#include <utility>

#include "base/text.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/disc_tray.h"
#include "platform/ports/screen.h"
#include "playback/clock.h"
#include "playback/tracks.h"
#include "playback/upward.h"

namespace orvanta {

/// An image was put on the deck: with another disc still in, the tray opens for it first. One that
/// cannot be played leaves everything as it was.
void PlaybackClock::answerOffer() {
  const TrayOffer offer = tray_.takeAnswer();
  if (offer.answer == TrayOffer::Answer::Refused || offer.answer == TrayOffer::Answer::Notice) {
    refusal_ = offer.refusal;
    refusalBox_->setInterval(1);
  } else if (offer.answer == TrayOffer::Answer::Accepted) {
    if (state_.disc.drawerOpen == kOff) {
      state_.process.playNext = state_.transport.playingFlag;
      engine_.mmcontrol1_EjectClick();
    }
    tray_.close();
  }
}

void PlaybackClock::tellRefusal() {
  refusalBox_->setInterval(0);
  const std::string refusal = std::exchange(refusal_, {});
  dialogs_.message(BoxStyle::Warning, "Orvanta", refusal);
  // Another one was refused while the box was open.
  if (!refusal_.empty()) refusalBox_->setInterval(1);
}

void PlaybackClock::autoStart() {
  ProcessState& process = state_.process;
  if (process.commandWord == "RUNRIPPER") {
    form_.minimised = false;
    screen_.setPointer(Pointer::Normal);
    process.autoStartDone = kOn;
    process.commandWord.clear();
    buttons_.icntla_MouseDown(Record);
    buttons_.icntla_MouseUp(Record);
    return;
  }
  process.autoStartDone = kOn;
  if (state_.program.pgmStored == kOn) {
    modes_.Label30_Click();
    return;
  }
  state_.transport.curTrack = firstTrack(state_.disc);
  engine_.playKey();
  if (process.commandWord == "ORVLITE") {
    form_.minimised = true;
    screen_.setPointer(Pointer::Normal);
    process.commandWord.clear();
  }
}

void PlaybackClock::timer3_timer() {
  DiscState& disc = state_.disc;
  upward_.everyTick();
  if (state_.process.setupWanted == kOn) {
    // Cleared first: the timer must not find it again while the setup program is open.
    state_.process.setupWanted = kOff;
    upward_.runSetup();
  }
  answerOffer();
  modes_.introTick();
  if (disc.drawerOpen == kOn) {
    drawerIsOpen();
    return;
  }
  if (disc.noDiscState > 1 && discCameLater()) return;
  if (afterTheEnd()) return;
  disc.trackCount = device_.tracks();
  if (disc.trackCount == 0) discGone();
}

/// The way back from an open drawer: a disc that the drive can name.
void PlaybackClock::drawerIsOpen() {
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
bool PlaybackClock::discCameLater() {
  const std::string entry = device_.directoryEntry();
  if (entry.empty()) return false;
  if (endsWithNoCase(entry, ".CDA")) drawerIsOpen();
  return true;
}

/// The disc has ended, or was stopped at track 0. True when it was ejected for that.
bool PlaybackClock::afterTheEnd() {
  if (display_.number() != 0) return false;
  if (state_.settings.timeMode == Time) {
    device_.command("stop");
    display_.clearBar();
    engine_.followState();
    // The small window has no mode keys: One would leave it at its track for good.
    if (state_.display.popupOpen == kOn && state_.transport.playMode == One) modes_.Image4_MouseUp(ContKey);
  }
  if (state_.settings.appOptions[1] != 1 || state_.disc.discLoaded != kOn) return false;
  engine_.mmcontrol1_EjectClick();
  return true;
}

/// Somebody took the disc out by the drive's own button, or there was none from the start.
void PlaybackClock::discGone() {
  device_.command("stop");
  device_.command("close");
  state_.transport.playingFlag = state_.transport.pausedFlag = kOff;
  state_.transport.pausePosition = 0;
  engine_.endScan();
  engine_.clrab();
  engine_.forgetAdvance();
  modes_.stopintro();
  display_.doorOpen();
  display_.clearTexts();
  display_.track(0);
  display_.clearTime("00:00");
  upward_.closeDiscWindows();
  // The state first: nothing that the opening door sets off may take the deck for one with a disc.
  state_.disc.drawerOpen = kOn;
  upward_.openDrawer();
  if (state_.disc.noDiscState > 0) upward_.showNoDisc();
}

}  // namespace orvanta
