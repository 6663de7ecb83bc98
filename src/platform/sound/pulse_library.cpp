#include "platform/sound/pulse_library.h"

#include "platform/linux/late_library.h"

namespace orvanta {

namespace {

struct LoadedPulse : PulseLibrary {
  LateLibrary library{"libpulse.so.0"};

  LoadedPulse() {
#define ORVANTA_PULSE_FIND(name) library.find(name, "pa_" #name);
    ORVANTA_PULSE_CALLS(ORVANTA_PULSE_FIND)
#undef ORVANTA_PULSE_FIND
  }
};

}  // namespace

const PulseLibrary* PulseLibrary::loaded() {
  static const LoadedPulse loaded;
  return loaded.library.whole() ? &loaded : nullptr;
}

}  // namespace orvanta
