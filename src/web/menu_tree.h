// The deck's menu as a table: everything that it can do, in one tree.
#pragma once

#include <string>
#include <string_view>

#include "faceplate/actions.h"
#include "platform/ports/menu.h"
#include "state/shared_state.h"
#include "web/library_program.h"
#include "web/upward.h"
#include "web/web_search.h"

namespace orvanta {

/// Whom its items reach.
struct MenuParts {
  Actions& actions;
  WebSearch& search;
  LibraryProgram& library;
  SharedState& state;
  WebUpward& upward;
};

struct MenuRow {
  int level;  ///< 1 for the first; a row with none behind its name that is deeper is no submenu
  std::string_view name;
  std::string_view caption;                        ///< "" for a separator, and where `ownCaption` tells it
  void (*chosen)(const MenuParts& on) = nullptr;   ///< nullptr: a submenu, or a separator
  bool (*enabled)(const MenuParts& on) = nullptr;  ///< nullptr: always
  bool (*shown)(const MenuParts& on) = nullptr;    ///< nullptr: always
  std::string (*ownCaption)(const MenuParts& on) = nullptr;
};

/// The tree as it is now, under its own name.
MenuItem menuTree(const MenuParts& on);
/// That part of it; an empty item where there is none of that name.
MenuItem menuPart(const MenuParts& on, std::string_view name);
/// What an item of it stands for is done, if it can still be done.
void choose(const MenuParts& on, std::string_view name);

}  // namespace orvanta
