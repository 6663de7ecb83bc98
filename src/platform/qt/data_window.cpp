// A data window as a whole: its place, its focus, its closing. Its controls are its bindings' work.
#include "platform/qt/data_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <algorithm>

#include "platform/qt/data_style.h"
#include "platform/qt/keyboard_holder.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

using forms::Change;
using forms::Form;

namespace {

constexpr int kTitleBar = 32;  ///< pixels that the window manager adds above, as a rule
constexpr int kFrame = 8;      ///< what a window manager's frame takes of the width, in pixels

QRect freeAreaAt(const QPoint& place) {
  QScreen* screen = QGuiApplication::screenAt(place);
  return (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

/// The deck's scale, or the largest at which the window fits the screen.
Scale fitted(Scale scale, const Form& form) {
  const QRect free = freeAreaAt({scale.pixels(form.left), scale.pixels(form.top)});
  const auto factor = [&](int pixels, int twips) { return static_cast<double>(pixels) * scale.twipsPerPixel / twips; };
  scale.factor = std::min({scale.factor, factor(free.width() - kFrame, form.width), factor(free.height() - kTitleBar, form.height)});
  return scale;
}

}  // namespace

DataWindow::DataWindow(Form& form, CoreGate& gate, const Scale& scale) : road_(form, gate), deckScale_(scale), scale_(fitted(scale, form)) {
  setAttribute(Qt::WA_QuitOnClose, false);
  setObjectName(toQt(form.name()));
  setWindowTitle(toQt(form.caption));
  dress(*this, scale_.factor);
  build();
  place();
}

void DataWindow::detach() {
  road_.close([this] { deleteLater(); });
  hide();
}

QWidget* DataWindow::widgetOf(const forms::Control& control) const {
  const auto found = bindings_.find(&control);
  return found == bindings_.end() ? nullptr : &found->second->widget();
}

// ---- from the form

void DataWindow::follow(forms::Control& control, Change change) {
  const auto found = bindings_.find(&control);
  if (found == bindings_.end()) return;
  found->second->follow(change);
  if (change != Change::Geometry) return;
  // A panel that moves may take others with it.
  for (const auto& [each, binding] : bindings_) binding->panelMoved();
}

void DataWindow::flush() {
  for (const auto& [control, binding] : bindings_) binding->flush();
}

void DataWindow::followForm(Change change) {
  const Form* form = road_.form();
  if (form == nullptr) return;
  if (change == Change::Text) setWindowTitle(toQt(form->caption));
  if (change == Change::Enabled) setEnabled(form->enabled);
  if (change == Change::Geometry) {
    place();
    showIfWanted();
  }
}

void DataWindow::followFocus(forms::Control* control) {
  const auto found = bindings_.find(control);
  if (found == bindings_.end() || found->second->widget().hasFocus()) return;
  flush();
  road_.tell([&] {
    found->second->widget().setFocus(Qt::TabFocusReason);
    found->second->focusGiven();
  });
}

// ---- the window

bool DataWindow::onScreen() const { return road_.form() != nullptr && !road_.form()->parked; }

void DataWindow::place() {
  const Form& form = *road_.form();
  const QRect free = freeAreaAt({deckScale_.pixels(form.left), deckScale_.pixels(form.top)});
  const QSize size = QSize(scale_.pixels(form.width), scale_.pixels(form.height)).boundedTo(free.size() - QSize(kFrame, kTitleBar));
  resize(size);
  const auto within = [](int at, int first, int last) { return std::max(first, std::min(at, last)); };
  move(within(deckScale_.pixels(form.left), free.left(), free.right() + 1 - kFrame - size.width()),
       within(deckScale_.pixels(form.top), free.top(), free.bottom() + 1 - kTitleBar - size.height()));
}

void DataWindow::showWanted(bool wanted) {
  wanted_ = wanted;
  if (wanted) flush();
  showIfWanted();
}

void DataWindow::showIfWanted() {
  const bool shows = wanted_ && onScreen();
  if (!shows) keyboardLeaves(*this);
  setVisible(shows);
}

void DataWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  road_.enter([](Form& form) { form.closeAsked(); });
}

/// A press beside the controls, on the window's own ground.
void DataWindow::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) road_.enter([](Form& form) { form.mouseDown(nullptr, {forms::MouseButton::Right}); });
}

void DataWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) road_.enter([](Form& form) { form.mouseUp({forms::MouseButton::Right}); });
}

void DataWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::ActivationChange || !isActiveWindow()) return;
  keyboardTaken(*this);
  road_.enter([](Form& form) { form.activated(); });
}

// ---- DataView

DataView::~DataView() {
  if (window_ != nullptr) window_->detach();
}

void DataView::raise() {
  window_->raise();
  giveKeyboardTo(*window_);
}

}  // namespace orvanta
