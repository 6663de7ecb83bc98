// The hole, one for all keys, is as large as the key.
#include "strip/strip_press.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orvanta {

/// At 15 twips a pixel the first two keys of the row go a little farther right.
void StripPress::down(forms::Control& control) {
  up();
  static constexpr std::array<std::string_view, 10> kKeys = {"Image1", "Image2",  "Image5", "Image7",  "Image6",
                                                             "Image8", "Image13", "Image3", "Image12", "Image9"};
  if (std::find(kKeys.begin(), kKeys.end(), control.name()) == kKeys.end()) return;
  if (forms::Control* hole = control.with(forms::Role::Hole)) {
    hole->width = control.width.get();
    hole->height = control.height.get();
  }
  const bool first = (control.name() == "Image1" || control.name() == "Image2") && control.index() <= 1;
  key_.down(control, form_.smallFonts && first ? 20 : 10, form_.smallFonts ? 20 : 10);
}

}  // namespace orvanta
