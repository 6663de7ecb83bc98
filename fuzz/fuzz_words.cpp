// What other processes tell a deck: a line of its socket, the words of a command line. Any bytes are a start or none,
// and a start is the same when it is told again.
#include <cstdlib>

#include "app/command_line.h"
#include "state/second_start.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string line(reinterpret_cast<const char*>(data), size);
  if (const auto start = orvanta::secondStartOf(line)) {
    const auto again = orvanta::secondStartOf(orvanta::lineOf(*start));
    if (!again || again->disc != start->disc || again->drive != start->drive || again->words != start->words) std::abort();
  }
  const orvanta::CommandLine command = orvanta::classify(line);
  const bool track = command.kind == orvanta::CommandLine::Kind::TrackFile;
  if (command.trackNumber < 0 || command.trackNumber > 99 || (command.trackNumber != 0 && !track)) std::abort();
  return 0;
}
