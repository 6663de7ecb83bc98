// The user's own words: music genres and the captions of the two free fields.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/forms/control.h"
#include "state/data_folder.h"
#include "state/shared_state.h"

namespace orvanta {

class Dialogs;
class Files;

class Genres {
 public:
  Genres(Files& files, Dialogs& dialogs, SharedState& state)
      : files_(files), data_(files, state.settings.appDir), dialogs_(dialogs), state_(state) {}

  /// The fixed genres and the user's, sorted, into a combo.
  void fillGenres(forms::Combo& combo) const;
  /// Asks for a genre and stores it; nullopt when none was given.
  std::optional<std::string> addGenre();

  /// `userdef.dat` into the shared captions; those that are empty there stay as they are.
  void readUserCaptions();
  /// Asks for both captions and stores them. Both empty: back to the usual ones.
  void askUserCaptions();

 private:
  std::vector<std::string> ownGenres() const;

  Files& files_;
  DataFolder data_;
  Dialogs& dialogs_;
  SharedState& state_;
};

}  // namespace orvanta
