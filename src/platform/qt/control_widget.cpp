// Its place, its picture, the mark of focus.
#include "platform/qt/control_widget.h"

#include <QPainter>
#include <cmath>

#include "platform/qt/accessible.h"
#include "platform/qt/art.h"
#include "platform/qt/form_view.h"
#include "platform/qt/palette.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

using forms::Change;

ControlWidget::ControlWidget(FormWindow& window, ControlWidget* outer, forms::Control& control)
    : QWidget(outer != nullptr ? static_cast<QWidget*>(outer) : &window), window_(window), control_(control), outer_(outer) {
  if (outer != nullptr) outer->inner_.push_back(this);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_NoSystemBackground);
  setFocusPolicy(Qt::NoFocus);
  place();
  showIfInside();
}

/// A panel's new place or size may bring its children in, or take them out.
void ControlWidget::showIfInside() {
  setVisible(control_.visible && control_.insideForm());
  for (ControlWidget* widget : inner_) widget->showIfInside();
}

void ControlWidget::place() {
  const Scale& scale = window_.scale();
  const int bleed = this->bleed();
  const forms::Control& c = control_;
  const int origin = outer_ != nullptr ? outer_->bleed() : 0;
  // A line has no height of its own: a pixel is its least.
  QRect rect = scale.rect(c.left, c.top, c.width, c.height);
  rect.setSize(rect.size().expandedTo({1, 1}));
  setGeometry(rect.translated(origin, origin).adjusted(-bleed, -bleed, bleed, bleed));
}

int ControlWidget::bleed() const { return static_cast<int>(std::ceil(bleedOf(control_) * window_.scale().factor)); }

QRect ControlWidget::controlRect() const {
  const int bleed = this->bleed();
  return rect().adjusted(bleed, bleed, -bleed, -bleed);
}

void ControlWidget::follow(Change change) {
  if (change == Change::Geometry) place();
  if (change == Change::Geometry || change == Change::Visibility) showIfInside();
  if (change == Change::Text || change == Change::Look) update();
  if (change == Change::Text) nameChanged(*this);
  if (change == Change::Enabled || change == Change::Visibility) stateChanged(*this);
}

void ControlWidget::followPartner() {
  update();
  stateChanged(*this);
}

void ControlWidget::paintEvent(QPaintEvent* /*event*/) {
  paintPicture();
  if (!window_.form().focusShown() || window_.form().activeControl() != &control_) return;
  const double factor = window_.scale().factor;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kAmber, 1.2 * factor));
  painter.drawRoundedRect(QRectF(controlRect()).adjusted(-1.5 * factor, -1.5 * factor, 1.5 * factor, 1.5 * factor), 3 * factor, 3 * factor);
}

void ControlWidget::paintPicture() {
  QPainter painter(this);
  const Stock stock = window_.stock();
  const std::string key = pictureKey();
  if (key.empty()) return paintArt(painter, stock);
  const QImage* kept = stock.pictures.find(key);
  painter.drawImage(0, 0, kept != nullptr ? *kept : stock.pictures.keep(key, picture(stock)));
}

std::string ControlWidget::pictureKey() const {
  const std::string size = ' ' + std::to_string(width()) + ' ' + std::to_string(height());
  if (const std::string cap = capKey(control_); !cap.empty()) return cap + size;
  const std::string surface = surfaceKey(control_);
  if (surface.empty()) return {};
  const QPoint inWindow = mapTo(&window_, QPoint(0, 0));
  return surface + ' ' + std::to_string(inWindow.x()) + ' ' + std::to_string(inWindow.y()) + size;
}

QImage ControlWidget::picture(const Stock& stock) const {
  QImage fresh(size(), QImage::Format_ARGB32_Premultiplied);
  fresh.fill(Qt::transparent);
  QPainter painter(&fresh);
  paintArt(painter, stock);
  return fresh;
}

void ControlWidget::paintArt(QPainter& painter, const Stock& stock) const {
  const Scale& scale = window_.scale();
  const QRect own = controlRect();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(own.topLeft());
  const QTransform plain = painter.worldTransform();
  painter.scale(scale.factor, scale.factor);
  const QPoint inWindow = mapTo(&window_, own.topLeft());
  Art art{painter,
          control_,
          stock.fonts,
          stock.pictures,
          stock.glows,
          plain,
          scale.factor,
          15.0 / scale.twipsPerPixel,
          own.width() / scale.factor,
          own.height() / scale.factor,
          inWindow.x() / scale.factor,
          inWindow.y() / scale.factor};
  paintControl(art);
}

void ControlWidget::describe() {
  const std::string& shown = control_.caption;
  // A number that is a key says more than its figure.
  const bool key = control_.kind() == forms::Kind::Label && control_.tabStop && !control_.says.empty();
  setAccessibleName(toQt(shown.empty() || key ? control_.says : shown));
  setAccessibleDescription(toQt(testNames() ? control_.fullName() : control_.toolTip.get()));
}

}  // namespace orvanta
