// Menus of the desktop's own look.
#pragma once

#include <string>

#include "platform/ports/core_gate.h"
#include "platform/ports/menu.h"

class QMenu;

namespace orvanta {

class Screen;

/// Puts the items of `item` into `menu` in place of what is there; each action's data is its item's name. Ends with `menu`.
void fillMenu(QMenu& menu, const MenuItem& item);

/// Makes `menu` show `item` by the actions that it has: a desktop that shows the menu itself knows each by a number, and
/// tells what was chosen by that. Other items than before take new actions.
void updateMenu(QMenu& menu, const MenuItem& item);

class QtMenus : public Menus {
 public:
  QtMenus(CoreGate& gate, Screen& screen) : gate_(gate), screen_(screen) {}
  std::string popUp(const MenuItem& menu, bool byKey) override;

 private:
  CoreGate& gate_;
  Screen& screen_;
};

}  // namespace orvanta
