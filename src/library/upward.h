// What the windows of the disc's texts ask of the layers above them.
#pragma once

namespace orvanta {

class LibraryUpward {
 public:
  virtual ~LibraryUpward() = default;
  /// The faceplate, where a window has taken its place.
  virtual void showFaceplate() = 0;
  virtual void hideFaceplate() = 0;
  virtual void showHelp(int topic) = 0;
  /// The CDDB's window, to look the disc up.
  virtual void openCddb() = 0;
  /// The CDDB's window, to submit what the editor holds.
  virtual void submitToCddb() = 0;
  /// A sender's address for submissions is known.
  virtual bool mailSenderKnown() const = 0;
  virtual void lookForLyrics() = 0;
};

}  // namespace orvanta
