// One control of a form of fixed places: a widget that is larger than it by the room for its glow.
#pragma once

#include <QImage>
#include <QWidget>
#include <string>
#include <vector>

#include "platform/forms/control.h"
#include "platform/qt/art.h"

namespace orvanta {

class FormWindow;

/// What drawings are made with and kept in. A thread that draws has its own.
struct Stock {
  Fonts& fonts;
  ArtCache& pictures;
  ArtCache& glows;
};

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
  /// By what its picture is kept; "" for one that is drawn anew at each paint.
  std::string pictureKey() const;
  /// With its bleed. On any thread, while the window's own waits.
  QImage picture(const Stock& stock) const;
  /// The control's own rectangle, without the bleed.
  QRect controlRect() const;
  /// What it is larger than its control on each side, in pixels.
  int bleed() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void place();
  void paintPicture();
  void paintArt(QPainter& painter, const Stock& stock) const;

  FormWindow& window_;
  forms::Control& control_;
  ControlWidget* outer_;
  std::vector<ControlWidget*> inner_;
};

}  // namespace orvanta
