// What the menus ask of the rooms beside and above them.
#pragma once

namespace orvanta {

class WebUpward {
 public:
  virtual ~WebUpward() = default;
  /// The disc is to be looked up now.
  virtual void lookUpOnline() = 0;
  /// A lookup by itself is under way, and can be cancelled.
  virtual bool looksUp() const = 0;
  virtual void cancelLookUp() = 0;
  virtual void centreFaceplate() = 0;
  /// Out of the way of a page: to the strip or the tray, as the user has it.
  virtual void minimise() = 0;
  virtual void showAbout() = 0;
};

}  // namespace orvanta
