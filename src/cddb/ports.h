// What the CDDB's windows are given of the world.
#pragma once

namespace orvanta {

class Clock;
class Dialogs;
class Files;
class Net;
class Screen;
namespace forms {
class Desktop;
}

struct CddbPorts {
  Clock& clock;
  Dialogs& dialogs;
  Files& files;
  Net& net;
  Screen& screen;
  forms::Desktop& desktop;
};

}  // namespace orvanta
