// Life of a window, its focus and the road of its input.
#include "platform/forms/form.h"

#include <algorithm>

#include "platform/forms/design.h"

namespace orvanta::forms {

namespace {

FormEvents noEvents;

constexpr int kRounding = 15;         ///< twips that a pixel may be off
constexpr int kElsewhere = -1000000;  ///< over no control

bool takesFocus(const Control& control) { return control.tabStop && control.enabled && control.shown() && control.insideForm(); }

bool faceOfOneKey(const Control& a, const Control& b) {
  return a.tabStop && b.tabStop && a.parent == b.parent && a.width > 0 && a.left == b.left && a.top == b.top && a.width == b.width &&
         a.height == b.height;
}

/// As the controls stand in their form; but the other face of a key has its turn where the first one has.
std::vector<Control*> tabOrder(const std::vector<Control*>& controls) {
  std::vector<Control*> order;
  for (Control* control : controls) {
    const auto twin = std::find_if(order.rbegin(), order.rend(), [&](const Control* each) { return faceOfOneKey(*each, *control); });
    order.insert(twin == order.rend() ? order.end() : twin.base(), control);
  }
  return order;
}

}  // namespace

Form::Form(std::string_view name) : name_(name), events_(&noEvents) {}

Form::~Form() = default;

std::span<const DesignRow> Form::design() const { return {}; }

std::span<const GridRow> Form::grid() const { return {}; }

std::span<const PartnerRow> Form::partners() const { return {}; }

std::span<const AreaRow> Form::areas() const { return {}; }

Place Form::area(AreaKind kind) const {
  for (const AreaRow& row : areas()) {
    if (row.kind == kind && width <= row.widest) return smallFonts ? row.coarse : row.fine;
  }
  return {};
}

Control* Form::find(std::string_view controlName, int index) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* control) { return control->index() == index && control->name() == controlName; });
  return found == controls_.end() ? nullptr : *found;
}

void Form::propertyChanged(Change change) {
  if (view_) view_->formChanged(change);
  if (change == Change::Visibility && loaded()) events_->minimisedChanged();
}

void Form::load(Desktop& desktop) {
  if (loaded()) return;
  desktop_ = &desktop;
  active_ = nullptr;
  press_ = {};
  focusShown_ = false;
  enabled = true;
  putDesignBack();
  applyGrid(*this, grid());
  applyPartners(*this, partners());
  view_ = desktop.open(*this);
  events_->load();
}

void Form::putDesignBack() { applyDesign(*this, design(), smallFonts); }

const DesignRow* Form::designRow(const Control& control) const {
  for (const DesignRow& row : design()) {
    if (row.index == control.index() && row.name == control.name()) return &row;
  }
  return nullptr;
}

Place Form::designPlace(const Control& control) const {
  const DesignRow* row = designRow(control);
  return row == nullptr ? Place{} : smallFonts ? row->coarse : row->fine;
}

void Form::show(Desktop& desktop) {
  load(desktop);
  if (view_) {
    view_->show();
    view_->raise();
  }
  activated();
}

void Form::hide() {
  if (view_) view_->hide();
  if (desktop_ != nullptr && desktop_->lastShown == this) desktop_->lastShown = nullptr;
}

void Form::unload() {
  if (!loaded()) return;
  events_->unload();
  hide();
  view_.reset();
  desktop_ = nullptr;
}

void Form::activated() {
  if (desktop_ == nullptr || desktop_->lastShown == this) return;
  desktop_->lastShown = this;
  events_->activate();
}

bool Form::setFocus(Control& control, bool byKeyboard) {
  if (!takesFocus(control)) return false;
  if (active_ != &control) {
    if (active_ != nullptr) events_->lostFocus(*active_);
    active_ = &control;
    events_->gotFocus(control);
  }
  focusShown_ = byKeyboard;
  if (view_) view_->focusMoved(active_);
  return true;
}

void Form::moveFocus(bool backwards) {
  if (controls_.empty()) return;
  const std::vector<Control*> order = tabOrder(controls_);
  const auto count = static_cast<int>(order.size());
  const auto at = std::find(order.begin(), order.end(), active_);
  int place = at == order.end() ? (backwards ? 0 : -1) : static_cast<int>(at - order.begin());
  if (at == order.end() && firstStop != nullptr && !backwards) {
    place = static_cast<int>(std::find(order.begin(), order.end(), firstStop) - order.begin()) - 1;
  }
  for (int i = 0; i < count; ++i) {
    place = (place + (backwards ? count - 1 : 1)) % count;
    Control& next = *order[static_cast<size_t>(place)];
    if (next.available() && setFocus(next, true)) return;
  }
}

