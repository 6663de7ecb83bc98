// One control of a form of fixed places: a widget that is larger than it by the room for its glow.
#pragma once

#include <QWidget>
#include <vector>

#include "platform/forms/control.h"

namespace orvanta {

class FormWindow;

class ControlWidget : public QWidget {
 public:
  /// `outer`: the panel that it lies on, nullptr for the window.
  ControlWidget(FormWindow& window, ControlWidget* outer, forms::Control& control);
  forms::Control& control() const { return control_; }
  FormWindow& formWindow() const { return window_; }
  /// Takes over place, visibility and name.
  void follow(forms::Change change);
  /// A mask came, a light went out, a lamp that lends its colour changed.
  void followPartner();
  void describe();
  void showIfInside();
  /// The control's own rectangle, without the bleed.
  QRect controlRect() const;
  /// What it is larger than its control on each side, in pixels.
  int bleed() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void place();
  void paintPicture();
  void paintArt(QPainter& painter);

  FormWindow& window_;
  forms::Control& control_;
  ControlWidget* outer_;
  std::vector<ControlWidget*> inner_;
};

}  // namespace orvanta
