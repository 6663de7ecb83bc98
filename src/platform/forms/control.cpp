// What controls do by themselves: tell their form of a change, and know whether they show.
#include "platform/forms/control.h"

#include "platform/forms/form.h"

namespace orvanta::forms {

std::string_view kindName(Kind kind) {
  static constexpr std::string_view kNames[] = {"label",   "image",  "panel", "line",  "shape", "bar",
                                                "textbox", "button", "list",  "combo", "check"};
  return kNames[static_cast<int>(kind)];
}

Control::Control(Form& form, std::string_view name, int index, Kind kind) : form_(form), name_(name), index_(index), kind_(kind) {
  form.add(*this);
}

std::string Control::fullName() const { return index_ == kNoIndex ? name_ : name_ + "(" + std::to_string(index_) + ")"; }

void Control::move(int newLeft, int newTop) {
  left = newLeft;
  top = newTop;
}

void Control::refresh() {
  if (form_.view() != nullptr) form_.view()->refresh(*this);
}

void Control::propertyChanged(Change change) {
  if (form_.view() != nullptr) form_.view()->changed(*this, change);
  if (change == Change::Text && tellsText) form_.textChanged(*this);
}

bool Control::insideForm() const {
  const int areaWidth = parent != nullptr ? parent->width : form_.width;
  const int areaHeight = parent != nullptr ? parent->height : form_.height;
  const bool overlaps = left < areaWidth && top < areaHeight && left + width >= 0 && top + height >= 0;
  return overlaps && (parent == nullptr || parent->insideForm());
}

bool Control::shown() const { return visible && (parent == nullptr || parent->shown()); }

bool Control::available() const {
  const Control* mask = with(Role::Mask);
  const Control* grey = with(Role::Grey);
  return enabled && (mask == nullptr || !mask->visible) && (grey == nullptr || grey->foreColor != colours::kGrey);
}

bool Control::on() const { return with(Role::Light) == nullptr ? engaged : with(Role::Light)->visible; }

void TextBox::selectAll() {
  allSelected = false;
  allSelected = true;
}

void TextBox::takeText(const std::string& text) {
  allSelected = false;
  caption = text;
}

void Combo::setItems(std::vector<std::string> items) {
  items_ = std::move(items);
  propertyChanged(Change::Rows);
}

void Combo::choose(int index) {
  if (index >= 0 && index < static_cast<int>(items_.size())) caption = items_[static_cast<size_t>(index)];
}

const std::string& ListBox::row(int index) const {
  static const std::string kNone;
  return inRange(index) ? rows_[static_cast<size_t>(index)].text : kNone;
}

void ListBox::resetOwn() {
  clear();
  markedRow = -1;
}

void ListBox::clear() {
  rows_.clear();
  listIndex_ = -1;
  propertyChanged(Change::Rows);
}

void ListBox::insert(int index, const std::string& text) {
  if (index < 0 || index > count()) return;
  rows_.insert(rows_.begin() + index, {text, false});
  propertyChanged(Change::Rows);
}

void ListBox::set(int index, const std::string& text) {
  if (!inRange(index)) return;
  rows_[static_cast<size_t>(index)].text = text;
  propertyChanged(Change::Rows);
}

void ListBox::remove(int index) {
  if (!inRange(index)) return;
  rows_.erase(rows_.begin() + index);
  if (listIndex_ >= count()) listIndex_ = count() - 1;
  propertyChanged(Change::Rows);
}

void ListBox::move(int from, int to) {
  if (!inRange(from) || !inRange(to)) return;
  const auto row = rows_[static_cast<size_t>(from)];
  rows_.erase(rows_.begin() + from);
  rows_.insert(rows_.begin() + to, row);
  propertyChanged(Change::Rows);
}

void ListBox::selectOnly(int index) {
  for (int i = 0; i < count(); ++i) rows_[static_cast<size_t>(i)].selected = i == index;
  propertyChanged(Change::Selection);
}

void ListBox::setListIndex(int index) {
  if (index < -1 || index >= count()) return;
  listIndex_ = index;
  if (multiSelect) {
    propertyChanged(Change::Selection);
    return;
  }
  selectOnly(index);
  if (index >= 0) form().rowClicked(*this);
}

void ListBox::taken(int index, const std::vector<int>& selection) {
  listIndex_ = inRange(index) ? index : -1;
  for (Row& row : rows_) row.selected = false;
  for (const int selected : selection) {
    if (inRange(selected)) rows_[static_cast<size_t>(selected)].selected = true;
  }
}

void Bar::resetOwn() {
  floodColor = foreColor.get();
  foreColor = colours::kBlack;
  floodPercent = 0;
}

}  // namespace orvanta::forms
