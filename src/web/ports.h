// What the roads to the web and to other programs are given of the world.
#pragma once

namespace orvanta {

class Clock;
class Dialogs;
class Files;
class Menus;
class Processes;
class Screen;
class System;

struct WebPorts {
  Clock& clock;
  Dialogs& dialogs;
  Files& files;
  Menus& menus;
  Processes& processes;
  Screen& screen;
  System& system;
};

}  // namespace orvanta
