// The drive as the device layer above it sees it: what is known now, and orders that are taken at
// once and carried out in their own time. Frames are places on the disc, see toc.h.
#pragma once

#include <string>

#include "platform/disc/toc.h"
#include "platform/ports/disc_tray.h"
#include "platform/ports/sheet_texts.h"

namespace orvanta {

enum class PlayState { Stopped, Playing, Paused };

enum class Holder { Unknown, Us, Other };  ///< who has the drive

class DiscPlayer {
 public:
  virtual ~DiscPlayer() = default;

  // None of these waits for the drive.
  virtual Holder holder() const = 0;
  virtual Toc toc() const = 0;  ///< empty without a disc
  virtual std::string firstEntry() const = 0;
  virtual SheetTexts texts() const = 0;
  /// Of a disc that is an image: its path, else "".
  virtual std::string sheet() const { return {}; }
  virtual bool soundless() const = 0;            ///< what plays is heard by nobody
  virtual std::string missingDrive() const = 0;  ///< the path where no drive is

  /// What is heard now; the place of a stop or pause otherwise. An order shows at once.
  virtual PlayState state() const = 0;
  virtual int frame() const = 0;
  /// True once for each play that the drive's failure has ended.
  virtual bool takeFailure() = 0;

  /// Sound from `from` until `to`, data tracks left out. Both within the disc.
  virtual void play(int from, int to) = 0;
  virtual void pause() = 0;
  virtual void resume() = 0;
  virtual void stop() = 0;           ///< keeps the place
  virtual void seek(int frame) = 0;  ///< stops there
  virtual void eject() = 0;

  virtual void offer(const std::string& imagePath) = 0;
  virtual TrayOffer takeAnswer() = 0;
  virtual void closeTray() = 0;
};

}  // namespace orvanta
