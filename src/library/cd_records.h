// The files of one disc: texts, time correction, stored program. They lie in "datacd" under the disc's key
// and are shared with other programs of the family, byte for byte: Windows-1252, one quoted field a line, CR LF.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "state/shared_state.h"

namespace orvanta {

class Files;

/// A double quote becomes a backquote, a comma a tilde: what the files' form cannot hold.
std::string escapeField(std::string text);
/// And back. Real backquotes and tildes come back as quotes and commas; that is the price of the form.
std::string unescapeField(std::string text);

class CdRecords {
 public:
  CdRecords(Files& files, DiscState& disc, const Settings& settings) : files_(files), disc_(disc), settings_(settings) {}

  /// `.CD`, `.CD3`, `.CD4`, `.CD5` into the disc's tables. What cannot be read keeps its value.
  void readCdRecord();
  /// The same files out of the tables; `.CD3` to `.CD5` by their own rules. False when one of them, or
  /// the record itself, could not be written: the old file is whole then.
  bool writeCdRecord();

  /// `.CD1`; 0 without a file.
  int16_t readTimeCorrection() const;
  bool writeTimeCorrection();

  /// `.CD2` as it stands; nullopt without a file.
  std::optional<std::vector<int>> readProgram() const;
  /// Track numbers in playing order, up to 100, zero-filled to that many lines.
  bool writeProgram(const std::vector<int>& tracks);
  bool programExists() const;
  bool deleteProgram();

  static constexpr int kMainTitles = 45;  ///< titles that the main file holds; more go to `.CD4`

 private:
  std::string path(const char* suffix) const { return disc_.cdFilePath + suffix; }
  std::string wholeTextsPath() const;
  bool extraWanted() const;
  void readWholeTexts();
  bool writeWholeTexts();

  Files& files_;
  DiscState& disc_;
  const Settings& settings_;
};

}  // namespace orvanta
