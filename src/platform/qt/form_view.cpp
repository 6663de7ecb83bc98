// Controls as widgets, and the window's events as the form's input. The window itself finds what
// lies under the mouse, since a widget is larger than its control by the room for its glow.
#include "platform/qt/form_view.h"

#include <QApplication>
#include <QDropEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QToolTip>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <vector>

#include "base/log.h"
#include "platform/qt/accessible.h"
#include "platform/qt/art.h"
#include "platform/qt/data_window.h"
#include "platform/qt/keys.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

using forms::Change;

namespace {

constexpr int kDragEnd = 300;  ///< milliseconds without a move

bool testNames() {
  static const bool kOn = qEnvironmentVariableIntValue("ORVANTA_TEST_NAMES") == 1;
  return kOn;
}

}  // namespace

// ---- ControlWidget

ControlWidget::ControlWidget(FormWindow& window, QWidget* parent, forms::Control& control)
    : QWidget(parent), window_(window), control_(control) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_NoSystemBackground);
  setFocusPolicy(Qt::NoFocus);
  place();
  showIfInside();
}

/// A panel's new place or size may bring its children in, or take them out.
void ControlWidget::showIfInside() {
  setVisible(control_.visible && control_.insideForm());
  for (QObject* child : children()) {
    if (auto* widget = dynamic_cast<ControlWidget*>(child)) widget->showIfInside();
  }
}

void ControlWidget::place() {
  const Scale& scale = window_.scale();
  const int bleed = this->bleed();
  const forms::Control& c = control_;
  const auto* parent = dynamic_cast<const ControlWidget*>(parentWidget());
  const int origin = parent != nullptr ? parent->bleed() : 0;
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
  if (change != Change::Geometry && change != Change::Look) nameChanged(*this, change);
}

void ControlWidget::paintEvent(QPaintEvent* /*event*/) {
  paintPicture();
  if (!window_.form().focusShown() || window_.form().activeControl() != &control_) return;
  const double factor = window_.scale().factor;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(0xFF, 0xC2, 0x47), 1.2 * factor));
  painter.drawRoundedRect(QRectF(controlRect()).adjusted(-1.5 * factor, -1.5 * factor, 1.5 * factor, 1.5 * factor), 3 * factor, 3 * factor);
}

void ControlWidget::paintPicture() {
  QPainter painter(this);
  std::string key = surfaceKey(control_);
  if (key.empty()) {
    paintArt(painter);
    return;
  }
  const QPoint inWindow = mapTo(&window_, QPoint(0, 0));
  key += ' ' + std::to_string(inWindow.x()) + ' ' + std::to_string(inWindow.y()) + ' ' + std::to_string(width()) + ' ' + std::to_string(height());
  const QImage* picture = window_.artCache().find(key);
  if (picture == nullptr) {
    QImage fresh(size(), QImage::Format_ARGB32_Premultiplied);
    fresh.fill(Qt::transparent);
    {
      QPainter inner(&fresh);
      paintArt(inner);
    }
    picture = &window_.artCache().keep(key, std::move(fresh));
  }
  painter.drawImage(0, 0, *picture);
}

void ControlWidget::paintArt(QPainter& painter) {
  const Scale& scale = window_.scale();
  const QRect own = controlRect();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(own.topLeft());
  const QTransform plain = painter.worldTransform();
  painter.scale(scale.factor, scale.factor);
  const QPoint inWindow = mapTo(&window_, own.topLeft());
  Art art{painter,
          control_,
          window_.fonts(),
          window_.artCache(),
          plain,
          scale.factor,
          15.0 / scale.twipsPerPixel,
          own.width() / scale.factor,
          own.height() / scale.factor,
          inWindow.x() / scale.factor,
          inWindow.y() / scale.factor};
  paintControl(art);
}

// ---- FormWindow

FormWindow::FormWindow(forms::Form& form, CoreGate& gate, Fonts& fonts, const Scale& scale)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), form_(form), gate_(gate), fonts_(fonts), scale_(scale) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(false);
  setAcceptDrops(true);
  setFocusPolicy(Qt::StrongFocus);
  setWindowTitle(toQt(form.caption));
  setObjectName(toQt(form.name()));
  dragEnd_.setSingleShot(true);
  QObject::connect(&dragEnd_, &QTimer::timeout, this, [this] { dragMayHaveEnded(); });
  useAccessibleControls();
  build();
  placeWindow();
}

