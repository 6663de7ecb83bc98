// The disc door: what stands open or shut, and the deck without a disc that goes with it.
#pragma once

#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class Files;

class Drawer {
 public:
  Drawer(Files& files, CDForm& form, SharedState& state) : files_(files), form_(form), state_(state) {}

  /// Nothing when it stands open.
  void opendrawer();

 private:
  bool isOpen() const;
  void maskKeys();
  void greyLegends();

  Files& files_;
  CDForm& form_;
  SharedState& state_;
};

}  // namespace orvanta
