// What the strip is given of the world.
#pragma once

namespace orvanta {

class Files;
class Screen;
namespace forms {
class Desktop;
}

struct StripPorts {
  Files& files;
  Screen& screen;
  forms::Desktop& desktop;
};

}  // namespace orvanta
