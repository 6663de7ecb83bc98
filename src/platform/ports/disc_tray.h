// The tray as a person uses it: something is put in, and it is pushed shut.
#pragma once

#include <string>

namespace orvanta {

struct TrayOffer {
  /// Notice: nobody offered anything; the disc that is in has something to tell.
  enum class Answer { None, Accepted, Refused, Notice };
  Answer answer = Answer::None;
  std::string refusal;  ///< why, for the user; the notice's words
};

class DiscTray {
 public:
  virtual ~DiscTray() = default;
  /// True for a drive whose discs are files.
  virtual bool takesImages() const = 0;
  /// Where a person would look for another image.
  virtual std::string imageFolder() const = 0;
  /// Looks at an image in its own time; nothing in the drive changes.
  virtual void offer(const std::string& path) = 0;
  /// The answer to the last offer, once; then notices, each once.
  virtual TrayOffer takeAnswer() = 0;
  /// Pushes the tray shut, with the image that was accepted last in it. The disc shows in the device
  /// when it was read.
  virtual void close() = 0;
};

}  // namespace orvanta
