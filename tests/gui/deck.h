// The core over fakes, with the real view.
#pragma once

#include <cmath>

#include <QImage>
#include <functional>

#include "platform/qt/form_view.h"
#include "platform/qt/qt_desktop.h"
#include "tests/support/core_rig.h"

namespace orvanta::test {

inline FormWindow* windowOf(const forms::Form& form) {
  const auto* view = dynamic_cast<FixedView*>(form.view());
  return view == nullptr ? nullptr : view->window();
}

struct Deck : CoreRig {
  /// `prepare` may change settings, disc and levels before the start.
  explicit Deck(double factor = 1, int twips = 15, const std::function<void(Deck&)>& prepare = {})
      : scale{factor, twips}, qtDesktop(gate, scale) {
    screen.twips = twips;
    player.insert(discA());
    if (prepare) prepare(*this);
    install();
    gate.enter([&] {
      core.startUp({});
      core.showFaceplate();
    });
    clock.advance(100);
    window = windowOf(core.form);
  }
  QRect inWindow(const forms::Control& control) const {
    const ControlWidget* widget = window->widgetOf(control);
    return {widget->mapTo(window, widget->controlRect().topLeft()), widget->controlRect().size()};
  }
  QImage picture() const { return window->grab().toImage(); }
  Scale scale;
  QtDesktop qtDesktop;
  Ports realPorts{device,    tray,  discData, clock,   dialogs, files, processes,  screen, system,
                  auxVolume, mixer, sounds,   printer, net,     menus, systemTray, facts,  qtDesktop};
  Orvanta core{realPorts};
  FormWindow* window = nullptr;
};

}  // namespace orvanta::test
