// Mouse, wheel and keys on the strip. A handler that may unload the window does so as its last step.
#include "strip/strip_events.h"

#include "faceplate/routes.h"

namespace orvanta {

namespace {

constexpr int kHelpTopic = 21;
constexpr int kEach = RouteRow::kEach;
constexpr int kOne = forms::kNoIndex;

/// Both faces of a key that can be had are the key.
constexpr RouteRow kRows[] = {
    {"Image1", 0, Action::Previous},     {"Image1", 1, Action::Next},          {"Image1", 2, Action::Play},
    {"Image1", 3, Action::Pause},        {"Image1", 4, Action::Stop},          {"Image2", 0, Action::Previous},
    {"Image2", 1, Action::Next},         {"Image2", 2, Action::Play},          {"Image2", 3, Action::Pause},
    {"Image2", 4, Action::Stop},         {"Label22", kEach, Action::Track},    {"Label8", kOne, Action::TrackList},
    {"Label9", kOne, Action::TimeMode},  {"Label21", kOne, Action::Repeat},    {"Image9", kEach, Action::Link},
    {"PctL", kOne, Action::SilenceLeft}, {"PctR", kOne, Action::SilenceRight},
};

}  // namespace

StripEvents::StripEvents(const StripReach& on, VolCntl& form, const SharedState& state)
    : on_(on), press_(form), form_(form), state_(state) {
  form.setEvents(this);
}

void StripEvents::load() {
  press_.forget();
  grip_.drop();
  on_.window.load();
}

bool StripEvents::isBody(const forms::Control* control) const {
  return control == nullptr || control == &form_.Image10 || control == &form_.SSPanel2;
}

void StripEvents::mouseDown(forms::Control* control, const forms::Mouse& mouse) {
  if (control != nullptr && on_.sliders.pair().mouseDown(*control, mouse)) return;
  if (mouse.button != forms::MouseButton::Left) return;
  if (isBody(control)) {
    grip_.take(mouse);
    return;
  }
  const auto route = routeIn(kRows, *control);
  // A press that is refused leaves the key where it is; it ends Intro all the same.
  const bool taken = route ? on_.actions.enabled(route->action, route->argument) : control->available();
  if (taken) press_.down(*control);
  if (control->name() == "Image9" && state_.settings.soundMode == kMixerProgram) {
    // The mixer program's channels cannot be parted.
    on_.sounds.beep();
  } else if (route) {
    on_.actions.press(route->action);
  } else if (taken && control->tabStop) {
    on_.actions.click();
  }
}

void StripEvents::mouseMove(forms::Control* control, const forms::Mouse& mouse) {
  if (grip_.drags(form_, mouse)) return;
  if (control != nullptr && form_.pressed() == control) on_.sliders.pair().mouseMove(*control, mouse);
}

void StripEvents::mouseUp(forms::Control* control, const forms::Mouse& mouse) {
  press_.up();
  grip_.drop();
  if (control != nullptr && on_.sliders.pair().mouseUp(*control)) return;
  if (mouse.button == forms::MouseButton::Right) {
    if (mouse.over) rightReleased(control);
  } else if (control != nullptr) {
    released(*control, mouse);
  }
  on_.mirror.follow();
}

void StripEvents::rightReleased(const forms::Control* control) {
  if (isBody(control)) {
    on_.place.reset();
  } else if (control == &form_.SSPanel3) {
    on_.actions.run(Action::Mixer);
  } else if (control == &form_.Label12) {
    on_.colours.sizeTitles(1);
  }
}

void StripEvents::released(forms::Control& control, const forms::Mouse& mouse) {
  const auto route = routeIn(kRows, control);
  if (!mouse.over) {
    if (route) on_.actions.letGo(route->action);
    return;
  }
  const bool percent = &control == &form_.PctL || &control == &form_.PctR;
  if (percent && form_.Image7.visible) return;
  if (route) {
    on_.actions.release(route->action, route->argument);
  } else if (&control == &form_.Label12 || &control == &form_.Label13) {
    titleReleased(control);
  } else {
    windowKey(control);
  }
}

/// Without a disc the titles are the prompt, and ask for one as the faceplate's do.
void StripEvents::titleReleased(const forms::Control& title) {
  if (on_.actions.enabled(Action::PutIn)) {
    on_.actions.run(Action::PutIn);
  } else if (&title == &form_.Label12) {
    on_.colours.sizeTitles(-1);
  }
}

void StripEvents::windowKey(const forms::Control& control) {
  if (&control == &form_.Image5) on_.acts.Image5_MouseUp();
  if (&control == &form_.Image7) on_.acts.Image7_MouseUp();
  if (&control == &form_.Image6) on_.window.unfold();
  if (&control == &form_.Image8) on_.window.fold();
  if (&control == &form_.Image13) on_.window.Image13_MouseUp();
  if (&control == &form_.Image3) on_.window.restore();
  if (&control == &form_.Image12) on_.acts.Image12_MouseUp();
  if (&control == &form_.Image1[StripActs::kEject]) on_.acts.eject();
}

void StripEvents::wheel(forms::Control& control, int notches) {
  if (on_.sliders.pair().step(control, notches)) on_.mirror.follow();
}

bool StripEvents::keyDown(const forms::KeyPress& key) {
  const bool plain = !key.control && !key.alt;
  if (plain && key.code == forms::key::kEscape) {
    form_.unload();
    return true;
  }
  if (plain && (key.code == forms::key::kF1 || key.code == forms::key::kHelp)) {
    on_.upward.showHelp(kHelpTopic);
    return true;
  }
  if (!on_.keyboard.act(key) && !on_.sliders.pair().keyDown(key)) return false;
  on_.mirror.follow();
  return true;
}

void StripEvents::dragged() { on_.place.moved(); }

}  // namespace orvanta
