// Storing and restoring the window's place, in twips.
#include "faceplate/position.h"

#include "base/text.h"
#include "platform/ports/files.h"
#include "platform/ports/screen.h"
#include "state/field_file.h"

namespace orvanta {

namespace {

// On reading alone: a window stored near an edge is pulled in whole at the next start.
constexpr int kRightMargin = 400;
constexpr int kLowerMargin = 200;

int kept(int place, int size, int margin, int screen) {
  if (place < 0) return 0;
  return int64_t{place} + size + margin > screen ? screen - size : place;
}

}  // namespace

std::string Position::path() const {
  return joinPath(state_.settings.appDir, state_.settings.smallFaceplate == kOn ? "SMPOS1.DAT" : "CDPOSN.DAT");
}

void Position::saveposn1() {
  if (state_.process.commandWord == "RUNRIPPER") return;
  form_.left = kept(form_.left, form_.width, 0, screen_.widthTwips());
  form_.top = kept(form_.top, form_.height, 0, screen_.heightTwips());
  state_.display.positionKnown = kOn;
  FieldWriter out;
  out.number(form_.left);
  out.number(form_.top);
  files_.write(path(), out.bytes());
}

void Position::posfp1() {
  const auto bytes = files_.read(path());
  FieldReader reader(bytes ? std::string_view(*bytes) : std::string_view());
  const auto left = reader.next();
  const auto top = reader.next();
  if (!bytes || !left || !top) {
    centre();
    return;
  }
  const auto place = [](const std::string& text) {
    const double value = leadingNumber(text);
    return value > -1e9 && value < 1e9 ? static_cast<int>(value) : 0;
  };
  form_.left = kept(place(*left), form_.width, kRightMargin, screen_.widthTwips());
  form_.top = kept(place(*top), form_.height, kLowerMargin, screen_.heightTwips());
  state_.display.positionKnown = kOn;
}

void Position::Form_DblClick() {
  centre();
  files_.remove(path());
}

void Position::centre() {
  state_.display.positionKnown = kOff;
  form_.left = (screen_.widthTwips() - form_.width) / 2;
  form_.top = (screen_.heightTwips() - form_.height) / 2;
}

}  // namespace orvanta
