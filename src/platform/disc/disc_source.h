// What a drive is to the player: a table of contents, sectors of sound, a tray. Called from the
// player's own thread, which may wait for it.
#pragma once

#include <cstdint>
#include <string>

#include "platform/disc/toc.h"
#include "platform/ports/sheet_texts.h"

namespace orvanta {

enum class DriveStatus { NotReady, Disc, NoDisc, TrayOpen };

class DiscSource {
 public:
  virtual ~DiscSource() = default;
  /// One try to have the drive for this player alone.
  virtual bool lock() = 0;
  /// Looks at the drive, and reads the table of a disc that is new.
  virtual DriveStatus poll() = 0;
  /// Of the disc that poll() saw last.
  virtual const Toc& toc() const = 0;
  /// First name in the disc's root: "Track01.cda", or the first file of a data session.
  virtual std::string firstEntry() const = 0;
  /// Texts that came with the disc; most discs have none.
  virtual SheetTexts texts() const { return {}; }
  /// The drive's path when there is nothing at it.
  virtual std::string missing() const { return {}; }
  /// Of a disc that is an image: its path.
  virtual std::string sheet() const { return {}; }
  /// What a person should know of the disc, as poll() found it; once, then "".
  virtual std::string takeNotice() { return {}; }
  /// Frames `frame` to `frame + count - 1` as interleaved samples; false when the drive fails.
  virtual bool read(int frame, int count, int16_t* samples) = 0;
  virtual void openTray() = 0;
  /// With the disc that accept() took last in it.
  virtual void closeTray() = 0;
  /// Keeps an image for the next closeTray(); why not otherwise, "" when it was taken.
  virtual std::string accept(const std::string& imagePath) = 0;
};

}  // namespace orvanta
