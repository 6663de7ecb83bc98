// The files of one disc: texts, time correction, stored program. They lie in "datacd" under the disc's key
// and are shared with other programs of the family, byte for byte: Windows-1252, one quoted field a line, CR LF.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/disc_whole_texts.h"
#include "records/file_set.h"
#include "state/disc_texts.h"

namespace orvanta {

class Files;

class DiscFiles {
 public:
  /// `cdFilePath`: of the `.CD` file; the others stand beside it.
  DiscFiles(Files& files, std::string cdFilePath) : files_(files), main_(std::move(cdFilePath)) {}

  /// `.CD`, `.CD3`, `.CD4`, `.CD5`. What cannot be read keeps its value.
  void readTexts(DiscTexts& texts) const;
  /// Texts and time correction, by each file's own rule; `trackCount` is the drive's. All or, where the disk lets, nothing.
  /// Afterwards `texts` holds the extended fields escaped.
  Unwritten writeTexts(DiscTexts& texts, int trackCount, int timeCorrection) const;

  /// `.CD1`; 0 without a file.
  int16_t timeCorrection() const;

  /// `.CD2` as it stands; nullopt without a file.
  std::optional<std::vector<int>> program() const;
  /// Track numbers in playing order, up to 100, zero-filled to that many lines.
  Unwritten writeProgram(const std::vector<int>& tracks) const;
  bool programExists() const;
  Unwritten deleteProgram() const;

  static constexpr int kMainTitles = 45;  ///< titles that the main file holds; more go to `.CD4`

 private:
  std::string path(const char* suffix) const { return main_ + suffix; }
  std::string wholeTextsPath() const;
  std::optional<std::string> contents(const char* suffix) const;
  void readHeld(DiscTexts& texts) const;
  std::vector<WholeText> wholeTexts() const;
  bool extraWanted(const DiscTexts& texts) const;
  Unwritten makeFolder() const;

  Files& files_;
  std::string main_;
};

}  // namespace orvanta
