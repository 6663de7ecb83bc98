// Waiting for the moment.
#include "cddb/auto_lookup.h"

#include <utility>

#include "base/text.h"
#include "cddb/cddb_window.h"
#include "cddb/upward.h"
#include "library/cd_data.h"
#include "state/cddb_settings.h"

namespace orvanta {

namespace {

constexpr int kLookInterval = 100;  ///< milliseconds

}  // namespace

AutoLookup::AutoLookup(const CddbPorts& ports, CddbWindow& window, const CdData& cdData, const CDForm& faceplate, const SharedState& state,
                       CddbUpward& upward)
    : files_(ports.files),
      window_(window),
      cdData_(cdData),
      faceplate_(faceplate),
      state_(state),
      upward_(upward),
      timer_(ports.clock.makeTimer([this] { look(); })) {}

void AutoLookup::discKnown() {
  discKnown_ = true;
  timer_->setInterval(kLookInterval);
}

void AutoLookup::cddbdnld() {
  if (window_.openForPerson() || window_.automatic()) return;
  if (cdData_.openForPerson()) {
    window_.open();
  } else {
    wanted_ = true;
    timer_->setInterval(kLookInterval);
  }
}

void AutoLookup::look() {
  if (window_.loaded()) return;
  if (!discKnown_ || (considered_ && !wanted_)) {
    timer_->setInterval(0);
    return;
  }
  if (cdData_.openForPerson() || !upward_.lookupMayStart()) return;
  considered_ = true;
  decide(std::exchange(wanted_, false));
}

/// Less is asked for here than a search needs: what else is missing is told when it begins.
void AutoLookup::decide(bool wanted) {
  const CddbSettings settings = storedCddbSettings(files_, state_.settings.appDir);
  const bool unknown = trim(faceplate_.Label12.caption.get()).empty() && state_.disc.trackTitles[1].empty();
  const bool able = settings.cddbPort > 0 && !trim(settings.cddbSiteName).empty() && !trim(settings.emailUser).empty();
  if (able && (wanted || (unknown && settings.autoConnect))) {
    window_.lookUp();
  } else if (wanted) {
    window_.setUp();
  }
}

}  // namespace orvanta
