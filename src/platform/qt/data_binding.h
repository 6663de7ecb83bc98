// One control of a data window and the widget that shows it: what the form changes goes to the widget, what the user
// does goes to the form.
#pragma once

#include <QObject>
#include <QWidget>
#include <string_view>

#include "platform/forms/form.h"
#include "platform/qt/form_road.h"

namespace orvanta {

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
