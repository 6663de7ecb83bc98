// Design tables into controls.
#include "platform/forms/design.h"

#include <cassert>

namespace orvanta::forms {

namespace {

void applyRow(Control& control, const DesignRow& row, const Place& place, Form& form) {
  control.parent = row.parent == form.name() ? nullptr : form.find(row.parent);
  control.z = row.z;
  control.art = row.art;
  control.says = row.says;
  control.tabStop = row.tabStop;
  control.passesMouse = row.passesMouse;
  control.left = place.left;
  control.top = place.top;
  control.width = place.width;
  control.height = place.height;
  control.visible = row.visible;
  control.enabled = true;
  control.caption = row.caption;
  control.toolTip = row.toolTip;
  control.foreColor = row.fore;
  control.backColor = row.back;
  control.tellsText = false;
  control.font = Font{row.font, row.points, row.bold};
  control.align = row.align;
  control.wordWrap = row.wrap;
  control.resetOwn();
}

/// Rows stand much in the order of the controls, so each search starts where the last one ended.
Control* findFrom(const std::vector<Control*>& controls, size_t& at, const DesignRow& row) {
  for (size_t tries = 0; tries < controls.size(); ++tries, at = (at + 1) % controls.size()) {
    if (controls[at]->index() == row.index && controls[at]->name() == row.name) return controls[at];
  }
  return nullptr;
}

}  // namespace

void applyDesign(Form& form, std::span<const DesignRow> rows, bool smallFonts) {
  size_t at = 0;
  for (const DesignRow& row : rows) {
    const Place& place = smallFonts ? row.coarse : row.fine;
    if (row.name == form.name()) {
      form.width = place.width;
      form.height = place.height;
      form.caption = row.caption;
      form.backColor = row.back;
      continue;
    }
    Control* control = findFrom(form.controls(), at, row);
    assert(control != nullptr);
    if (control != nullptr) applyRow(*control, row, place, form);
  }
}

void applyPartners(Form& form, std::span<const PartnerRow> rows) {
  for (Control* control : form.controls()) {
    for (const PartnerRow& row : rows) {
      const bool each = row.index == kEach;
      if (control->name() != row.name || (!each && control->index() != row.index)) continue;
      Control* partner = form.find(row.partner, each && row.partnerIndex == kEach ? control->index() : row.partnerIndex);
      assert(partner != nullptr);
      control->setWith(row.role, partner);
    }
  }
}

/// Places are the view's. Each control but a panel counts as a point, so that it is within its form.
void applyGrid(Form& form, std::span<const GridRow> rows) {
  for (const GridRow& row : rows) {
    if (row.name == form.name()) {
      form.width = row.cell.columns;
      form.height = row.cell.rows;
      form.caption = row.caption;
      continue;
    }
    Control* control = form.find(row.name, row.index);
    assert(control != nullptr);
    if (control == nullptr) continue;
    const bool panel = control->kind() == Kind::Panel;
    control->parent = row.parent == form.name() ? nullptr : form.find(row.parent);
    control->cell = row.cell;
    control->art = row.art;
    control->says = row.says;
    control->tabStop = row.tabStop;
    control->passesMouse = false;
    control->tellsText = false;
    control->left = control->top = 0;
    control->width = panel ? form.width.get() : 1;
    control->height = panel ? form.height.get() : 1;
    control->visible = row.visible;
    control->enabled = true;
    control->caption = row.caption;
    control->toolTip = row.toolTip;
    control->font = Font{};
    control->resetOwn();
  }
}

}  // namespace orvanta::forms
