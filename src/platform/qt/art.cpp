// Which drawing serves a control.
#include "platform/qt/art.h"

#include <algorithm>
#include <array>

#include "platform/forms/form.h"
#include "platform/qt/art_tools.h"

namespace orvanta {

namespace {

struct Name {
  std::string_view art;
  std::string_view detail;
};

Name nameOf(const forms::Control& control) {
  const std::string_view whole = control.art;
  const auto colon = whole.find(':');
  return {whole.substr(0, colon), colon == std::string_view::npos ? std::string_view{} : whole.substr(colon + 1)};
}

/// For a control without art of its own.
void paintPlain(Art& art) {
  const forms::Control& c = art.control;
  switch (c.kind()) {
    case forms::Kind::Label: letters(art, c.caption, qColour(c.foreColor), {c.align, 0, 0, false, c.wordWrap}); break;
    case forms::Kind::Line:
      art.painter.setPen(QPen(qColour(c.foreColor), 1));
      art.painter.drawLine(QPointF(0, .5), QPointF(art.w, art.h + .5));
      break;
    case forms::Kind::Image: ownPicture(art); break;
    default: fill(art.painter, QRectF(0, 0, art.w, art.h), qColour(c.backColor)); break;
  }
}

}  // namespace

const QImage& ArtCache::keep(const std::string& key, QImage picture) {
  const auto cost = static_cast<int>(picture.sizeInBytes() >> 10) + 1;
  if (cost > pictures_.maxCost() / 2) {
    last_ = std::move(picture);
    return last_;
  }
  pictures_.insert(key, new QImage(std::move(picture)), cost);
  return *pictures_.object(key);
}

double bleedOf(const forms::Control& control) {
  constexpr double kShadow = 4;
  constexpr double kPoolOfLight = 20;
  const Name name = nameOf(control);
  return name.art == "lit" && !name.detail.empty() ? kPoolOfLight : kShadow;
}

std::string surfaceKey(const forms::Control& control) {
  static constexpr std::array<std::string_view, 9> kKept = {"faceplate", "strip",  "metal", "door", "tray",
                                                            "glass",     "emblem", "disc",  "power"};
  const Name name = nameOf(control);
  if (std::find(kKept.begin(), kKept.end(), name.art) == kKept.end()) return {};
  std::string key = control.fullName() + ' ' + std::to_string(control.backColor) + ' ' + std::to_string(control.foreColor) + ' ' +
                    std::to_string(control.form().backColor);
  if (const auto* panel = dynamic_cast<const forms::Panel*>(&control))
    key += ' ' + std::to_string(panel->bevelInner) + (panel->empty ? " empty" : "");
  if (const auto* image = dynamic_cast<const forms::Image*>(&control))
    key += ' ' + std::to_string(image->pictureReading) + ' ' + image->picture.get();
  if (const auto* source = control.with(forms::Role::Colour)) key += ' ' + std::to_string(source->backColor);
  // The panes' joint shows only where no line covers it.
  const forms::Control* joint = control.with(forms::Role::Joint);
  if (joint != nullptr) key += joint->visible ? " over" : " beside";
  return key;
}

std::string capKey(const forms::Control& control) {
  const Name name = nameOf(control);
  const bool plain = name.art == "key" && (name.detail.empty() || name.detail == "number" || name.detail == "small");
  if ((!plain && name.art != "mode") || control.kind() == forms::Kind::Button) return {};
  const auto* image = dynamic_cast<const forms::Image*>(&control);
  if (image != nullptr && !image->picture.get().empty()) return {};
  return control.art + (control.form().pressed() == &control ? " down" : " up");
}

QImage drawingOf(const forms::Control& control, double factor) {
  const Scale scale{factor, control.form().smallFonts ? 15 : 12};
  QImage picture(scale.rect(0, 0, control.width, control.height).size(), QImage::Format_RGB32);
  picture.fill(Qt::black);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(factor, factor);
  Fonts fonts;
  ArtCache cache(ArtCache::kSurfaces);
  ArtCache glows(ArtCache::kGlows);
  Art art{
      painter, control, fonts, cache, glows, {}, factor, 15.0 / scale.twipsPerPixel, picture.width() / factor, picture.height() / factor,
      0,       0};
  paintControl(art);
  return picture;
}

void paintControl(Art& art) {
  auto [name, detail] = nameOf(art.control);
  // A lit symbol on a key, not lit text on the glass.
  if (name == "lit" && !detail.empty()) name = "lit-symbol";
  if (!paintSurface(art, name, detail) && !paintStrip(art, name, detail) && !paintKey(art, name, detail) &&
      !paintDisplay(art, name, detail))
    paintPlain(art);
}

}  // namespace orvanta
