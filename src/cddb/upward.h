// What the CDDB's window asks of the layers above it.
#pragma once

#include <string>

namespace orvanta {

class CddbUpward {
 public:
  virtual ~CddbUpward() = default;
  /// The disc's texts out of its files, where it has any, else none; then on the display.
  virtual void readTextsAgain() = 0;
  /// A disc is in, and no window, box or menu stands that a lookup would get in the way of.
  virtual bool lookupMayStart() const = 0;
  virtual void closeTrackList() = 0;
  /// The lamp of a lookup, and the word for it in place of the titles; or dark again.
  virtual void showSearching(bool now) = 0;
  virtual void showHelp(int topic) = 0;
  virtual void showPage(const std::string& address) = 0;
};

}  // namespace orvanta
