// Menus as data, for pop-up menus and for the tray's.
#pragma once

#include <string>
#include <vector>

namespace orvanta {

struct MenuItem {
  std::string name;     ///< what is told when it is chosen; "" for a separator
  std::string caption;  ///< "&" before the letter that chooses it, "&&" for the sign itself
  bool enabled = true;
  bool checked = false;
  bool shown = true;
  std::vector<MenuItem> items;  ///< of a submenu
  bool isDefault = false;       ///< stands out as the one that a user most likely wants

  bool operator==(const MenuItem&) const = default;
};

class Menus {
 public:
  virtual ~Menus() = default;
  /// At the mouse, or by the active window where a key asked for it. The name of the chosen item, "" for none; events are delivered
  /// meanwhile.
  virtual std::string popUp(const MenuItem& menu, bool byKey) = 0;
};

}  // namespace orvanta
