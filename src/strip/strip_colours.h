// Colours, fonts and the user's picture on the strip, and the size of its titles.
#pragma once

#include "state/shared_state.h"
#include "windows/volcntl.h"

namespace orvanta {

class Files;
class Screen;

class StripColours {
 public:
  StripColours(Files& files, Screen& screen, VolCntl& form, const SharedState& state)
      : files_(files), screen_(screen), form_(form), state_(state) {}

  /// At the load, over the design's own.
  void apply();
  /// Both title lines by a point.
  void sizeTitles(int points);
  /// A long time stands in smaller digits.
  void sizeTime(forms::Label& time, size_t characters);

 private:
  void digits();
  void display();
  void displayOfUser();
  void body();

  Files& files_;
  Screen& screen_;
  VolCntl& form_;
  const SharedState& state_;
};

}  // namespace orvanta
