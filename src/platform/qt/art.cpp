// Which drawing serves a control.
#include "platform/qt/art.h"

#include "platform/qt/art_tools.h"

namespace orvanta {

namespace {

/// For a control without art of its own.
void paintPlain(Art& art) {
  const forms::Control& c = art.control;
  switch (c.kind()) {
    case forms::Kind::Label:
      letters(art, c.caption, qColour(c.foreColor), {c.align, 0, 0, false, c.wordWrap});
      break;
    case forms::Kind::Line:
      art.painter.setPen(QPen(qColour(c.foreColor), 1));
      art.painter.drawLine(QPointF(0, .5), QPointF(art.w, art.h + .5));
      break;
    case forms::Kind::Image: break;
    default: fill(art.painter, QRectF(0, 0, art.w, art.h), qColour(c.backColor)); break;
  }
}

}  // namespace

void paintControl(Art& art) {
  const std::string_view whole = art.control.art;
  const auto colon = whole.find(':');
  std::string_view name = whole.substr(0, colon);
  const std::string_view detail = colon == std::string_view::npos ? std::string_view{} : whole.substr(colon + 1);
  // A lit symbol on a key, not lit text on the glass.
  if (name == "lit" && !detail.empty()) name = "lit-symbol";
  if (!paintSurface(art, name, detail) && !paintKey(art, name, detail) && !paintDisplay(art, name, detail)) paintPlain(art);
}

}  // namespace orvanta
