// For developers: turns of the event loop that would be felt.
#pragma once

namespace orvanta {

/// With the log's topic "turns", each turn that keeps the loop longer than a frame of the screen is told.
void watchTurns();

}  // namespace orvanta
