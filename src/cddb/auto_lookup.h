// When the CDDB is asked without its window: an unknown disc's turn once a process, and when a person chose "Get CDDB Data
// Online"; as soon as nothing stands in the way.
#pragma once

#include <memory>

#include "cddb/ports.h"
#include "platform/ports/clock.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class CdData;
class CddbUpward;
class CddbWindow;

class AutoLookup {
 public:
  AutoLookup(const CddbPorts& ports, CddbWindow& window, const CdData& cdData, const CDForm& faceplate, const SharedState& state,
             CddbUpward& upward);

  /// The disc's table is complete.
  void discKnown();
  /// "Get CDDB Data Online". With CD Data open it is that window's disc that is looked up, where its user sees it.
  void cddbdnld();

 private:
  void look();
  void decide(bool wanted);

  Files& files_;
  CddbWindow& window_;
  const CdData& cdData_;
  const CDForm& faceplate_;
  const SharedState& state_;
  CddbUpward& upward_;
  std::unique_ptr<Timer> timer_;
  bool discKnown_ = false;
  bool considered_ = false;  ///< the lookup of an unknown disc had its turn
  bool wanted_ = false;      ///< a person asked for one
};

}  // namespace orvanta
