// The list of everything; a click on one of its tracks plays it.
#include "library/cd_info.h"

#include "base/text.h"
#include "library/list_looks.h"
#include "library/list_text.h"
#include "library/placing.h"
#include "library/upward.h"
#include "platform/ports/screen.h"

namespace orvanta {

namespace {

constexpr int kInfoHelp = 15;
constexpr int kGap = 20;  ///< twips below the faceplate
constexpr int kLeastHeight = 900;
constexpr int kLowHeight = 2500;  ///< where the faceplate stands too low for a window under it

}  // namespace

CdInfo::CdInfo(const LibraryPorts& ports, Engine& engine, Modes& modes, cdartext& form, CDForm& faceplate, SharedState& state,
               LibraryUpward& upward)
    : ports_(ports), engine_(engine), modes_(modes), form_(form), faceplate_(faceplate), state_(state), upward_(upward) {
  form.setEvents(this);
}

void CdInfo::open() {
  form_.show(ports_.desktop);
  if (faceplate_.view() != nullptr) faceplate_.view()->raise();
}

void CdInfo::load() {
  place();
  dressList(form_.List1, state_.settings);
  fill();
}

void CdInfo::fill() {
  const DiscState& disc = state_.disc;
  const std::string artist(trim(disc.discArtist));
  form_.caption = artist.empty() ? std::string("CD Info") : "CD Info  [" + artist + " - " + disc.discTitle + "]";
  fillCdInfoList(form_.List1, state_.disc, state_.library);
}

void CdInfo::showTexts() {
  if (form_.loaded()) fill();
}

void CdInfo::place() {
  const int width = ports_.screen.widthTwips();
  const int height = ports_.screen.heightTwips();
  const int bottom = faceplate_.top + faceplate_.height;
  form_.left = width - form_.width;
  form_.top = bottom + kGap;
  form_.height = height - bottom;
  if (form_.top + kLeastHeight < height) return;
  form_.height = kLowHeight;
  const forms::Place window =
      besideDeck(placeOf(form_), placeOf(faceplate_), {0, 0, width, height}, {Side::Above, Side::Right, Side::Left, Side::Below});
  form_.left = window.left;
  form_.top = window.top;
}

void CdInfo::mouseUp(forms::Control* /*control*/, const forms::Mouse& mouse) {
  if (mouse.button == forms::MouseButton::Right) close();
}

void CdInfo::click(forms::Control& control) {
  const int row = form_.List1.listIndex();
  if (&control != &form_.List1 || state_.transport.playMode == Pgm || row < 0 || row >= state_.disc.trackCount) return;
  modes_.stopintro();
  state_.transport.selTrack = static_cast<int16_t>(row);
  engine_.clrab();
  engine_.jump();
  if (faceplate_.view() != nullptr) faceplate_.view()->raise();
}

bool CdInfo::keyDown(const forms::KeyPress& key) {
  if (key.code == forms::key::kEscape) {
    close();
  } else if (key.code == forms::key::kF1 || key.code == forms::key::kHelp) {
    upward_.showHelp(kInfoHelp);
  } else {
    return false;
  }
  return true;
}

}  // namespace orvanta
