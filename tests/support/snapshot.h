// What can be seen of a form's controls, and what of it has changed.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "platform/forms/form.h"

namespace orvanta::test {

class Snapshot {
 public:
  Snapshot() = default;
  explicit Snapshot(const forms::Form& form);
  /// Lines of the controls that can be seen and look different now; like ones of an array on one line.
  std::vector<std::string> changesTo(const Snapshot& now) const;
  /// Lines of the texts and rows that a person could have typed.
  std::vector<std::string> texts() const;
  /// Lines of the captions that can be read.
  std::vector<std::string> captions() const;
  /// A line each control that shows, with all that can be seen of it.
  std::vector<std::string> whole() const;

 private:
  struct Seen {
    const forms::Control* control;
    bool shown;
    bool entry;                          ///< holds what a person types
    std::array<std::string, 7> aspects;  ///< place, text, colours, visible, enabled, value, font
  };
  std::vector<Seen> controls_;
};

}  // namespace orvanta::test
