// How the deck of a scenario is started: its disc, settings, files and world.
#pragma once

#include "tests/support/play_rig.h"
#include "tests/support/script_words.h"

namespace orvanta::test {

/// "A", "B", "none", "24x60" (tracks by seconds), or frames: starts, below 0 of data, and the lead-out.
Toc discOf(const Word& word);
Toc discIn(const std::vector<Word>& start);
/// All else that a line of a start says, before the deck is there.
void prepare(PlayRig& rig, const std::vector<Word>& start);

}  // namespace orvanta::test
