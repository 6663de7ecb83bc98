// What a second start on the same data folder hands to the deck that runs: one line over its socket.
#pragma once

#include <optional>
#include <string>

namespace orvanta {

/// What the setup program says when it has saved: the line of a deck's socket.
constexpr const char* kSettingsChanged = "settings";

struct SecondStart {
  std::string disc;   ///< a sheet to put into the tray; "" for none
  std::string drive;  ///< "" for the one that the deck has
  std::string words;  ///< the program words
};

std::string lineOf(const SecondStart& start);
/// nullopt for a line that is no second start.
std::optional<SecondStart> secondStartOf(const std::string& line);

}  // namespace orvanta
