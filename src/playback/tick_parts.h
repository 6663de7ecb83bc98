// What the two ticks of the deck look at and move.
#pragma once

#include "playback/deck_status.h"
#include "playback/disc_load.h"
#include "playback/modes.h"
#include "playback/track_time.h"
#include "playback/tray_answers.h"

namespace orvanta {

struct TickParts {
  DiscLoad& load;
  Engine& engine;
  Modes& modes;
  TrackTime& time;
  TrayAnswers& answers;
  Display& display;
  StatusBoard& status;
};

}  // namespace orvanta
