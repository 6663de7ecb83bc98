// settings.dat: the modes of display and play. (The window's place is saved at the end of each drag, the level by its line.)
#include "app/keeper.h"

#include <utility>

#include "state/settings_files.h"

namespace orvanta {

namespace {

constexpr int kLook = 1000;  ///< milliseconds

}  // namespace

Keeper::Keeper(const LifePorts& ports, const SharedState& state)
    : ports_(ports), state_(state), timer_(ports.clock.makeTimer([this] { look(); })) {}

std::string Keeper::now() const { return writtenFields(SettingsFile::SettingsDat, state_.settings).bytes(); }

void Keeper::start(std::function<void()> more) {
  more_ = std::move(more);
  kept_ = now();
  timer_->setInterval(kLook);
}

/// A save that fails is tried again with the next change, and at the exit: nobody is told of it each second.
void Keeper::look() {
  more_();
  const std::string fields = now();
  if (fields == kept_) return;
  kept_ = fields;
  keepModes(ports_.files, state_.settings);
}

}  // namespace orvanta
