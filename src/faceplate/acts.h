// What each act does, when a person may do it, and whether it is on.
#pragma once

#include "faceplate/action.h"
#include "faceplate/buttons.h"
#include "faceplate/disc_choice.h"
#include "faceplate/interface_sounds.h"
#include "faceplate/layout.h"
#include "faceplate/volume.h"

namespace orvanta {

class FaceplateUpward;

/// Whom the acts reach.
struct ActParts {
  KeyLooks& looks;
  Engine& engine;
  Modes& modes;
  Buttons& buttons;
  Layout& layout;
  Volume& volume;
  InterfaceSounds& sounds;
  DiscChoice& choice;
  CDForm& form;
  SharedState& state;
  FaceplateUpward& upward;
};

/// Who turns a person down: the act's row, or the part itself, once it has ended Intro and counted what has ended.
enum class Refuses : uint8_t { Row, Part };

struct Act {
  Action action;
  bool clicks;  ///< under a person's hand
  Refuses refuses;
  void (*run)(const ActParts& on, By by, int argument);
  bool (*enabled)(const ActParts& on, int argument);
  bool (*checked)(const ActParts& on);
};

const Act& actOf(Action action);

}  // namespace orvanta