void FormWindow::build() {
  std::vector<forms::Control*> order(form_.controls());
  std::stable_sort(order.begin(), order.end(), [](const forms::Control* a, const forms::Control* b) { return a->z < b->z; });
  // Parents first: each takes its children in the order of their height above it.
  std::vector<forms::Control*> level{nullptr};
  while (!level.empty()) {
    std::vector<forms::Control*> next;
    for (forms::Control* parent : level) {
      QWidget* owner = this;
      if (parent != nullptr) owner = widgets_.at(parent);
      for (forms::Control* control : order) {
        if (control->parent != parent) continue;
        widgets_[control] = new ControlWidget(*this, owner, *control);
        if (const forms::Control* source = colourSource(*control)) followers_[source].push_back(widgets_[control]);
        next.push_back(control);
      }
    }
    level = std::move(next);
  }
}

ControlWidget* FormWindow::widgetOf(const forms::Control& control) const {
  const auto found = widgets_.find(&control);
  return found == widgets_.end() ? nullptr : found->second;
}

bool FormWindow::onScreen() const {
  // A form parked past the right edge is hidden by its place: a window manager would pull it back.
  return scale_.pixels(form_.left) < QGuiApplication::primaryScreen()->geometry().right();
}

void FormWindow::placeWindow() {
  setFixedSize(scale_.pixels(form_.width), scale_.pixels(form_.height));
  if (!dragging_) move(scale_.pixels(form_.left), scale_.pixels(form_.top));
}

void FormWindow::show() {
  wanted_ = true;
  if (onScreen()) setVisible(true);
  if (form_.minimised) showMinimized();
}

void FormWindow::hide() {
  wanted_ = false;
  setVisible(false);
}

void FormWindow::raise() {
  QWidget::raise();
  activateWindow();
}

void FormWindow::changed(forms::Control& control, Change change) {
  if (ControlWidget* widget = widgetOf(control)) widget->follow(change);
  const auto followers = followers_.find(&control);
  if (change != Change::Look || followers == followers_.end()) return;
  for (ControlWidget* widget : followers->second) widget->update();
}

void FormWindow::formChanged(Change change) {
  if (change == Change::Text) setWindowTitle(toQt(form_.caption));
  if (change == Change::Geometry) {
    placeWindow();
    for (QObject* child : children()) {
      if (auto* widget = dynamic_cast<ControlWidget*>(child)) widget->showIfInside();
    }
    if (wanted_) setVisible(onScreen());
  }
  if (change == Change::Visibility && wanted_) setWindowState(form_.minimised ? Qt::WindowMinimized : Qt::WindowNoState);
  // Legends and the metal take the window's colour.
  if (change == Change::Look) update();
}

void FormWindow::refresh(forms::Control& control) {
  ControlWidget* widget = widgetOf(control);
  if (widget == nullptr || !isVisible()) return;
  // Painted and sent off here and now. (Qt's own sync would deliver events, timers among them.)
  repaint(QRect(widget->mapTo(this, QPoint(0, 0)), widget->size()));
}

void FormWindow::focusMoved(forms::Control* control) {
  if (focused_ != nullptr) focused_->update();
  focused_ = control == nullptr ? nullptr : widgetOf(*control);
  if (focused_ != nullptr) focused_->update();
}

void FormWindow::press(forms::Control& control) {
  gate_.enter([&] { form_.press(control); });
}

// ---- input

forms::Control* FormWindow::hit(const QPoint& place) const {
  const auto over = [&](const forms::Control& control) {
    const ControlWidget* widget = widgetOf(control);
    if (control.passesMouse || widget == nullptr || !widget->isVisible()) return false;
    return widget->controlRect().contains(widget->mapFrom(this, place));
  };
  // Depth first, the highest of each level first.
  forms::Control* found = nullptr;
  for (forms::Control* level = nullptr;;) {
    forms::Control* best = nullptr;
    for (forms::Control* control : form_.controls()) {
      if (control->parent == level && over(*control) && (best == nullptr || control->z >= best->z)) best = control;
    }
    if (best == nullptr) return found;
    found = level = best;
  }
}

forms::Mouse FormWindow::mouseAt(const QMouseEvent& event, const forms::Control* control) const {
  QPoint place = event.position().toPoint();
  if (const ControlWidget* widget = control == nullptr ? nullptr : widgetOf(*control)) {
    place = widget->mapFrom(this, place) - widget->controlRect().topLeft();
  }
  const auto button = event.button() == Qt::RightButton ? forms::MouseButton::Right : forms::MouseButton::Left;
  return {button, scale_.twips(place.x()), scale_.twips(place.y()), (event.modifiers() & Qt::ShiftModifier) != 0};
}

