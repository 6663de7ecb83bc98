#include "platform/sound/pulse_library.h"

#include <dlfcn.h>

#include <type_traits>

namespace orvanta {

namespace {

struct Loaded : PulseLibrary {
  bool whole = false;

  Loaded() {
    void* library = dlopen("libpulse.so.0", RTLD_LAZY | RTLD_LOCAL);
    if (library == nullptr) return;
    const auto find = [&](auto& call, const char* name) {
      call = reinterpret_cast<std::remove_reference_t<decltype(call)>>(dlsym(library, name));
      return call != nullptr;
    };
    whole = true;
#define ORVANTA_PULSE_FIND(name) whole = find(name, "pa_" #name) && whole;
    ORVANTA_PULSE_CALLS(ORVANTA_PULSE_FIND)
#undef ORVANTA_PULSE_FIND
  }
};

}  // namespace

const PulseLibrary* PulseLibrary::loaded() {
  static const Loaded library;
  return library.whole ? &library : nullptr;
}

}  // namespace orvanta
