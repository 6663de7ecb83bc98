// One control of a data window and the widget that shows it: what the form changes goes to the widget, what the user
// does goes to the form.
#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <string_view>
#include <utility>

#include "platform/forms/form.h"
#include "platform/ports/core_gate.h"

namespace orvanta {

/// The way from the widgets into the core. The form may go in the midst of a call.
class FormRoad {
 public:
  FormRoad(forms::Form& form, CoreGate& gate) : form_(&form), gate_(gate) {}

  /// nullptr once it is gone.
  forms::Form* form() const { return form_; }
  /// Nothing is called any more. `afterLast` runs when the calls that are under way have come back.
  void close(std::function<void()> afterLast);

  template <class Work>
  void enter(const Work& work) {
    if (form_ == nullptr || telling_) return;
    ++entered_;
    gate_.enter([&] { work(*form_); });
    if (--entered_ == 0 && form_ == nullptr) afterLast_();
  }

  /// Changes widgets: what they tell meanwhile is no user's doing.
  template <class Work>
  void tell(const Work& work) {
    const bool before = std::exchange(telling_, true);
    work();
    telling_ = before;
  }
  bool telling() const { return telling_; }

 private:
  forms::Form* form_;
  CoreGate& gate_;
  std::function<void()> afterLast_;
  int entered_ = 0;
  bool telling_ = false;
};

/// The control's table has this hint for its view.
inline bool hinted(const forms::Control& control, std::string_view hint) { return control.art.find(hint) != std::string::npos; }

class Binding : public QObject {
 public:
  Binding(FormRoad& road, forms::Control& control, QWidget* widget);

  QWidget& widget() const { return *widget_; }
  const forms::Control& control() const { return control_; }
  void follow(forms::Change change);
  virtual void showVisibility();
  /// A panel's place changed, maybe this one's.
  virtual void panelMoved() {}
  /// What waits is shown.
  virtual void flush() {}
  /// Focus came by the program, which counts as by Tab: what stands in a field is selected, so that typing replaces it.
  virtual void focusGiven() {}
  /// Takes the room of its column.
  virtual bool fills() const { return false; }
  /// A caption with a letter of its own leads to the field behind it.
  virtual void leadTo(QWidget& /*field*/) {}

 protected:
  virtual void showText() {}
  virtual void showLook() {}
  virtual void showRows() {}
  virtual void showSelection() {}
  /// Its left presses are the form's to know, too.
  virtual bool tellsPresses() const { return false; }
  virtual bool hasOwnMenu() const { return false; }

  /// Keys, focus and the mouse on the widget, or on an inner part of it, go to the form.
  void watch(QObject& part) { part.installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override;
  void typed(const QString& text);

  FormRoad& road_;

 private:
  bool mouse(QEvent& event);

  forms::Control& control_;
  QWidget* widget_;  ///< its parent's
};

}  // namespace orvanta
