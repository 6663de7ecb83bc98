// The mixer program, driven by key texts; a stand-in that moves the sound system's master volume.
#pragma once

#include <string>

namespace orvanta {

/// The mixer's window as both sides know it.
namespace mixer {
constexpr const char* kTitle = "Volume Control";
constexpr int kPlaces = 250;  ///< of its slider, from the bottom up
constexpr int kPage = 50;     ///< of them to a page key
}  // namespace mixer

class MixerApplication {
 public:
  virtual ~MixerApplication() = default;
  /// Starts `program` without showing a window; false when there is none. A stand-in may know no programs.
  virtual bool startHidden(const std::string& program) = 0;
  virtual bool activate(const std::string& title) = 0;
  /// Key texts as "{TAB}", "{PGUP 2}", "{+}"; what is not understood is passed over.
  virtual void sendKeys(const std::string& keys) = 0;
  /// True when a window of that title was found and closed.
  virtual bool close(const std::string& title) = 0;
};

}  // namespace orvanta
