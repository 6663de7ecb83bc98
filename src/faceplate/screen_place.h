// A window's place on its screen: kept on it, stored, and found again while that screen is there. Twips.
#pragma once

#include "platform/forms/form.h"
#include "platform/ports/screen.h"
#include "state/data_folder.h"

namespace orvanta {

class ScreenPlace {
 public:
  ScreenPlace(const DataFolder& data, const Screen& screen, forms::Form& form) : data_(data), screen_(screen), form_(form) {}

  /// Kept free at the right and the lower edge: a window that would come nearer is pulled to the very edge.
  struct Margins {
    int right = 0;
    int lower = 0;
  };

  /// What is free of the screen that the window is on.
  WorkArea area() const;
  /// From that screen's corner.
  void put(const WorkArea& area, int left, int top);
  void pullIn();
  void save(DataFile file) const;
  /// False without a stored place: the window stays where it is.
  bool restore(DataFile file, const Margins& margins);

 private:
  const DataFolder& data_;
  const Screen& screen_;
  forms::Form& form_;
};

}  // namespace orvanta
