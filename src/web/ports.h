// What the roads to the web and to other programs are given of the world.
#pragma once

namespace orvanta {

class Clock;
class Dialogs;
class DiscData;
class Files;
class Menus;
class Processes;
class Screen;
class System;

struct WebPorts {
  Clock& clock;
  Dialogs& dialogs;
  DiscData& discData;
  Files& files;
  Menus& menus;
  Processes& processes;
  Screen& screen;
  System& system;
};

}  // namespace orvanta
