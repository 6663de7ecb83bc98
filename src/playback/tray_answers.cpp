// An image was put on the deck: with another disc still in, the tray opens for it first. One that cannot be
// played leaves everything as it was.
#include "playback/tray_answers.h"

#include <utility>

#include "platform/ports/dialogs.h"
#include "platform/ports/disc_tray.h"

namespace orvanta {

TrayAnswers::TrayAnswers(const PlaybackPorts& ports, Engine& engine, SharedState& state)
    : tray_(ports.tray), dialogs_(ports.dialogs), engine_(engine), state_(state), box_(ports.clock.makeTimer([this] { tellRefusal(); })) {}

void TrayAnswers::take() {
  const TrayOffer offer = tray_.takeAnswer();
  if (offer.answer == TrayOffer::Answer::Refused || offer.answer == TrayOffer::Answer::Notice) {
    if (offer.answer == TrayOffer::Answer::Refused) state_.process.nextWords.clear();
    refusal_ = offer.refusal;
    box_->setInterval(1);
  } else if (offer.answer == TrayOffer::Answer::Accepted) {
    if (!state_.disc.drawerOpen) {
      state_.process.playNext = state_.transport.playingFlag;
      engine_.mmcontrol1_EjectClick();
    }
    tray_.close();
  }
}

void TrayAnswers::tellRefusal() {
  box_->setInterval(0);
  const std::string refusal = std::exchange(refusal_, {});
  dialogs_.message(BoxStyle::Warning, "Orvanta", refusal);
  // Another one was refused while the box was open.
  if (!refusal_.empty()) box_->setInterval(1);
}

}  // namespace orvanta
