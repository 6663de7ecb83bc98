// Colours and brushes, blur, the user's pictures, and the symbols of the keys.
#include "platform/qt/art_tools.h"

#include <QImage>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "platform/qt/palette.h"
#include "platform/qt/picture_file.h"

namespace orvanta {

QColor qColour(Colour colour) {
  return QColor::fromRgb(static_cast<int>(colour & 0xFFU), static_cast<int>(colour >> 8U & 0xFFU), static_cast<int>(colour >> 16U & 0xFFU));
}

QColor mix(const QColor& a, const QColor& b, double part) {
  const auto channel = [part](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * part)); };
  return QColor::fromRgb(channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue()));
}

QColor alpha(QColor colour, double opacity) {
  colour.setAlphaF(static_cast<float>(opacity));
  return colour;
}

double brightness(const QColor& colour) { return (.299 * colour.red() + .587 * colour.green() + .114 * colour.blue()) / 255; }

QLinearGradient blend(QPointF from, QPointF to, std::initializer_list<Stop> stops) {
  QLinearGradient gradient(from, to);
  for (const Stop& stop : stops) gradient.setColorAt(stop.at, stop.colour);
  return gradient;
}

QLinearGradient blendIn(const QRectF& rect, double u, double v, std::initializer_list<Stop> stops) {
  const double length = u * u + v * v;
  const QPointF slope(u / rect.width() / length, v / rect.height() / length);
  const double steep = slope.x() * slope.x() + slope.y() * slope.y();
  return blend(rect.topLeft(), rect.topLeft() + slope / steep, stops);
}

