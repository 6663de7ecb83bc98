// The menu that pops up over the deck.
#pragma once

#include <string_view>

#include "web/menu_tree.h"
#include "web/ports.h"

namespace orvanta {

class MainMenu {
 public:
  MainMenu(const WebPorts& ports, const MenuParts& parts) : menus_(ports.menus), on_(parts) {}

  /// All of it. By key, it lies over the deck, else under the mouse.
  void wwwdtop(bool byKey) { popUp(menuTree(on_), byKey); }
  /// The searches alone.
  void isrchopts(bool byKey) { popUp(menuPart(on_, "isrchopts"), byKey); }
  bool open() const { return open_; }

 private:
  void popUp(const MenuItem& menu, bool byKey);

  Menus& menus_;
  MenuParts on_;
  bool open_ = false;
};

}  // namespace orvanta
