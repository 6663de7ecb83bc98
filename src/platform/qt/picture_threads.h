// Pictures of many controls at once.
#pragma once

#include <vector>

#include "platform/qt/control_widget.h"

namespace orvanta {

/// Draws those of the kept pictures that `cache` lacks. The caller waits, so that no control changes meanwhile.
void keepPictures(const std::vector<const ControlWidget*>& widgets, ArtCache& cache);

}  // namespace orvanta
