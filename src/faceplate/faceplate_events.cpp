// Mouse, wheel and window.
#include "faceplate/faceplate_events.h"

#include "faceplate/routes.h"

namespace orvanta {

FaceplateEvents::FaceplateEvents(FaceplateLoad& load, Actions& actions, Keyboard& keyboard, TrackEntry& entry, Volume& volume,
                                 Layout& layout, WindowPlace& place, DiscChoice& choice, TaskTitle& title, CDForm& form,
                                 const SharedState& state)
    : load_(load),
      actions_(actions),
      keyboard_(keyboard),
      entry_(entry),
      volume_(volume),
      layout_(layout),
      place_(place),
      choice_(choice),
      title_(title),
      look_(form, state),
      form_(form) {
  form.setEvents(this);
}

void FaceplateEvents::mouseDown(forms::Control* control, const forms::Mouse& mouse) {
  // Whoever presses elsewhere has thought better of a number.
  if (entry_.open() && control != &form_.Text1) entry_.close();
  if (control != nullptr && volume_.sliders().mouseDown(*control, mouse)) return;
  if (mouse.button != forms::MouseButton::Left) return;
  if (control == nullptr || control == &form_.Image8) {
    grip_.take(mouse);
    return;
  }
  look_.down(*control);
  if (const auto route = routeOf(*control)) {
    actions_.press(route->action);
  } else if (control->tabStop) {
    actions_.click();
  }
}

void FaceplateEvents::mouseMove(forms::Control* control, const forms::Mouse& mouse) {
  if (grip_.drags(form_, mouse)) return;
  if (control != nullptr && form_.pressed() == control) volume_.sliders().mouseMove(*control, mouse);
}

void FaceplateEvents::mouseUp(forms::Control* control, const forms::Mouse& mouse) {
  look_.up();
  grip_.drop();
  if (control != nullptr && volume_.sliders().mouseUp(*control)) return;
  const bool right = mouse.button == forms::MouseButton::Right;
  const auto route = control == nullptr ? std::nullopt : right ? rightRouteOf(*control) : routeOf(*control);
  if (!route) {
    if (right && mouse.over) actions_.run(Action::Menu, By::Person, kByMouse);
    return;
  }
  if (!mouse.over) {
    // Whoever thinks better of a press slides off the key.
    actions_.letGo(route->action);
  } else {
    const bool menu = route->action == Action::Internet;
    actions_.release(route->action, route->action == Action::Seek ? mouse.x : menu ? kByMouse : route->argument);
  }
}

/// The wheel moves a slider, and the place on the bar.
void FaceplateEvents::wheel(forms::Control& control, int notches) {
  constexpr int kStep = 5;  // percent of the track
  if (volume_.sliders().step(control, notches) || &control != &form_.CDStatusBar) return;
  const int percent = form_.CDStatusBar.floodPercent + notches * kStep;
  if (percent <= 0 || percent >= 100) return;
  actions_.run(Action::Seek, By::Person, form_.CDStatusBar.width * percent / 100 + kBarMargin);
}

void FaceplateEvents::textChanged(forms::Control& control) {
  if (&control == &form_.Label12) layout_.layTitles();
}

void FaceplateEvents::doubleClick(forms::Control* control) {
  if (control != nullptr && control != &form_.Image8) return;
  // The window has moved away under the hand: what is held of it is no drag.
  grip_.drop();
  place_.Form_DblClick();
}

void FaceplateEvents::dragged() { place_.saveposn1(); }

}  // namespace orvanta
