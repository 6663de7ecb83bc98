// The texts that come with a disc, where the user has none of its own.
#pragma once

#include "platform/ports/sheet_texts.h"
#include "state/disc_texts.h"

namespace orvanta {

/// Fills the fields that are empty. True when there was something to fill in.
bool fillFromSheet(DiscTexts& texts, const SheetTexts& sheet);

}  // namespace orvanta
