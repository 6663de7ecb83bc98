// Keys and the acts that they stand for.
#include "faceplate/keyboard.h"

#include <algorithm>

namespace orvanta {

namespace {

struct KeyRow {
  int code;
  Action action;
  bool repeats = false;  ///< held, it goes on; a toggle would flap
};

using forms::key::kEscape;
using forms::key::kF1;
using forms::key::kHelp;

constexpr KeyRow kKeys[] = {
    {'A', Action::Previous},
    {'S', Action::Next},
    {'D', Action::Play},
    {'F', Action::Pause},
    {'G', Action::Stop},
    {'H', Action::Record},
    {'J', Action::Eject},
    {'L', Action::CdData},
    {'M', Action::Mixer},
    {'N', Action::EnhancedDisc},
    {'R', Action::Repeat},
    {'E', Action::Shuffle},
    {'T', Action::TimeMode},
    {'W', Action::AbLoop},
    {'Y', Action::NextMode},
    {'I', Action::TrackList},
    {kEscape, Action::Exit},
    {kF1, Action::Help},
    {kHelp, Action::Help},
    {kF1 + 1, Action::Menu},
    {forms::key::kMenu, Action::Menu},
    {kF1 + 3, Action::Mute},
    {kF1 + 4, Action::Louder, true},
    {kF1 + 5, Action::Softer, true},
    {kF1 + 6, Action::Playlist},
};

/// nullptr for a key that names no act, or that may not be held for it.
const KeyRow* rowOf(const forms::KeyPress& key) {
  const auto* row = std::find_if(std::begin(kKeys), std::end(kKeys), [&](const KeyRow& each) { return each.code == key.code; });
  return row == std::end(kKeys) || (key.repeats && !row->repeats) ? nullptr : row;
}

}  // namespace

bool Keyboard::keyDown(const forms::KeyPress& key) {
  const KeyRow* row = rowOf(key);
  if (key.repeats && row == nullptr) return volume_.sliders().keyDown(key);
  if (!key.control && !key.alt) {
    // A deck that wants a disc asks for it, whatever else is open.
    const bool asks = row != nullptr && row->action == Action::Eject && actions_.enabled(Action::PutIn);
    if (entry_.open() && !asks) return entry_.keyDown(key);
  }
  return act(key) || volume_.sliders().keyDown(key);
}

bool Keyboard::act(const forms::KeyPress& key) {
  const KeyRow* row = rowOf(key);
  if (row == nullptr || key.control || key.alt) return false;
  actions_.run(row->action);
  return true;
}

}  // namespace orvanta
