// The data folder: where each of its files lies, and the one way in which the small ones are saved, beside the old one
// and in its place at once.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "state/field_store.h"

namespace orvanta {

/// The settings family. ORVWIN.INI lies in the system's folder and names the data folder; the others lie there.
enum class SettingsFile { Orvwin, Orvwin1, Orvwin3, Orvwin4, Orvwin7, SettingsDat };

/// "ORVWIN.INI", "settings.dat".
std::string_view fileName(SettingsFile file);

/// Files that stand by a name of their own.
enum class DataFile {
  Running,     ///< stands while a player runs; for the sibling programs
  HandOver,    ///< stands until the next process has started
  LargePlace,  ///< where the window stood, in each of its sizes
  SmallPlace,
  StripPlace,
  Genres,         ///< the user's own
  Captions,       ///< of the two free fields
  RecorderTexts,  ///< of the disc, for the recorder
  Tray,           ///< which image lies in it
  Level,
  Online,  ///< who the user is to the CDDB, and which server is asked
  Mail,    ///< how submissions go out
  Servers,
  ServersBackup,  ///< the list before the last one that a server sent
  HttpServers,
};

/// The tray of a fresh installation: the user's own, in the data folder.
std::string usualDrive(const std::string& dataDir);

class DataFolder {
 public:
  /// `folder` may still change: paths are made when they are asked for.
  DataFolder(Files& files, const std::string& folder) : files_(files), folder_(folder) {}

  std::string path(DataFile file) const;
  std::string path(SettingsFile file) const;
  /// Of a disc's `.CD` file; the others stand beside it.
  std::string disc(std::string_view key) const;
  /// What was typed about a disc when the session ended.
  std::string draft(std::string_view key) const;
  /// Of a picture or a sound that takes the place of the deck's own.
  std::string own(std::string_view name) const;
  /// Where those lie.
  std::string ownFiles() const;
  /// Where the discs' files lie, and what is exported of them.
  std::string discs() const;

  /// nullopt when the file is missing or cannot be read.
  std::optional<FieldBytes> read(DataFile file) const { return readFieldFile(files_, path(file)); }
  /// False: the file holds what it held before.
  bool save(DataFile file, const FieldWriter& fields) const { return writeFieldFile(files_, path(file), fields); }
  bool remove(DataFile file) const { return removeFieldFile(files_, path(file)); }

  /// Files that say something by standing there.
  void mark(DataFile file) const;
  void unmark(DataFile file) const { files_.remove(path(file)); }
  bool marked(DataFile file) const { return files_.exists(path(file)); }

 private:
  Files& files_;
  const std::string& folder_;
};

}  // namespace orvanta
