// Left and top count from the screen's corner; behind them stands the name of a screen that is not the primary one.
#include "faceplate/screen_place.h"

#include <algorithm>
#include <optional>

#include "base/text.h"

namespace orvanta {

namespace {

int kept(int place, int size, int margin, int screen) {
  if (place < 0) return 0;
  return int64_t{place} + size + margin > screen ? std::max(0, screen - size) : place;
}

int placeOf(const std::optional<std::string>& text) {
  const double value = text ? leadingNumber(*text) : 0;
  return value > -1e9 && value < 1e9 ? static_cast<int>(value) : 0;
}

}  // namespace

WorkArea ScreenPlace::area() const {
  return screen_.workAreaOf({form_.left, form_.top, form_.left + form_.width, form_.top + form_.height});
}

void ScreenPlace::put(const WorkArea& area, int left, int top) {
  form_.left = area.twips.left + left;
  form_.top = area.twips.top + top;
}

void ScreenPlace::pullIn() {
  const WorkArea on = area();
  put(on, kept(form_.left - on.twips.left, form_.width, 0, on.width()), kept(form_.top - on.twips.top, form_.height, 0, on.height()));
}

void ScreenPlace::save(DataFile file) const {
  const WorkArea on = area();
  FieldWriter out;
  out.number(form_.left - on.twips.left);
  out.number(form_.top - on.twips.top);
  if (!on.screen.empty()) out.text(on.screen);
  data_.save(file, out);
}

bool ScreenPlace::restore(DataFile file, const Margins& margins) {
  const FieldBytes fields = data_.read(file).value_or(FieldBytes{});
  FieldReader reader = fields.reader();
  const auto left = reader.next();
  const auto top = reader.next();
  if (!left || !top) return false;
  const WorkArea on = screen_.workAreaNamed(reader.next().value_or(""));
  put(on, kept(placeOf(left), form_.width, margins.right, on.width()), kept(placeOf(top), form_.height, margins.lower, on.height()));
  return true;
}

}  // namespace orvanta
