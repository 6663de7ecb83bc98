// Two digits and ENTER.
#include "faceplate/track_entry.h"

#include "base/text.h"

namespace orvanta {

bool TrackEntry::keyDown(const forms::KeyPress& key) {
  const std::string text = form_.Text1.caption;
  if (key.code >= '0' && key.code <= '9' && text.size() < 2) {
    form_.Text1.caption = text + static_cast<char>(key.code);
  } else if (key.code == forms::key::kBackspace) {
    form_.Text1.caption = text.substr(0, text.empty() ? 0 : text.size() - 1);
  } else if (key.code == forms::key::kEscape) {
    close();
  } else if (key.code == forms::key::kEnter) {
    take();
  }
  return true;
}

void TrackEntry::take() {
  const int track = static_cast<int>(leadingNumber(form_.Text1.caption.get()));
  close();
  if (state_.disc.asleep() || track < 21 || track > state_.disc.trackCount) return;
  buttons_.jumpTo(track);
  if (state_.settings.repeatOn == kOff) display_.lamps(20, kLcdDim);
}

void TrackEntry::close() {
  form_.Text1.visible = false;
  form_.Text1.caption = "";
  form_.Image16[Above20].visible = form_.Label44.visible = true;
}

}  // namespace orvanta
