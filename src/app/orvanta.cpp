// The core's parts and who calls whom.
#include "app/orvanta.h"

#include "platform/ports/cd_device.h"

namespace orvanta {

Orvanta::Orvanta(Ports& ports)
    : ports_(ports),
      layer_(ports.device, ports.dialogs, state.disc),
      discLoad_(ports.device, layer_, ports.files, ports.screen, display_, form, state, *this),
      engine_(ports.device, ports.files, ports.screen, display_, form, state, *this),
      clock_(ports.device, ports.clock, layer_, discLoad_, engine_, display_, form, state),
      buttons_(ports.device, ports.clock, engine_, form, state, *this),
      drawer_(ports.files, form, state),
      exit_(ports, engine_, form, state),
      faceplate_(ports.device, ports.files, discLoad_, engine_, clock_, buttons_, colours_, form, state, *this) {
  form.setEvents(&faceplate_);
}

void Orvanta::start(const HostOptions& options) {
  startUp_.run(options);
  form.smallFonts = state.process.smallFonts == kOn;
  form.show(ports_.desktop);
}

}  // namespace orvanta
