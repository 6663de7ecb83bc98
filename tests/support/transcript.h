// Scenarios as text: what a person does at the deck, and all that it changes. A file of tests/data is a list of them:
//
//   == Title of a scenario
//   : disc=B repeat=1            what the deck is started with
//   > D +2 icntla(3)             acts: keys, seconds that pass, controls that are pressed
//     paused 1 at 2 | 1 3:00 "Title 1" 0:02 | F/ASG scan     what then plays, stands on the display and is lit
//     Label21 "PAUSE"            every control that looks different, and whatever else the deck did
#pragma once

#include <functional>
#include <string>

namespace orvanta::test {

/// Plays the scenarios of tests/data/<name> and holds what each act brings about against what stands there.
/// ORVANTA_KEEP_GOLDEN=1 writes it anew: read the difference before you keep it.
void expectTranscript(const std::string& name);

/// A table as text, for what makes one text of another. The file tests/data/<name> has lines "> question", with \n, \xNN and
/// the like for what is no plain character, each followed by its answer, indented; kept anew in the same way.
void expectAnswers(const std::string& name, const std::function<std::string(const std::string& question)>& answer);

/// Ways from window to window: "> [start :] acts", each followed by the windows that show then, the one in front first, with what has
/// the focus there; the active one is told.
void expectWays(const std::string& name);

/// The bytes of tests/data/<name>, or `now` kept there where ORVANTA_KEEP_GOLDEN=1 asks for it.
std::string kept(const std::string& name, const std::string& now);

}  // namespace orvanta::test
