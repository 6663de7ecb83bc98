// What the modes do with time: the A-B loop, Intro, the lamps.
#include <algorithm>

#include "base/times.h"
#include "platform/ports/clock.h"
#include "playback/modes.h"
#include "playback/tracks.h"

namespace orvanta {

namespace {

constexpr int64_t kBlink = 400;  ///< milliseconds
constexpr int kUsualIntro = 7;   ///< seconds

}  // namespace

double Modes::placeOnBar() const { return form_.CDStatusBar.width * form_.CDStatusBar.floodPercent / 100.0; }

void Modes::abKey() {
  const TransportState& transport = state_.transport;
  engine_.settle();
  if (transport.pausedFlag) return;
  if (transport.abSetB) {
    engine_.clrab();
  } else if (transport.playingFlag) {
    if (transport.abSetA) {
      setB();
    } else {
      setA();
    }
  }
}

void Modes::setA() {
  TransportState& transport = state_.transport;
  state_.display.lastShownTrack = state_.display.lastShownSec = 0;
  transport.abTrack = display_.number();
  transport.abPointA = placeOnBar();
  transport.abSetA = true;
  display_.ab(state_.settings.lcdColor[kLcdLabelOn]);
  looks_.abLegend(display_.ab());
  lastBlink_ = clock_.milliseconds();
}

/// A loop that would land at its own end, or behind it, never came round: it is given up.
void Modes::setB() {
  TransportState& transport = state_.transport;
  if (form_.CDStatusBar.floodPercent <= engine_.landing(transport.abTrack, transport.abPointA)) {
    engine_.clrab();
    return;
  }
  transport.abSetB = true;
  transport.abPointB = placeOnBar();
  display_.ab(state_.settings.lcdColor[kLcdLit]);
  looks_.abLegend(display_.ab());
  abReturn();
}

/// In the last seconds of a track the count may be at the next one already: the loop stays in its own.
void Modes::abReturn() {
  state_.transport.curTrack = state_.transport.abTrack;
  engine_.CDStatusBar_Click(state_.transport.abPointA);
}

void Modes::abBlink() {
  if (clock_.milliseconds() - lastBlink_ < kBlink) return;
  const auto& colour = state_.settings.lcdColor;
  lastBlink_ = clock_.milliseconds();
  display_.ab(colour[display_.ab() == colour[kLcdLabelOn] ? kLcdLabelOff : kLcdLabelOn]);
  looks_.abLegend(display_.ab());
}

void Modes::abTick() {
  const TransportState& transport = state_.transport;
  if (!transport.abSetA) return;
  if (display_.number() != transport.abTrack) {
    engine_.clrab();
  } else if (!transport.playingFlag) {
    return;
  } else if (!transport.abSetB) {
    abBlink();
  } else if (placeOnBar() >= transport.abPointB) {
    abReturn();
  }
}

void Modes::introTick() {
  TransportState& transport = state_.transport;
  if (transport.introTrack <= 0) return;
  if (transport.introStart == 0) {
    transport.introStart = clock_.secondsToday();
    // The one after the current track; past the last it goes round.
    transport.selTrack = static_cast<int16_t>(playable(state_.disc, transport.curTrack + 1) - 1);
    engine_.jump();
    return;
  }
  const int option = state_.settings.appOptions[kIntroLength];
  int limit = option < 2 || option > 30 ? kUsualIntro : option;
  const auto track = static_cast<size_t>(std::clamp<int16_t>(transport.curTrack, 0, 101));
  state_.display.elapsedSec = secondsOf(state_.disc.trackLengths[track]);
  if (state_.display.elapsedSec < limit) limit = static_cast<int>(state_.display.elapsedSec);
  if (static_cast<int>(secondsBetween(transport.introStart, clock_.secondsToday())) > limit) {
    transport.introTrack = transport.introTrack + 1 > state_.disc.trackCount ? int16_t{1} : static_cast<int16_t>(transport.introTrack + 1);
    transport.introStart = 0;
  }
}

/// Pgm shows what is in the program, One the track that plays, Cont what is still to come; a disc just read, or
/// one that repeats, is lit whole.
void Modes::lampTick() {
  const TransportState& transport = state_.transport;
  const auto& list = state_.program.pgmList;
  const int lampCount = state_.disc.lampCount;
  if (transport.playMode == Pgm) {
    for (int lamp = std::max<int>(state_.program.pgmIndex, 1); lamp <= lampCount; ++lamp) {
      const bool listed = std::find(list.begin() + 1, list.begin() + 101, lamp) != list.begin() + 101;
      if (listed && display_.lampDim(lamp)) display_.lamp(lamp, kLcdLit);
    }
    return;
  }
  const bool whole = !state_.disc.discStarted || state_.settings.repeatOn == kOn;
  const int shown = whole ? 1 : std::max<int>(1, display_.number());
  for (int lamp = 1; lamp <= 20; ++lamp) {
    if (transport.playMode == One) {
      display_.lamp(lamp, lamp == transport.curTrack ? kLcdLitInCont : kLcdDim);
    } else if (shown > 20 || lamp < shown) {
      display_.lamp(lamp, kLcdDim);
    } else if (lamp <= lampCount) {
      display_.lamp(lamp, kLcdLitInCont);
    }
  }
}

}  // namespace orvanta
