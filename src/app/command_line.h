// The program words of the command line, as the start sorts them by their last three letters.
#pragma once

#include <string>
#include <string_view>

namespace orvanta {

struct CommandLine {
  enum class Kind { Plain, Program, Word, TrackFile };
  Kind kind = Kind::Plain;
  std::string word;     ///< upper case, of a Word or a TrackFile ("AUDIOCD1")
  int trackNumber = 0;  ///< of a TrackFile; 0 when the name holds none
};

/// `line` is what stands behind the host's own options. A name of a program counts as Program here
/// whether or not its file exists.
CommandLine classify(std::string_view line);

}  // namespace orvanta
