// Drawing of controls, by the name of their art. Units are design pixels (15 or 12 twips).
#pragma once

#include <QCache>
#include <QImage>
#include <QPainter>
#include <string>

#include "platform/forms/control.h"
#include "platform/qt/fonts.h"
#include "platform/qt/scale.h"

namespace orvanta {

/// Pictures that need not be made anew at each paint. By a text that names all that a picture depends on; those not
/// used for longest go first.
class ArtCache {
 public:
  explicit ArtCache(int kibibytes) : pictures_(kibibytes) {}
  /// nullptr when it is not there yet.
  const QImage* find(const std::string& key) const { return pictures_.object(key); }
  const QImage& keep(const std::string& key, QImage picture);
  qsizetype count() const { return pictures_.count(); }

  static constexpr int kSurfaces = 24 << 10;
  static constexpr int kGlows = 2 << 10;

 private:
  QCache<std::string, QImage> pictures_;
  QImage last_;  ///< one too large to be kept
};

struct Art {
  QPainter& painter;  ///< scaled to design pixels, origin at the control's corner
  const forms::Control& control;
  Fonts& fonts;
  ArtCache& cache;  ///< large surfaces, the user's pictures
  ArtCache& glows;
  QTransform plain;  ///< the painter's transform before scaling, for text
  double factor;     ///< device pixels to a design pixel
  double k;          ///< size of symbols and fonts: 1 at 15 twips a pixel
  double w;          ///< of the control, in design pixels, snapped to device pixels
  double h;
  double windowX;  ///< of the control's corner in the window
  double windowY;
};

void paintControl(Art& art);

/// A control's drawing alone, on black, so many device pixels to a design pixel.
QImage drawingOf(const forms::Control& control, double factor);

/// What a drawing depends on, beside its place and size, when it is worth keeping; "" when it is not.
std::string surfaceKey(const forms::Control& control);
/// The same for caps that look alike wherever they lie: there are twenty number keys.
std::string capKey(const forms::Control& control);

/// How far a drawing reaches beyond its control, for glow and shadow; design pixels.
double bleedOf(const forms::Control& control);

// The families of drawings; each returns false for an art that is not its own.
bool paintSurface(Art& art, std::string_view name, std::string_view detail);
bool paintKey(Art& art, std::string_view name, std::string_view detail);
void paintTray(Art& art, bool half);
bool paintStrip(Art& art, std::string_view name, std::string_view detail);
bool paintDisplay(Art& art, std::string_view name, std::string_view detail);

}  // namespace orvanta
