// Controls as widgets, and the window's events as the form's input. The window itself finds what
// lies under the mouse, since a widget is larger than its control by the room for its glow.
#include "platform/qt/form_view.h"

#include <QApplication>
#include <QDropEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QToolTip>
#include <algorithm>
#include <vector>

#include "base/log.h"
#include "platform/qt/accessible.h"
#include "platform/qt/icons.h"
#include "platform/qt/keyboard_holder.h"
#include "platform/qt/keys.h"
#include "platform/qt/picture_threads.h"
#include "platform/qt/to_qt.h"
#include "platform/qt/window_traits.h"

namespace orvanta {

using forms::Change;
using forms::Form;

namespace {

/// A track may be called "*": in brackets Qt takes that for the place of a mark, unless it stands there twice.
QString titleOf(const Form& form) { return toQt(form.caption).replace(QLatin1String("[*]"), QLatin1String("[*][*]")); }

}  // namespace

FormWindow::FormWindow(forms::Form& form, CoreGate& gate, Fonts& fonts, const Scale& scale)
    : QWidget(nullptr, flagsOf(form.traits())),
      form_(form),
      road_(form, gate),
      fonts_(fonts),
      scale_(scale),
      drag_(
          *this, [this] { road_.enter([](Form& told) {
                            told.mouseUp({forms::MouseButton::Left, -1, -1});
                          }); },
          [this] { road_.enter([&](Form& told) { told.dragged(scale_.twips(x()), scale_.twips(y())); }); }) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(false);
  setFocusPolicy(Qt::StrongFocus);
  setWindowTitle(titleOf(form));
  setObjectName(toQt(form.name()));
  useAccessibleControls();
  build();
  fileDrag_ = new FileDrag(*this, scale_.factor, [this](const std::string& file) {
    bool used = false;
    road_.enter([&](Form& told) { used = told.takesFile(file); });
    return used;
  });
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
      ControlWidget* outer = parent == nullptr ? nullptr : widgets_.at(parent);
      for (forms::Control* control : order) {
        if (control->parent != parent) continue;
        widgets_[control] = new ControlWidget(*this, outer, *control);
        for (size_t role = 0; role < forms::kRoles; ++role) {
          const forms::Control* partner = control->with(static_cast<forms::Role>(role));
          if (partner != nullptr && partner != control) followers_[partner].push_back(widgets_[control]);
        }
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
  // Not by its place: past the edge of one screen there may be another, and a window manager would pull it back.
  return !form_.parked;
}

void FormWindow::placeWindow() {
  // A task button alone has a body where no window manager takes it away: an icon to click on.
  constexpr int kIcon = 48;
  const bool bodyless = form_.traits().bodyless;
  setFixedSize(bodyless ? QSize(kIcon, kIcon) * scale_.factor : QSize(scale_.pixels(form_.width), scale_.pixels(form_.height)));
  if (!drag_.underWay()) move(scale_.pixels(form_.left), scale_.pixels(form_.top));
}

void FormWindow::detach() {
  road_.close([this] { deleteLater(); });
  showWanted(false);
}

void FormWindow::showWanted(bool wanted) {
  wanted_ = wanted;
  const bool shows = wanted && onScreen();
  if (!shows) keyboardLeaves(*this);
  if (shows) tellDesktop(*this, form_.traits());
  if (shows && form_.minimised) {
    giveWindowIcon();
    showMinimized();
  } else {
    setVisible(shows);
  }
}

void FormWindow::follow(forms::Control& control, Change change) {
  if (ControlWidget* widget = widgetOf(control)) widget->follow(change);
  const auto followers = followers_.find(&control);
  const bool told = change == Change::Look || change == Change::Visibility || change == Change::Text;
  if (!told || followers == followers_.end()) return;
  for (ControlWidget* widget : followers->second) widget->followPartner();
}

void FormWindow::followForm(Change change) {
  if (change == Change::Text) {
    setWindowTitle(titleOf(form_));
    titleChanged(*this);
  }
  if (change == Change::Geometry) {
    placeWindow();
    for (const auto& [control, widget] : widgets_) widget->showIfInside();
    if (wanted_) showWanted(true);
  }
  if (change == Change::Visibility && wanted_) setWindowState(form_.minimised ? Qt::WindowMinimized : Qt::WindowNoState);
  // Legends and the metal take the window's colour.
  if (change == Change::Look) update();
}

void FormWindow::paintNow(forms::Control& control) {
  ControlWidget* widget = widgetOf(control);
  if (widget == nullptr || !isVisible()) return;
  // Painted and sent off here and now. (Qt's own sync would deliver events, timers among them.)
  repaint(QRect(widget->mapTo(this, QPoint(0, 0)), widget->size()));
}

void FormWindow::followFocus(forms::Control* control) {
  if (focused_ != nullptr) focused_->update();
  focused_ = control == nullptr ? nullptr : widgetOf(*control);
  if (focused_ == nullptr) return;
  focused_->update();
  focusChanged(*focused_);
}

QRect FormWindow::focusPlace() const {
  if (focused_ == nullptr || !form_.focusShown() || !focused_->isVisible()) return {};
  const QRect own = focused_->controlRect();
  return {focused_->mapToGlobal(own.topLeft()), own.size()};
}

void FormWindow::press(forms::Control& control) {
  road_.enter([&](Form& form) { form.press(control); });
}

void FormWindow::step(forms::Control& control, int steps) {
  road_.enter([&](Form& form) { form.wheel(&control, steps); });
}

// ---- input

/// The highest of each level first, and what lies in it before it itself: a pane that lets a press through may hold keys.
forms::Control* FormWindow::hit(const QPoint& place, const forms::Control* within) const {
  std::vector<forms::Control*> over;
  for (forms::Control* control : form_.controls()) {
    const ControlWidget* widget = control->parent == within ? widgetOf(*control) : nullptr;
    const bool here = widget != nullptr && widget->isVisible() && widget->controlRect().contains(widget->mapFrom(this, place));
    if (here) over.push_back(control);
  }
  std::reverse(over.begin(), over.end());
  std::stable_sort(over.begin(), over.end(), [](const forms::Control* a, const forms::Control* b) { return a->z > b->z; });
  for (forms::Control* control : over) {
    if (forms::Control* inside = hit(place, control)) return inside;
    if (!control->passesMouse) return control;
  }
  return nullptr;
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
  if (form_.traits().bodyless) {
    road_.enter([](Form& form) { form.minimised = false; });
    return;
  }
  drag_.pressed(*event);
  forms::Control* control = hit(event->position().toPoint());
  road_.enter([&](Form& form) { form.mouseDown(control, mouseAt(*event, control)); });
}

void FormWindow::mouseMoveEvent(QMouseEvent* event) {
  if (drag_.moved(*event)) return;
  forms::Control* control = form_.pressed() != nullptr ? form_.pressed() : hit(event->position().toPoint());
  road_.enter([&](Form& form) { form.mouseMove(control, mouseAt(*event, control)); });
}

void FormWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (drag_.released(*event)) return;
  road_.enter([&](Form& form) { form.mouseUp(mouseAt(*event, form.pressed())); });
}

void FormWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  // A double click is a second press as well: a deck's key pressed twice fast acts twice.
  mousePressEvent(event);
  if (event->button() == Qt::LeftButton) road_.enter([&](Form& form) { form.doubleClick(hit(event->position().toPoint())); });
}

void FormWindow::wheelEvent(QWheelEvent* event) {
  constexpr int kNotch = 120;
  // Fine wheels and touch pads come in parts of a notch.
  wheel_ += event->angleDelta().y();
  const int notches = wheel_ / kNotch;
  wheel_ %= kNotch;
  if (notches == 0) return;
  road_.enter([&](Form& form) { form.wheel(hit(event->position().toPoint()), notches); });
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  bool used = false;
  road_.enter([&](Form& form) { used = form.keyDown(keyPress(*event)); });
  if (!used) event->ignore();
}

void FormWindow::keyReleaseEvent(QKeyEvent* event) {
  if (event->isAutoRepeat()) return;
  road_.enter([&](Form& form) { form.keyUp(keyPress(*event)); });
}

bool FormWindow::focusNextPrevChild(bool /*next*/) { return false; }

void FormWindow::dragEnterEvent(QDragEnterEvent* event) { fileDrag_->enters(*event); }

void FormWindow::dragLeaveEvent(QDragLeaveEvent* /*event*/) { fileDrag_->leaves(); }

void FormWindow::dragMoveEvent(QDragMoveEvent* event) { fileDrag_->moves(*event); }

void FormWindow::dropEvent(QDropEvent* event) {
  const std::string file = fileDrag_->falls(*event);
  if (!file.empty()) road_.enter([&](Form& form) { form.fileDropped(file); });
}

// ---- the window

bool FormWindow::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const forms::Control* control = hit(help->pos());
    QToolTip::showText(help->globalPos(), control == nullptr ? QString() : plainTip(control->toolTip), this);
    return true;
  }
  return QWidget::event(event);
}

void FormWindow::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const Colour back = form_.backColor;
  if (!painted_) {
    painted_ = true;
    drawSurfaces();
    QTimer::singleShot(0, this, [] {
      if (logs("paint")) logLine("paint", "first");
      giveWindowIcon();
    });
  }
  painter.fillRect(event->rect(),
                   QColor(static_cast<int>(back & 0xFFU), static_cast<int>(back >> 8U & 0xFFU), static_cast<int>(back >> 16U & 0xFFU)));
  if (!form_.traits().bodyless) return;
  giveWindowIcon();
  windowIcon().paint(&painter, rect());
}

/// All that a first paint will find kept, on as many threads as there are: half of the time that a picture takes.
void FormWindow::drawSurfaces() {
  std::vector<const ControlWidget*> shown;
  for (const auto& [control, widget] : widgets_) {
    if (widget->isVisible()) shown.push_back(widget);
  }
  keepPictures(shown, artCache_);
}

void FormWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  // The user's doing as well as the program's.
  if (event->type() == QEvent::WindowStateChange) road_.enter([this](Form& form) { form.minimised = isMinimized(); });
  if (event->type() != QEvent::ActivationChange) return;
  if (isActiveWindow() && !form_.traits().bodyless) keyboardTaken(*this);
  road_.enter([&](Form& form) { isActiveWindow() ? form.activated() : form.deactivated(); });
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  road_.enter([&](Form& form) { form.closeAsked(); });
}

void FormWindow::moveEvent(QMoveEvent* /*event*/) { drag_.windowMoved(); }

// ---- FixedView

FixedView::~FixedView() {
  if (window_ == nullptr) return;
  if (window_->underWay()) {
    window_->detach();
  } else {
    delete window_;
  }
}

void FixedView::raise() {
  // To raise a window that is minimised would bring it back.
  if (window_->form().minimised) return;
  if (window_->form().traits().behind) {
    window_->lower();
    return;
  }
  window_->raise();
  giveKeyboardTo(*window_);
}

}  // namespace orvanta