void FormWindow::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton) return;
  grip_ = event->globalPosition().toPoint() - pos();
  forms::Control* control = hit(event->position().toPoint());
  gate_.enter([&] { form_.mouseDown(control, mouseAt(*event, control)); });
}

void FormWindow::mouseMoveEvent(QMouseEvent* event) {
  if (moving_) {
    move(event->globalPosition().toPoint() - grip_);
    return;
  }
  forms::Control* control = form_.pressed() != nullptr ? form_.pressed() : hit(event->position().toPoint());
  gate_.enter([&] { form_.mouseMove(control, mouseAt(*event, control)); });
}

void FormWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (moving_) {
    moving_ = false;
    dragMayHaveEnded();
    return;
  }
  gate_.enter([&] { form_.mouseUp(mouseAt(*event, form_.pressed())); });
}

void FormWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  // A double click is a second press as well: a deck's key pressed twice fast acts twice.
  mousePressEvent(event);
  gate_.enter([&] { form_.doubleClick(hit(event->position().toPoint())); });
}

void FormWindow::wheelEvent(QWheelEvent* event) {
  constexpr int kNotch = 120;
  // Fine wheels and touch pads come in parts of a notch.
  wheel_ += event->angleDelta().y();
  const int notches = wheel_ / kNotch;
  wheel_ %= kNotch;
  if (notches == 0) return;
  gate_.enter([&] { form_.wheel(hit(event->position().toPoint()), notches); });
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  const forms::KeyPress key = keyPress(*event);
  const bool repeats = key.code >= forms::key::kLeft && (key.code <= forms::key::kDown || key.code >= forms::key::kF1);
  if (event->isAutoRepeat() && !repeats && key.code != forms::key::kTab) return;
  bool used = false;
  gate_.enter([&] { used = form_.keyDown(key); });
  if (!used) event->ignore();
}

void FormWindow::keyReleaseEvent(QKeyEvent* event) {
  if (event->isAutoRepeat()) return;
  gate_.enter([&] { form_.keyUp(keyPress(*event)); });
}

bool FormWindow::focusNextPrevChild(bool /*next*/) { return false; }

void FormWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void FormWindow::dropEvent(QDropEvent* event) {
  const auto urls = event->mimeData()->urls();
  if (urls.isEmpty() || !urls.front().isLocalFile()) return;
  event->acceptProposedAction();
  gate_.enter([&] { form_.fileDropped(urls.front().toLocalFile().toStdString()); });
}

// ---- the window

bool FormWindow::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const forms::Control* control = hit(help->pos());
    // Escaped: a tip is plain text, never taken for HTML.
    QToolTip::showText(help->globalPos(), control == nullptr ? QString() : toQt(control->toolTip).toHtmlEscaped(), this);
    return true;
  }
  return QWidget::event(event);
}

void FormWindow::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const Colour back = form_.backColor;
  if (!painted_) {
    painted_ = true;
    if (logs("paint")) QTimer::singleShot(0, this, [] { logLine("paint", "first"); });
  }
  painter.fillRect(event->rect(), QColor(static_cast<int>(back & 0xFFU), static_cast<int>(back >> 8U & 0xFFU), static_cast<int>(back >> 16U & 0xFFU)));
}

void FormWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) gate_.enter([&] { form_.activated(); });
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  gate_.enter([&] { form_.closeAsked(); });
}

void FormWindow::drag() {
  dragging_ = true;
  // The system takes the mouse from here on, so the press has had its one release.
  gate_.enter([&] { form_.mouseUp({}); });
  moving_ = windowHandle() == nullptr || !windowHandle()->startSystemMove();
  dragEnd_.start(kDragEnd);
}

void FormWindow::moveEvent(QMoveEvent* /*event*/) {
  if (dragging_) dragEnd_.start(kDragEnd);
}

void FormWindow::dragMayHaveEnded() {
  if (!dragging_ || moving_) return;
  if (QGuiApplication::mouseButtons() != Qt::NoButton) {
    dragEnd_.start(kDragEnd);
    return;
  }
  dragging_ = false;
  gate_.enter([&] { form_.dragged(scale_.twips(x()), scale_.twips(y())); });
}

std::unique_ptr<forms::FormView> QtDesktop::open(forms::Form& form) {
  if (form.resizable()) return std::make_unique<DataView>(form, gate_, scale_);
  return std::make_unique<FormWindow>(form, gate_, fonts_, scale_);
}

void ControlWidget::describe() {
  const std::string& shown = control_.caption;
  setAccessibleName(toQt(shown.empty() ? control_.says : shown));
  setAccessibleDescription(toQt(testNames() ? control_.fullName() : control_.toolTip.get()));
}

}  // namespace orvanta
