// A form on the screen: a frameless window with a child widget for each control.
#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>
#include <vector>

#include "platform/forms/form.h"
#include "platform/ports/core_gate.h"
#include "platform/qt/art.h"
#include "platform/qt/control_widget.h"
#include "platform/qt/file_drag.h"
#include "platform/qt/fonts.h"
#include "platform/qt/form_road.h"
#include "platform/qt/scale.h"
#include "platform/qt/window_drag.h"

namespace orvanta {

class FormWindow : public QWidget {
 public:
  FormWindow(forms::Form& form, CoreGate& gate, Fonts& fonts, const Scale& scale);

  /// The form is gone: nothing reaches it from here on. The window goes when the last call to it has come back.
  void detach();
  /// One of its events is on its way through the core.
  bool underWay() const { return road_.underWay(); }
  void showWanted(bool wanted);
  void follow(forms::Control& control, forms::Change change);
  void followForm(forms::Change change);
  void followFocus(forms::Control* control);
  /// Of the control that is marked as having the focus, on the screen; empty without one.
  QRect focusPlace() const;
  void paintNow(forms::Control& control);
  void drag() { drag_.begin(); }

  /// Space, ENTER and screen readers press a control by the same road as the mouse.
  void press(forms::Control& control);
  /// One step of a slider, as a notch of the wheel.
  void step(forms::Control& control, int steps);

  const Scale& scale() const { return scale_; }
  Stock stock() { return {fonts_, artCache_, glows_}; }
  forms::Form& form() const { return form_; }
  ControlWidget* widgetOf(const forms::Control& control) const;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  // Qt's would paint the whole window anew; the mark of focus follows focusMoved().
  void focusInEvent(QFocusEvent* /*event*/) override {}
  void focusOutEvent(QFocusEvent* /*event*/) override {}

 private:
  void build();
  void drawSurfaces();
  void placeWindow();
  bool onScreen() const;
  forms::Control* hit(const QPoint& place, const forms::Control* within = nullptr) const;
  forms::Mouse mouseAt(const QMouseEvent& event, const forms::Control* control) const;

  forms::Form& form_;  ///< lives as long as the program, loaded or not
  FormRoad road_;
  Fonts& fonts_;
  ArtCache artCache_{ArtCache::kSurfaces};
  ArtCache glows_{ArtCache::kGlows};
  Scale scale_;
  WindowDrag drag_;
  std::map<const forms::Control*, ControlWidget*> widgets_;
  FileDrag* fileDrag_ = nullptr;
  std::map<const forms::Control*, std::vector<ControlWidget*>> followers_;  ///< whose partner a control is
  ControlWidget* focused_ = nullptr;
  int wheel_ = 0;  ///< of a notch, in Qt's eighths of a degree
  bool painted_ = false;
  bool wanted_ = false;  ///< shown, as far as the form goes
};

/// The form's side. It may go in the midst of one of the window's events, so the window outlives it for a moment.
class FixedView : public forms::FormView {
 public:
  FixedView(forms::Form& form, CoreGate& gate, Fonts& fonts, const Scale& scale) : window_(new FormWindow(form, gate, fonts, scale)) {}
  ~FixedView() override;
  FixedView(const FixedView&) = delete;
  FixedView& operator=(const FixedView&) = delete;

  void show() override { window_->showWanted(true); }
  void hide() override { window_->showWanted(false); }
  void raise() override;
  void changed(forms::Control& control, forms::Change change) override { window_->follow(control, change); }
  void formChanged(forms::Change change) override { window_->followForm(change); }
  void refresh(forms::Control& control) override { window_->paintNow(control); }
  void focusMoved(forms::Control* control) override { window_->followFocus(control); }
  void drag() override { window_->drag(); }
  FormWindow* window() const { return window_; }

 private:
  QPointer<FormWindow> window_;
};

}  // namespace orvanta