/// What has gone from under the focus hands it to the control that came in its place, as the two faces of
/// one key do.
void Form::settleFocus() {
  if (active_ == nullptr || resizable() || (active_->shown() && active_->insideForm())) return;
  const int x = active_->left + active_->width / 2;
  const int y = active_->top + active_->height / 2;
  for (Control* twin : controls_) {
    const bool here = twin->parent == active_->parent && x >= twin->left && x < twin->left + twin->width && y >= twin->top &&
                      y < twin->top + twin->height;
    if (here && setFocus(*twin, focusShown_)) return;
  }
}

void Form::mouseDown(Control* control, const Mouse& mouse) {
  if (press_.byKey) return;
  press(control, mouse);
}

void Form::press(Control* control, const Mouse& mouse) {
  if (press_.down || (control != nullptr && (!control->enabled || !control->shown()))) return;
  press_.down = true;
  press_.control = control;
  press_.button = mouse.button;
  if (control != nullptr) {
    press_.at = {control->left, control->top, control->width, control->height};
    setFocus(*control);
  }
  events_->mouseDown(control, mouse);
}

void Form::mouseMove(Control* control, const Mouse& mouse) { events_->mouseMove(press_.down ? press_.control : control, mouse); }

void Form::mouseUp(const Mouse& mouse) {
  if (!press_.byKey) release(mouse);
}

void Form::release(const Mouse& mouse) {
  if (!press_.down || mouse.button != press_.button) return;
  Control* control = press_.control;
  press_.down = false;
  press_.control = nullptr;
  Mouse told = mouse;
  if (control != nullptr) {
    const auto within = [](int at, int length, int slack) { return at >= -slack && at < length + slack; };
    // A key gives way under the mouse, so its place at rest counts as well as where it is now.
    const int right = control->left - press_.at.left;
    const int down = control->top - press_.at.top;
    const int slack = right != 0 || down != 0 ? kRounding : 0;
    told.over = within(mouse.x + right, press_.at.width, slack) && within(mouse.y + down, press_.at.height, slack);
    told.over = told.over || (within(mouse.x, control->width, 0) && within(mouse.y, control->height, 0));
  }
  events_->mouseUp(control, told);
  if (control != nullptr && told.over && mouse.button == MouseButton::Left) events_->click(*control);
  settleFocus();
}

void Form::deactivated() {
  if (!press_.byKey) return;
  press_.byKey = false;
  release({MouseButton::Left, kElsewhere, kElsewhere});
}

void Form::doubleClick(Control* control) { events_->doubleClick(control); }

void Form::wheel(Control* control, int notches) {
  if (control != nullptr && control->enabled) events_->wheel(*control, notches);
}

void Form::userText(Control& control, const std::string& text) {
  const bool changes = control.caption.get() != text;
  control.takeText(text);
  if (changes) events_->edited(control);
}

void Form::userRow(ListBox& list, int row, const std::vector<int>& selection) {
  list.taken(row, selection);
  events_->click(list);
}

void Form::userMovedRow(ListBox& list, int from, int to) { events_->rowMoved(list, from, to); }

void Form::userFocus(Control& control) {
  if (active_ != &control) setFocus(control);
}

void Form::press(Control& control) {
  if (press_.down) return;
  const Mouse middle{MouseButton::Left, control.width / 2, control.height / 2};
  press(&control, middle);
  release(middle);
}

bool Form::keyDown(const KeyPress& pressed) {
  settleFocus();
  if (events_->keyDown(pressed)) {
    settleFocus();
    return true;
  }
  if (pressed.code == key::kTab && !pressed.control && !pressed.alt) {
    moveFocus(pressed.shift);
    return true;
  }
  const bool presses = pressed.code == key::kSpace || pressed.code == key::kEnter;
  const bool pressable =
      active_ != nullptr && active_->kind() != Kind::TextBox && active_->kind() != Kind::Combo && active_->kind() != Kind::List;
  if (!presses || !pressable || press_.down || pressed.repeats) return false;
  press(active_, {MouseButton::Left, active_->width / 2, active_->height / 2});
  press_.byKey = press_.down;
  return true;
}

void Form::keyUp(const KeyPress& released) {
  if (!press_.byKey || (released.code != key::kSpace && released.code != key::kEnter)) return;
  press_.byKey = false;
  if (press_.control != nullptr) release({MouseButton::Left, press_.control->width / 2, press_.control->height / 2});
}

void Form::dragged(int newLeft, int newTop) {
  left = newLeft;
  top = newTop;
  events_->dragged();
}

void Form::fileDropped(const std::string& path) { events_->fileDropped(path); }

void Form::closeAsked() {
  if (enabled) events_->closeAsked();
}

}  // namespace orvanta::forms
