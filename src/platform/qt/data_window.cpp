// The roads between the widgets of a data window and its controls.
#include "platform/qt/data_window.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <algorithm>

#include "platform/qt/data_style.h"
#include "platform/qt/keys.h"
#include "platform/qt/row_list.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

using forms::Change;

namespace {

constexpr int kTitleBar = 32;  ///< pixels that the window manager adds above, as a rule
constexpr int kFrame = 8;      ///< what a window manager's frame takes of the width, in pixels

std::string fromQt(const QString& text) { return text.toStdString(); }

QRect freeAreaAt(const QPoint& place) {
  QScreen* screen = QGuiApplication::screenAt(place);
  return (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

/// The deck's scale, or the largest at which the window fits the screen.
Scale fitted(Scale scale, const forms::Form& form) {
  const QRect free = freeAreaAt({scale.pixels(form.left), scale.pixels(form.top)});
  const auto factor = [&](int pixels, int twips) { return static_cast<double>(pixels) * scale.twipsPerPixel / twips; };
  scale.factor = std::min({scale.factor, factor(free.width() - kFrame, form.width), factor(free.height() - kTitleBar, form.height)});
  return scale;
}

}  // namespace

DataWindow::DataWindow(forms::Form& form, CoreGate& gate, const Scale& scale)
    : form_(&form), gate_(gate), deckScale_(scale), scale_(fitted(scale, form)) {
  setAttribute(Qt::WA_QuitOnClose, false);
  setObjectName(toQt(form.name()));
  setWindowTitle(toQt(form.caption));
  dress(*this, scale_.factor);
  build();
  resize(scale_.pixels(form.width), scale_.pixels(form.height));
}

void DataWindow::detach() {
  form_ = nullptr;
  hide();
  if (entered_ == 0) deleteLater();
}

QRect DataWindow::freeArea() const { return freeAreaAt({deckScale_.pixels(form_->left), deckScale_.pixels(form_->top)}); }

QWidget* DataWindow::widgetOf(const forms::Control& control) const {
  const auto found = widgets_.find(&control);
  return found == widgets_.end() ? nullptr : found->second;
}

// ---- from the form

void DataWindow::follow(forms::Control& control, Change change) {
  QWidget* widget = widgetOf(control);
  if (widget == nullptr) return;
  switch (change) {
    case Change::Text: showText(control); break;
    case Change::Visibility: showVisibility(control); break;
    case Change::Geometry: showFrames(); break;
    case Change::Enabled: widget->setEnabled(control.enabled); break;
    case Change::Look:
      if (auto* list = dynamic_cast<forms::ListBox*>(&control)) {
        dressRows(*static_cast<QTreeWidget*>(widget), *list, scale_.factor);
        markRow(*static_cast<QTreeWidget*>(widget), list->markedRow);
      }
      break;
    case Change::Rows:
    case Change::Selection: break;
  }
  if (auto* list = dynamic_cast<forms::ListBox*>(&control); list != nullptr && (change == Change::Rows || change == Change::Selection)) {
    if (waiting_.empty()) QTimer::singleShot(0, this, [this] { flush(); });
    waiting_[list] = waiting_[list] || change == Change::Rows;
  }
  if (auto* combo = dynamic_cast<forms::Combo*>(&control); combo != nullptr && change == Change::Rows) {
    telling_ = true;
    auto* view = static_cast<QComboBox*>(widget);
    view->clear();
    for (const std::string& item : combo->items()) view->addItem(toQt(item));
    view->setEditText(toQt(combo->caption));
    telling_ = false;
  }
  if (const auto* check = dynamic_cast<forms::CheckBox*>(&control)) static_cast<QAbstractButton*>(widget)->setChecked(check->value);
  auto* box = dynamic_cast<forms::TextBox*>(&control);
  if (box == nullptr || change != Change::Selection || !box->allSelected) return;
  if (auto* line = dynamic_cast<QLineEdit*>(widget)) line->selectAll();
  if (auto* notes = dynamic_cast<QPlainTextEdit*>(widget)) notes->selectAll();
}

void DataWindow::showText(forms::Control& control) {
  telling_ = true;
  QWidget* widget = widgetOf(control);
  const QString text = toQt(control.caption);
  if (auto* line = dynamic_cast<QLineEdit*>(widget); line != nullptr && line->text() != text) line->setText(text);
  if (auto* notes = dynamic_cast<QPlainTextEdit*>(widget); notes != nullptr && notes->toPlainText() != text) notes->setPlainText(text);
  if (auto* combo = dynamic_cast<QComboBox*>(widget); combo != nullptr && combo->currentText() != text) combo->setEditText(text);
  if (auto* label = dynamic_cast<QLabel*>(widget)) label->setText(text);
  if (auto* button = dynamic_cast<QPushButton*>(widget)) button->setText(text);
  telling_ = false;
}

void DataWindow::showVisibility(forms::Control& control) {
  QWidget& widget = *widgets_.at(&control);
  // The tab that shows has its key hidden: here it is the one that is pressed in.
  if (has(control, "tab")) {
    static_cast<QPushButton&>(widget).setChecked(!control.visible);
    return;
  }
  widget.setVisible(control.visible && control.insideForm());
}

void DataWindow::showFrames() {
  for (const auto& [control, widget] : widgets_) {
    if (control->kind() == forms::Kind::Panel) widget->setVisible(control->visible && control->insideForm());
  }
}

void DataWindow::flush() {
  if (form_ == nullptr) return;
  const auto waiting = std::exchange(waiting_, {});
  telling_ = true;
  for (const auto& [list, rows] : waiting) {
    auto& view = *static_cast<QTreeWidget*>(widgetOf(*list));
    if (rows) showRows(*list, view);
    showSelection(*list, view);
  }
  telling_ = false;
}

void DataWindow::showRows(forms::ListBox& list, QTreeWidget& view) {
  std::vector<std::string> rows;
  rows.reserve(static_cast<size_t>(list.count()));
  for (int row = 0; row < list.count(); ++row) rows.push_back(list.row(row));
  fillRows(view, rows);
  markRow(view, list.markedRow);
}

void DataWindow::showSelection(forms::ListBox& list, QTreeWidget& view) {
  view.setCurrentItem(view.topLevelItem(list.listIndex()), 0, QItemSelectionModel::NoUpdate);
  for (int row = 0; row < list.count(); ++row) {
    if (QTreeWidgetItem* item = view.topLevelItem(row)) item->setSelected(list.selected(row));
  }
  if (list.listIndex() >= 0) view.scrollToItem(view.topLevelItem(list.listIndex()));
}

void DataWindow::followForm(Change change) {
  if (form_ == nullptr) return;
  if (change == Change::Text) setWindowTitle(toQt(form_->caption));
  if (change == Change::Enabled) setEnabled(form_->enabled);
  if (change == Change::Geometry) {
    place();
    setVisible(wanted_ && onScreen());
  }
}

void DataWindow::followFocus(forms::Control* control) {
  QWidget* widget = control == nullptr ? nullptr : widgetOf(*control);
  if (widget == nullptr || widget->hasFocus()) return;
  flush();
  telling_ = true;
  // As by Tab: what stands in a field is selected, so that typing replaces it.
  widget->setFocus(Qt::TabFocusReason);
  if (auto* line = dynamic_cast<QLineEdit*>(widget)) line->selectAll();
  if (auto* combo = dynamic_cast<QComboBox*>(widget); combo != nullptr && combo->lineEdit() != nullptr) combo->lineEdit()->selectAll();
  telling_ = false;
}

// ---- the window

bool DataWindow::onScreen() const { return form_ != nullptr && !form_->parked; }

void DataWindow::place() {
  const QRect free = freeArea();
  const QSize size = QSize(scale_.pixels(form_->width), scale_.pixels(form_->height)).boundedTo(free.size() - QSize(kFrame, kTitleBar));
  resize(size);
  const auto within = [](int at, int first, int last) { return std::max(first, std::min(at, last)); };
  move(within(deckScale_.pixels(form_->left), free.left(), free.right() + 1 - kFrame - size.width()),
       within(deckScale_.pixels(form_->top), free.top(), free.bottom() + 1 - kTitleBar - size.height()));
}

void DataWindow::showWanted(bool wanted) {
  wanted_ = wanted;
  if (wanted) flush();
  setVisible(wanted && onScreen());
}

void DataWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  enter([&] { form_->closeAsked(); });
}

/// A press beside the controls, on the window's own ground.
void DataWindow::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) enter([&] { form_->mouseDown(nullptr, {forms::MouseButton::Right}); });
}

void DataWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) enter([&] { form_->mouseUp({forms::MouseButton::Right}); });
}

void DataWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) enter([&] { form_->activated(); });
}

// ---- from the user

void DataWindow::userTyped(forms::Control& control, const QString& text) {
  if (telling_) return;
  enter([&] { form_->userText(control, fromQt(text)); });
  if (form_ != nullptr) showText(control);
}

void DataWindow::userSelected(forms::ListBox& list) {
  if (telling_ || form_ == nullptr) return;
  auto& view = *static_cast<QTreeWidget*>(widgetOf(list));
  std::vector<int> selection;
  for (QTreeWidgetItem* item : view.selectedItems()) selection.push_back(view.indexOfTopLevelItem(item));
  enter([&] { form_->userRow(list, view.indexOfTopLevelItem(view.currentItem()), selection); });
}

/// Presses on lists, and the right button everywhere, are the form's to know.
bool DataWindow::mouse(forms::Control& control, QEvent* event) {
  const auto* mouse = static_cast<QMouseEvent*>(event);
  const bool right = mouse->button() == Qt::RightButton;
  if (!right && control.kind() != forms::Kind::List) return false;
  const forms::Mouse at{right ? forms::MouseButton::Right : forms::MouseButton::Left, 0, 0, false};
  if (event->type() == QEvent::MouseButtonPress) {
    enter([&] { form_->mouseDown(&control, at); });
  } else {
    enter([&] { form_->mouseUp({at.button, -1, -1, false}); });
  }
  // A text field keeps its own menu.
  return right && control.kind() != forms::Kind::TextBox && control.kind() != forms::Kind::Combo;
}

bool DataWindow::eventFilter(QObject* watched, QEvent* event) {
  const auto found = controls_.find(watched);
  if (form_ == nullptr || found == controls_.end()) return QWidget::eventFilter(watched, event);
  forms::Control& control = *found->second;
  bool used = false;
  switch (event->type()) {
    case QEvent::KeyPress:
      enter([&] {
        form_->userFocus(control);
        used = form_->keyDown(keyPress(*static_cast<QKeyEvent*>(event)));
      });
      break;
    case QEvent::KeyRelease:
      if (!static_cast<QKeyEvent*>(event)->isAutoRepeat()) enter([&] { form_->keyUp(keyPress(*static_cast<QKeyEvent*>(event))); });
      break;
    case QEvent::FocusIn: enter([&] { form_->userFocus(control); }); break;
    // A combo that the wheel happens to pass over keeps its value.
    case QEvent::Wheel: used = control.kind() == forms::Kind::Combo; break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease: used = mouse(control, event); break;
    default: break;
  }
  return used || QWidget::eventFilter(watched, event);
}

// ---- DataView

DataView::~DataView() {
  if (window_ == nullptr) return;
  window_->detach();
}

void DataView::raise() {
  window_->raise();
  window_->activateWindow();
}

}  // namespace orvanta
