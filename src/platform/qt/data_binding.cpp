// What all widgets of data windows have: names, visibility, and the way of keys and mouse to the form.
#include "platform/qt/data_binding.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/qt/accessible.h"
#include "platform/qt/keys.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

using forms::Change;
using forms::Form;

Binding::Binding(FormRoad& road, forms::Control& control, QWidget* widget) : road_(road), control_(control), widget_(widget) {
  if (!control.says.empty()) widget->setAccessibleName(toQt(control.says));
  widget->setAccessibleDescription(toQt(testNames() ? control.fullName() : control.toolTip.get()));
  widget->setObjectName(toQt(control.fullName()));
  widget->setToolTip(plainTip(control.toolTip));
}

void Binding::follow(Change change) {
  switch (change) {
    case Change::Text: road_.tell([this] { showText(); }); break;
    case Change::Visibility: showVisibility(); break;
    case Change::Enabled: widget_->setEnabled(control_.enabled); break;
    case Change::Look: showLook(); break;
    case Change::Rows: showRows(); break;
    case Change::Selection: showSelection(); break;
    case Change::Geometry: break;
  }
}

void Binding::showVisibility() { widget_->setVisible(control_.visible && control_.insideForm()); }

void Binding::typed(const QString& text) {
  if (road_.telling()) return;
  road_.enter([&](Form& form) { form.userText(control_, text.toStdString()); });
  if (road_.form() != nullptr) follow(Change::Text);
}

/// Presses on lists, and the right button everywhere but where a menu of the widget's own would take the release, are
/// the form's to know. In a list no other button chooses anything.
bool Binding::mouse(QEvent& event) {
  const Qt::MouseButton pressed = static_cast<QMouseEvent&>(event).button();
  const bool right = pressed == Qt::RightButton;
  if (!right && pressed != Qt::LeftButton) return tellsPresses();
  if (right ? hasOwnMenu() : !tellsPresses()) return false;
  const auto button = right ? forms::MouseButton::Right : forms::MouseButton::Left;
  road_.enter([&](Form& form) {
    if (event.type() == QEvent::MouseButtonPress) {
      form.mouseDown(&control_, {button});
    } else {
      form.mouseUp({button, -1, -1});
    }
  });
  return right;
}

bool Binding::eventFilter(QObject* watched, QEvent* event) {
  bool used = false;
  switch (event->type()) {
    case QEvent::KeyPress:
      road_.enter([&](Form& form) {
        form.userFocus(control_);
        used = form.keyDown(keyPress(*static_cast<QKeyEvent*>(event)));
      });
      break;
    case QEvent::KeyRelease:
      if (!static_cast<QKeyEvent*>(event)->isAutoRepeat())
        road_.enter([&](Form& form) { form.keyUp(keyPress(*static_cast<QKeyEvent*>(event))); });
      break;
    case QEvent::FocusIn: road_.enter([&](Form& form) { form.userFocus(control_); }); break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease: used = mouse(*event); break;
    case QEvent::MouseButtonDblClick:
      // For the view it would be one more press, of whatever button.
      used = tellsPresses() && static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton;
      break;
    default: break;
  }
  return used || QObject::eventFilter(watched, event);
}

}  // namespace orvanta
