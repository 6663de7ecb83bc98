// What the user is told of a program that the deck waited for.
#pragma once

#include <optional>
#include <string>

#include "platform/ports/dialogs.h"
#include "platform/ports/processes.h"

namespace orvanta {

/// `program`: as the subject of a sentence; `how`: of Processes::runAndWait(). One that ended by itself has told all there is to tell.
inline void tellHowEnded(Dialogs& dialogs, const std::string& program, const std::optional<int>& how) {
  if (!how) dialogs.message(BoxStyle::Warning, "Orvanta", program + " could not be run.");
  if (how == Processes::kBrokeOff)
    dialogs.message(BoxStyle::Warning, "Orvanta", program + " broke off. What was changed there and not saved is lost.");
}

}  // namespace orvanta
