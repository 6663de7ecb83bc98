// The disc door: what stands open or shut, and the deck without a disc that goes with it.
#pragma once

#include <memory>

#include "faceplate/ports.h"
#include "playback/engine.h"
#include "state/data_folder.h"
#include "state/shared_state.h"
#include "windows/cdform.h"

namespace orvanta {

class Clock;
class InterfaceSounds;
class FaceplateUpward;
class Screen;
class Timer;

/// Panel3D7 and Panel3D10 at these tops: the drawer stands open.
constexpr int kOpenTrayTop = 600;
constexpr int kOpenTrayLowerTop = 1570;

class Drawer {
 public:
  Drawer(const FaceplatePorts& ports, Engine& engine, KeyLooks& looks, InterfaceSounds& sounds, CDForm& form, SharedState& state,
         FaceplateUpward& upward);
  ~Drawer();

  /// Masks, marker and state at once; the door slides on by a timer. Nothing when it stands open or opens. With
  /// option 2 and a disc it ejects and ends the process.
  void opendrawer();

  /// Leaves the hourglass: a new process follows. Nothing on the small or expanded faceplate.
  void closedrawer();

  /// It slides.
  bool busy() const { return motion_ != Motion::None; }

  /// Shows the frames that are due by now, for one who waits without a timer.
  void follow();

 private:
  enum class Motion { None, Opening, Closing };
  bool isOpen() const;
  bool slides() const;
  void start(Motion motion);
  void openFrame(int frame);
  void closeFrame(int frame);
  void standOpen();

  Clock& clock_;
  DataFolder data_;
  Screen& screen_;
  Engine& engine_;
  KeyLooks& looks_;
  InterfaceSounds& sounds_;
  CDForm& form_;
  SharedState& state_;
  FaceplateUpward& upward_;
  bool leaving_ = false;  ///< option 2 has been acted on
  std::unique_ptr<Timer> timer_;
  Motion motion_ = Motion::None;
  int64_t since_ = 0;  ///< milliseconds of the clock at the motion's start
  int shown_ = 0;      ///< frames of it
};

}  // namespace orvanta
