// Keeps what the user changed, a second after the change: a deck that is killed loses nothing.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "app/ports.h"
#include "platform/ports/clock.h"
#include "state/shared_state.h"

namespace orvanta {

class Keeper {
 public:
  Keeper(const LifePorts& ports, const SharedState& state);
  /// From here on; what stands now was just read. `more` keeps what else a person changes, each second anew.
  void start(std::function<void()> more);

 private:
  void look();
  std::string now() const;

  LifePorts ports_;
  const SharedState& state_;
  std::function<void()> more_;
  std::string kept_;  ///< as last written, or tried to be
  std::unique_ptr<Timer> timer_;
};

}  // namespace orvanta
