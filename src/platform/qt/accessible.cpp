// Names, roles and states come from the control: what it shows, or what it does. What only decorates is
// not told at all.
#include "platform/qt/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTimer>
#include <algorithm>
#include <vector>

#include "platform/qt/form_view.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

namespace {

/// A slider has a label with its percent; nullptr for all else.
const forms::Control* percentOf(const forms::Control& control) { return control.with(forms::Role::Percent); }

bool isHeard(const ControlWidget& widget);

/// The children that a screen reader meets.
std::vector<ControlWidget*> heardIn(const QWidget& owner) {
  std::vector<ControlWidget*> heard;
  for (QObject* child : owner.children()) {
    auto* widget = dynamic_cast<ControlWidget*>(child);
    if (widget != nullptr && isHeard(*widget)) heard.push_back(widget);
  }
  return heard;
}

bool isHeard(const ControlWidget& widget) {
  const forms::Control& control = widget.control();
  switch (control.kind()) {
    case forms::Kind::Image:
    case forms::Kind::Line:
    case forms::Kind::Shape: return control.tabStop || !control.says.empty();
    case forms::Kind::Panel: return control.tabStop || !control.says.empty() || !heardIn(widget).empty();
    default: return true;
  }
}

QAccessible::Role roleOf(const forms::Control& control) {
  if (percentOf(control) != nullptr) return QAccessible::Slider;
  if (control.kind() == forms::Kind::Panel && control.tabStop) return QAccessible::PushButton;
  switch (control.kind()) {
    case forms::Kind::Label: return control.tabStop ? QAccessible::Link : QAccessible::StaticText;
    case forms::Kind::Bar: return QAccessible::ProgressBar;
    case forms::Kind::TextBox: return QAccessible::EditableText;
    case forms::Kind::Panel: return QAccessible::Pane;
    case forms::Kind::Button: return QAccessible::PushButton;
    case forms::Kind::Image: return control.tabStop ? QAccessible::PushButton : QAccessible::Graphic;
    default: return QAccessible::Graphic;
  }
}

/// A widget whose children are those that are heard.
class AccessibleParent : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;
  int childCount() const override { return static_cast<int>(heardIn(*widget()).size()); }
  QAccessibleInterface* child(int index) const override {
    const auto heard = heardIn(*widget());
    return index < 0 || index >= static_cast<int>(heard.size()) ? nullptr
                                                                : QAccessible::queryAccessibleInterface(heard[static_cast<size_t>(index)]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto heard = heardIn(*widget());
    const auto found = std::find(heard.begin(), heard.end(), child == nullptr ? nullptr : child->object());
    return found == heard.end() ? -1 : static_cast<int>(found - heard.begin());
  }
};

/// Heard by its title, which Qt forgets of one that is minimised: a task button is nothing else.
class AccessibleWindow : public AccessibleParent {
 public:
  explicit AccessibleWindow(FormWindow& window) : AccessibleParent(&window, QAccessible::Window), window_(window) {}
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? toQt(window_.form().caption) : AccessibleParent::text(kind);
  }

 private:
  const FormWindow& window_;
};

class AccessibleControl : public AccessibleParent {
 public:
  explicit AccessibleControl(ControlWidget& widget) : AccessibleParent(&widget, roleOf(widget.control())), widget_(widget) {}

  QString text(QAccessible::Text kind) const override {
    widget_.describe();
    if (kind == QAccessible::Value && widget_.control().kind() == forms::Kind::Bar) return toQt(widget_.control().state());
    const forms::Control* percent = percentOf(widget_.control());
    if (percent != nullptr && kind == QAccessible::Value) return toQt(percent->caption) + QLatin1Char('%');
    return QAccessibleWidget::text(kind);
  }

  QRect rect() const override {
    const QRect own = widget_.controlRect();
    return {widget_.mapToGlobal(own.topLeft()), own.size()};
  }

  QAccessible::State state() const override {
    const forms::Control& control = widget_.control();
    QAccessible::State state = QAccessibleWidget::state();
    state.disabled = !control.available();
    state.focusable = control.tabStop;
    state.focused = control.form().activeControl() == &control;
    state.checkable = control.with(forms::Role::Light) != nullptr;
    state.checked = control.on();
    state.pressed = control.on() || control.form().pressed() == &control;
    return state;
  }

  QStringList actionNames() const override {
    if (percentOf(widget_.control()) != nullptr) return {increaseAction(), decreaseAction()};
    return widget_.control().tabStop ? QStringList{pressAction()} : QStringList{};
  }

  void doAction(const QString& name) override {
    const bool slider = percentOf(widget_.control()) != nullptr;
    if (slider && (name == increaseAction() || name == decreaseAction())) {
      widget_.formWindow().step(widget_.control(), name == increaseAction() ? 1 : -1);
    } else if (!slider && name == pressAction()) {
      // Whoever asks is answered first: a key may open a menu or a box, and comes back when that is closed.
      QTimer::singleShot(0, &widget_, [&widget = widget_] { widget.formWindow().press(widget.control()); });
    }
  }

 private:
  ControlWidget& widget_;
};

QAccessibleInterface* make(const QString& /*className*/, QObject* object) {
  if (auto* widget = dynamic_cast<ControlWidget*>(object)) return new AccessibleControl(*widget);
  auto* window = dynamic_cast<FormWindow*>(object);
  return window == nullptr ? nullptr : new AccessibleWindow(*window);
}

void tell(ControlWidget& widget, QAccessible::Event what) {
  QAccessibleEvent event(&widget, what);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

bool testNames() { return qEnvironmentVariableIntValue("ORVANTA_TEST_NAMES") == 1; }

void useAccessibleControls() {
  static const bool kInstalled = (QAccessible::installFactory(&make), true);
  Q_UNUSED(kInstalled);
}

void titleChanged(FormWindow& window) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&window, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

void nameChanged(ControlWidget& widget) {
  if (QAccessible::isActive()) widget.describe();
}

void stateChanged(ControlWidget& widget) {
  if (!QAccessible::isActive() || !isHeard(widget)) return;
  if (percentOf(widget.control()) != nullptr) {
    // An event of its own kind: a screen reader reads the value out of it.
    const QString value = QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Value);
    QAccessibleValueChangeEvent event(&widget, value);
    QAccessible::updateAccessibility(&event);
    return;
  }
  QAccessible::State changed;
  changed.disabled = changed.checked = changed.pressed = true;
  QAccessibleStateChangeEvent event(&widget, changed);
  QAccessible::updateAccessibility(&event);
}

void focusChanged(ControlWidget& widget) {
  if (QAccessible::isActive()) tell(widget, QAccessible::Focus);
}

}  // namespace orvanta
