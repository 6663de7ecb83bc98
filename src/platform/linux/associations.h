// Which program the desktop opens a kind of file with, by its lists of choices and its programs' files.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// Programs' files that a list (mimeapps.list, mimeinfo.cache) names for `type` in one of its groups, the first choice first.
std::vector<std::string> choicesFor(std::string_view list, std::string_view group, std::string_view type);

/// The command of a program's file, as settings keep commands: a blank between arguments, one with blanks in double quotes,
/// "%u" where an address goes. nullopt for a program that cannot be started so: hidden, for a terminal, or not understood.
std::optional<std::string> commandOf(std::string_view desktopFile);

/// What was chosen for one of these kinds, the first kind first, by the user's lists, then the system's; else what says of
/// itself that it opens them, the last kind first. "" when none of these programs can be had.
std::string associatedCommand(const std::vector<std::string>& types);

}  // namespace orvanta
