// Names and roles come from the control: what it shows, or what it does.
#include "platform/qt/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "platform/qt/form_view.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

namespace {

/// A slider is a panel that names the label with its percent; nullptr for all else.
const forms::Control* percentOf(const forms::Control& control) {
  constexpr std::string_view kSlider = "clear:";
  return control.art.rfind(kSlider, 0) == 0 ? control.form().find(control.art.substr(kSlider.size())) : nullptr;
}

QAccessible::Role roleOf(const forms::Control& control) {
  if (percentOf(control) != nullptr) return QAccessible::Slider;
  if (control.kind() == forms::Kind::Panel && control.tabStop) return QAccessible::PushButton;
  switch (control.kind()) {
    case forms::Kind::Label: return QAccessible::StaticText;
    case forms::Kind::Bar: return QAccessible::ProgressBar;
    case forms::Kind::TextBox: return QAccessible::EditableText;
    case forms::Kind::Panel: return QAccessible::Pane;
    case forms::Kind::Button: return QAccessible::PushButton;
    case forms::Kind::Image: return control.tabStop ? QAccessible::PushButton : QAccessible::Graphic;
    default: return QAccessible::Graphic;
  }
}

class AccessibleControl : public QAccessibleWidget {
 public:
  explicit AccessibleControl(ControlWidget& widget) : QAccessibleWidget(&widget, roleOf(widget.control())), widget_(widget) {}

  QString text(QAccessible::Text kind) const override {
    widget_.describe();
    if (const auto* bar = dynamic_cast<const forms::Bar*>(&widget_.control()); bar != nullptr && kind == QAccessible::Value) {
      return QString::number(bar->floodPercent) + QLatin1Char('%');
    }
    const forms::Control* percent = percentOf(widget_.control());
    if (percent != nullptr && kind == QAccessible::Value) return toQt(percent->caption) + QLatin1Char('%');
    return QAccessibleWidget::text(kind);
  }

  QRect rect() const override {
    const QRect own = widget_.controlRect();
    return {widget_.mapToGlobal(own.topLeft()), own.size()};
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.disabled = !widget_.control().enabled;
    state.focusable = widget_.control().tabStop;
    state.focused = widget_.control().form().activeControl() == &widget_.control();
    return state;
  }

  QStringList actionNames() const override { return widget_.control().tabStop ? QStringList{pressAction()} : QStringList{}; }

  void doAction(const QString& name) override {
    if (name == pressAction()) widget_.formWindow().press(widget_.control());
  }

 private:
  ControlWidget& widget_;
};

QAccessibleInterface* make(const QString& /*className*/, QObject* object) {
  auto* widget = dynamic_cast<ControlWidget*>(object);
  return widget == nullptr ? nullptr : new AccessibleControl(*widget);
}

}  // namespace

bool testNames() { return qEnvironmentVariableIntValue("ORVANTA_TEST_NAMES") == 1; }

void useAccessibleControls() {
  static const bool kInstalled = (QAccessible::installFactory(&make), true);
  Q_UNUSED(kInstalled);
}

void nameChanged(ControlWidget& widget, forms::Change change) {
  if (!QAccessible::isActive() || change != forms::Change::Text) return;
  widget.describe();
}

}  // namespace orvanta
