// Form26, the wallpaper: a window behind all others, with room for nine tiles of a picture.
#pragma once

#include <array>

#include "platform/forms/form.h"

namespace orvanta {

struct Form26 : forms::Form {
  using Image = forms::Image;

  Form26() : Form("Form26") {}

  forms::WindowTraits traits() const override { return {.onTop = false, .inTaskbar = false, .bodyless = false, .behind = true}; }

  // Downwards, then the next column.
  Image Image1{*this, "Image1"};  ///< alone where the picture covers the screen, or is stretched over it
  Image Image2{*this, "Image2"};
  Image Image3{*this, "Image3"};
  Image Image4{*this, "Image4"};
  Image Image5{*this, "Image5"};
  Image Image6{*this, "Image6"};
  Image Image7{*this, "Image7"};
  Image Image8{*this, "Image8"};
  Image Image9{*this, "Image9"};

  /// Column by column.
  std::array<Image*, 9> tiles() { return {&Image1, &Image2, &Image3, &Image4, &Image5, &Image6, &Image7, &Image8, &Image9}; }

 protected:
  std::span<const forms::DesignRow> design() const override;
};

}  // namespace orvanta