void fill(QPainter& painter, const QRectF& rect, const QBrush& brush, double radius) {
  if (radius <= 0) {
    painter.fillRect(rect, brush);
    return;
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(brush);
  painter.drawRoundedRect(rect, radius, radius);
}

/// Three box filters in a row are a bell curve to the eye.
void blur(QImage& mask, double sigma) {
  const int width = std::max(1, static_cast<int>(std::lround(sigma * 1.88)) | 1);
  const int reach = width / 2;
  std::vector<int> line(static_cast<size_t>(std::max(mask.width(), mask.height())));
  const auto at = [&](int i) -> int& { return line[static_cast<size_t>(i)]; };
  const auto pass = [&](uchar* first, qsizetype step, int count) {
    for (int round = 0; round < 3; ++round) {
      for (int i = 0; i < count; ++i) at(i) = first[i * step];
      int sum = 0;
      for (int i = -reach; i < count; ++i) {
        if (i + reach < count) sum += at(i + reach);
        if (i - reach - 1 >= 0) sum -= at(i - reach - 1);
        if (i >= 0) first[i * step] = static_cast<uchar>(sum / width);
      }
    }
  };
  for (int y = 0; y < mask.height(); ++y) pass(mask.scanLine(y), 1, mask.width());
  for (int x = 0; x < mask.width(); ++x) pass(mask.bits() + x, mask.bytesPerLine(), mask.height());
}

bool ownPicture(Art& art, bool round) {
  const auto* image = dynamic_cast<const forms::Image*>(&art.control);
  if (image == nullptr || image->picture.get().empty()) return false;
  const QSize target = (QSizeF(art.w, art.h) * art.factor).toSize();
  const std::string key = "file " + std::to_string(target.width()) + ' ' + std::to_string(target.height()) + ' ' +
                          std::to_string(image->pictureReading) + ' ' + image->picture.get();
  const QImage* picture = art.cache.find(key);
  if (picture == nullptr) picture = &art.cache.keep(key, readPicture(image->picture, target));
  if (picture->isNull()) return false;
  art.painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QRectF area(0, 0, art.w, art.h);
  if (round) {
    // As a brush, so that the rim is smooth; the corners of the file stay out of it.
    QBrush brush(*picture);
    brush.setTransform(QTransform::fromScale(art.w / picture->width(), art.h / picture->height()));
    art.painter.setPen(Qt::NoPen);
    art.painter.setBrush(brush);
    art.painter.drawEllipse(area);
  } else {
    art.painter.drawImage(area, *picture);
  }
  return true;
}

bool symbolOf(std::string_view name, Symbol& symbol) {
  static constexpr std::array<std::string_view, 9> kNames = {"prev",   "next",   "play",    "pause", "stop",
                                                             "record", "rewind", "forward", "eject"};
  const auto* found = std::find(kNames.begin(), kNames.end(), name);
  if (found == kNames.end()) return false;
  symbol = static_cast<Symbol>(found - kNames.begin());
  return true;
}

QPainterPath symbolPath(Symbol symbol) {
  QPainterPath path;
  const auto bar = [&](double x, double y, double w, double h) { path.addRect(x, y, w, h); };
  const auto triangle = [&](double x, double y, double tip) {
    path.addPolygon(QPolygonF({{x, -y}, {tip, 0}, {x, y}}));
    path.closeSubpath();
  };
  switch (symbol) {
    case Symbol::Previous:
      bar(-8, -6, 2.4, 12);
      triangle(1.2, 6, -5.2);
      triangle(8, 6, 1.4);
      break;
    case Symbol::Next:
      bar(5.6, -6, 2.4, 12);
      triangle(-1.2, 6, 5.2);
      triangle(-8, 6, -1.4);
      break;
    case Symbol::Play: triangle(-5.2, 6.5, 6.2); break;
    case Symbol::Pause:
      bar(-4, -6.5, 3, 13);
      bar(1, -6.5, 3, 13);
      break;
    case Symbol::Stop: bar(-5.4, -5.4, 10.8, 10.8); break;
    case Symbol::Record: path.addEllipse(QPointF(0, 0), 4.7, 4.7); break;
    case Symbol::Rewind:
      triangle(0, 4.8, -7.6);
      triangle(7.8, 4.8, .2);
      break;
    case Symbol::Forward:
      triangle(0, 4.8, 7.6);
      triangle(-7.8, 4.8, -.2);
      break;
    case Symbol::Eject:
      path.addPolygon(QPolygonF({{0, -6.2}, {7, 1.4}, {-7, 1.4}}));
      path.closeSubpath();
      bar(-7, 3.6, 14, 2.6);
      break;
  }
  return path;
}

void sign(QPainter& painter, const QPainterPath& path, QPointF centre, double k, const SignPen& pen) {
  for (const bool copy : {true, false}) {
    const QColor& colour = copy ? pen.below : pen.colour;
    if (colour.alpha() == 0) continue;
    painter.save();
    painter.translate(centre.x(), centre.y() + (copy ? pen.drop : 0));
    painter.scale(k, k);
    if (pen.width > 0) {
      painter.setBrush(Qt::NoBrush);
      painter.setPen(QPen(colour, pen.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      painter.drawPath(path);
    } else {
      painter.fillPath(path, colour);
    }
    painter.restore();
  }
}

namespace {

bool legible(const QColor& colour, const QColor& ground) {
  constexpr double kLegible = 3;
  const auto packed = [](const QColor& c) {
    return static_cast<Colour>(c.red()) | static_cast<Colour>(c.green()) << 8U | static_cast<Colour>(c.blue()) << 16U;
  };
  return contrast(packed(colour), packed(ground)) >= kLegible;
}

}  // namespace

QColor readable(const QColor& colour, const QColor& ground) {
  for (int tenths = 0; tenths < 10; ++tenths) {
    const QColor shade = mix(colour, Qt::black, tenths * .1);
    if (legible(shade, ground)) return shade;
  }
  return Qt::black;
}

QColor legendOn(const QColor& colour, const QColor& ground) { return legible(colour, ground) ? colour : QColor(Qt::black); }

void ejectSign(QPainter& painter, QPointF centre, double k, const QColor& ground) {
  QPainterPath path;
  path.addPolygon(QPolygonF({{0, -4}, {5, 1.4}, {-5, 1.4}}));
  path.closeSubpath();
  path.addRect(-5, 2.8, 10, 1.7);
  const QColor colour = legendOn(QColor(0xC8, 0xCD, 0xD2), ground);
  sign(painter, path, centre, k, {0, colour, alpha(brightness(colour) < .35 ? Qt::white : Qt::black, .7), .7});
}

void symbol(QPainter& painter, Symbol which, QPointF centre, double k, const QColor& colour) {
  const QPainterPath path = symbolPath(which);
  sign(painter, path, centre, k, {0, colour, alpha(Qt::black, .6), .8});
  sign(painter, path, centre, k, {.8, colour});
}

QColor litColour(Symbol symbol) {
  switch (symbol) {
    case Symbol::Pause:
    case Symbol::Stop:
    case Symbol::Eject: return kAmber;
    case Symbol::Record: return {0xFF, 0x4A, 0x3D};
    case Symbol::Rewind:
    case Symbol::Forward: return {0x0A, 0x8F, 0x3C};
    default: return {0x3D, 0xFF, 0x7A};
  }
}

void litSymbol(Art& art, Symbol which, QPointF centre, double k, const QColor& colour, QSizeF pool) {
  QPainter& painter = art.painter;
  painter.save();
  painter.translate(centre);
  painter.scale(k * pool.width() / pool.height(), k);
  QRadialGradient light(QPointF(0, 0), pool.height());
  light.setColorAt(0, alpha(colour, .42));
  light.setColorAt(.5, alpha(colour, .14));
  light.setColorAt(1, alpha(colour, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(light);
  painter.drawEllipse(QPointF(0, 0), pool.height(), pool.height());
  painter.restore();
  const QPainterPath path = symbolPath(which);
  // A halo: wide faint strokes under the bright face.
  for (const double width : {5.2, 3.9, 2.6, 1.3}) sign(painter, path, centre, k, {width, alpha(colour, .17)});
  const QColor face = mix(colour, Qt::white, .35);
  sign(painter, path, centre, k, {0, face});
  sign(painter, path, centre, k, {.8, colour});
}

}  // namespace orvanta
