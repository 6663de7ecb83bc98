// Sorting the command line.
#include "app/command_line.h"

#include "base/text.h"

namespace orvanta {

namespace {

/// "D:\TRACK05.CDA" has its number from character 9 on. Any other shape, as a name with a folder,
/// is read from character 17. A host path has no drive letter: the file's name is put behind one.
int trackNumberOf(std::string line) {
  const auto slash = line.rfind('/');
  if (slash != std::string::npos) line = "D:\\" + line.substr(slash + 1);
  const bool atRoot = line.size() >= 8 && line.substr(3, 5) == "TRACK";
  const size_t start = atRoot ? 8 : 16;
  return line.size() > start ? static_cast<int>(leadingNumber(line.substr(start))) : 0;
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
