// What the modes do with time: the A-B loop, Intro, the lamps.
#include <algorithm>

#include "base/text.h"
#include "base/times.h"
#include "platform/ports/clock.h"
#include "playback/modes.h"

namespace orvanta {

namespace {

constexpr int64_t kBlink = 400;  ///< milliseconds
constexpr int kUsualIntro = 7;   ///< seconds

}  // namespace

double Modes::placeOnBar() const { return form_.CDStatusBar.width * form_.CDStatusBar.floodPercent / 100.0; }

void Modes::abKey() {
  TransportState& transport = state_.transport;
  const auto& colour = state_.settings.lcdColor;
  if (form_.icntlc[Pause].visible) return;
  if (transport.abPointA > 0 && transport.abPointB > 0) {
    engine_.clrab();
    return;
  }
  if (!form_.icntlc[Play].visible) return;
  if (transport.abPointA == 0) {
    state_.display.lastShownTrack = state_.display.lastShownSec = 0;
    transport.abTrack = static_cast<int16_t>(leadingNumber(form_.Label8.caption.get()));
    transport.abPointA = placeOnBar();
    form_.Label16.foreColor = form_.Label17.foreColor = colour[kLcdLabelOn];
    lastBlink_ = clock_.milliseconds();
  } else {
    form_.Label16.foreColor = form_.Label17.foreColor = colour[kLcdLit];
    transport.abPointB = placeOnBar();
    engine_.CDStatusBar_Click(transport.abPointA);
  }
}

void Modes::abTick() {
  TransportState& transport = state_.transport;
  const auto& colour = state_.settings.lcdColor;
  if (transport.abPointB > 0) {
    if (placeOnBar() >= transport.abPointB) engine_.CDStatusBar_Click(transport.abPointA);
    return;
  }
  if (transport.abPointA <= 0) return;
  if (clock_.milliseconds() - lastBlink_ >= kBlink) {
    lastBlink_ = clock_.milliseconds();
    form_.Label16.foreColor = colour[form_.Label16.foreColor == colour[kLcdLabelOn] ? kLcdLabelOff : kLcdLabelOn];
    form_.Label17.foreColor = form_.Label16.foreColor;
  }
  const std::string& time = form_.Label10.caption;
  const bool anew = time.size() >= 4 && time.substr(time.size() - 4) == "0:00";
  if (static_cast<int16_t>(leadingNumber(form_.Label8.caption.get())) != transport.abTrack || anew) engine_.clrab();
}

void Modes::introTick() {
  TransportState& transport = state_.transport;
  if (transport.introTrack <= 0) return;
  if (transport.introStart == 0) {
    transport.introStart = clock_.secondsToday();
    transport.selTrack = transport.curTrack < state_.disc.trackCount ? transport.curTrack : int16_t{0};
    engine_.jump();
    return;
  }
  const int option = state_.settings.appOptions[4];
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
  const auto& colour = state_.settings.lcdColor;
  const TransportState& transport = state_.transport;
  const auto& list = state_.program.pgmList;
  const int lampCount = state_.disc.lampCount;
  if (transport.playMode == Pgm) {
    for (int lamp = std::max<int>(state_.program.pgmIndex, 1); lamp <= lampCount; ++lamp) {
      auto& label = form_.Label22[static_cast<size_t>(lamp - 1)];
      const bool listed = std::find(list.begin() + 1, list.begin() + 101, lamp) != list.begin() + 101;
      if (listed && label.foreColor == colour[kLcdDim]) label.foreColor = colour[kLcdLit];
    }
    return;
  }
  const bool whole = state_.disc.discStarted == kOff || state_.settings.repeatOn == kOn;
  const int shown = whole ? 1 : std::max(1, static_cast<int>(leadingNumber(form_.Label8.caption.get())));
  for (int lamp = 1; lamp <= 20; ++lamp) {
    auto& label = form_.Label22[static_cast<size_t>(lamp - 1)];
    if (transport.playMode == One) {
      label.foreColor = colour[lamp == transport.curTrack ? kLcdLitInCont : kLcdDim];
    } else if (shown > 20 || lamp < shown) {
      label.foreColor = colour[kLcdDim];
    } else if (lamp <= lampCount) {
      label.foreColor = colour[kLcdLitInCont];
    }
  }
}

}  // namespace orvanta
