// Storing and restoring the window's place, in twips.
#include "faceplate/window_place.h"

#include <algorithm>
#include <optional>

#include "base/text.h"

namespace orvanta {

namespace {

// On reading alone: a window stored near an edge is pulled in whole at the next start.
constexpr int kRightMargin = 400;
constexpr int kLowerMargin = 200;

/// A place that counts from the screen's corner, on that screen.
int kept(int place, int size, int margin, int screen) {
  if (place < 0) return 0;
  return int64_t{place} + size + margin > screen ? std::max(0, screen - size) : place;
}

int placeOf(const std::optional<std::string>& text) {
  const double value = text ? leadingNumber(*text) : 0;
  return value > -1e9 && value < 1e9 ? static_cast<int>(value) : 0;
}

}  // namespace

WorkArea WindowPlace::area() const {
  return screen_.workAreaOf({form_.left, form_.top, form_.left + form_.width, form_.top + form_.height});
}

void WindowPlace::put(const WorkArea& area, int left, int top) {
  form_.left = area.twips.left + left;
  form_.top = area.twips.top + top;
}

DataFile WindowPlace::file() const { return state_.settings.smallFaceplate == kOn ? DataFile::SmallPlace : DataFile::LargePlace; }

/// Left and top; behind them the name of a screen that is not the primary one.
void WindowPlace::saveposn1() {
  if (state_.process.commandWord == "RUNRIPPER") return;
  const WorkArea on = area();
  const int left = kept(form_.left - on.twips.left, form_.width, 0, on.width());
  const int top = kept(form_.top - on.twips.top, form_.height, 0, on.height());
  put(on, left, top);
  state_.display.positionKnown = true;
  FieldWriter out;
  out.number(left);
  out.number(top);
  if (!on.screen.empty()) out.text(on.screen);
  data_.save(file(), out);
}

void WindowPlace::posfp1() {
  const RecordBytes record = data_.read(file()).value_or(RecordBytes{});
  FieldReader reader = record.reader();
  const auto left = reader.next();
  const auto top = reader.next();
  if (!left || !top) {
    centre();
    return;
  }
  const WorkArea on = screen_.workAreaNamed(reader.next().value_or(""));
  put(on, kept(placeOf(left), form_.width, kRightMargin, on.width()), kept(placeOf(top), form_.height, kLowerMargin, on.height()));
  state_.display.positionKnown = true;
}

void WindowPlace::Form_DblClick() {
  centre();
  data_.remove(file());
}

void WindowPlace::centre() {
  state_.display.positionKnown = false;
  const WorkArea on = area();
  put(on, (on.width() - form_.width) / 2, (on.height() - form_.height) / 2);
}

}  // namespace orvanta
