// One menu at a time; what was chosen is done when it has closed.
#include "web/main_menu.h"

#include <string>

#include "platform/ports/menu.h"

namespace orvanta {

void MainMenu::popUp(const MenuItem& menu, bool byKey) {
  if (open_) return;
  open_ = true;
  const std::string chosen = menus_.popUp(menu, byKey);
  open_ = false;
  choose(on_, chosen);
}

}  // namespace orvanta
