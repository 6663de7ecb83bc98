// Sorting the command line.
#include "app/command_line.h"

#include "base/text.h"

namespace orvanta {

namespace {

constexpr double kMostTracks = 99;

/// "D:\TRACK05.CDA" has its number from character 9 on. Any other shape, as a name with a folder, is read from
/// character 17. A host path has no drive letter, nor has a bare name: the file's name is put behind one. 0 for a
/// number that no disc has.
int trackNumberOf(std::string line) {
  const bool withDrive = line.size() > 1 && line[1] == ':';
  if (!withDrive) line = "D:\\" + line.substr(line.rfind('/') + 1);
  const bool atRoot = line.size() >= 8 && line.substr(3, 5) == "TRACK";
  const size_t start = atRoot ? 8 : 16;
  const double number = line.size() > start ? leadingNumber(line.substr(start)) : 0;
  return number >= 1 && number <= kMostTracks ? static_cast<int>(number) : 0;
}

}  // namespace

CommandLine classify(std::string_view line) {
  const std::string text = upper(trim(line));
  if (text.size() < 3) return {};
  const std::string ending = text.substr(text.size() - 3);
  if (ending == "EXE" || ending == "COM" || ending == "BAT") return {CommandLine::Kind::Program, "", 0};
  if (ending == "PER" || ending == "ITE" || ending == "OCD") return {CommandLine::Kind::Word, text, 0};
  if (ending == "CDA") return {CommandLine::Kind::TrackFile, "AUDIOCD1", trackNumberOf(text)};
  return {};
}

}  // namespace orvanta
