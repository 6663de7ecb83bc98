// The light around a window over which a file hovers that it would take.
#pragma once

#include <QWidget>

namespace orvanta {

class Rim : public QWidget {
 public:
  Rim(QWidget& window, double factor);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double factor_;
};

}  // namespace orvanta
