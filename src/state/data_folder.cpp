// Names of files, which other programs of the family know too.
#include "state/data_folder.h"

#include "base/text.h"

namespace orvanta {

std::string_view fileName(SettingsFile file) {
  static constexpr std::string_view kNames[] = {"ORVWIN.INI", "ORVWIN1.INI", "ORVWIN3.INI", "ORVWIN4.INI", "ORVWIN7.INI", "settings.dat"};
  return kNames[static_cast<size_t>(file)];
}

std::string usualDrive(const std::string& dataDir) { return joinPath(dataDir, "drive"); }

std::string DataFolder::path(SettingsFile file) const { return joinPath(folder_, fileName(file)); }

std::string DataFolder::path(DataFile file) const {
  static constexpr std::string_view kNames[] = {
      "audiocd.tmp",        "ejcd.tmp", "CDPOSN.DAT", "SMPOS1.DAT", "vcpos.DAT",  "addcats.dat",         "userdef.dat",
      "audiocd.dat",        "tray.dat", "level.dat",  "cddbol.dat", "cddbml.dat", "datacd/srvcddbp.txt", "datacd/srvcddbp.bak",
      "datacd/srvhttp.txt",
  };
  return joinPath(folder_, kNames[static_cast<size_t>(file)]);
}

std::string DataFolder::discs() const { return joinPath(folder_, "datacd"); }

std::string DataFolder::disc(std::string_view key) const { return joinPath(discs(), std::string(key) + ".CD"); }

std::string DataFolder::draft(std::string_view key) const { return joinPath(folder_, std::string(key) + ".draft"); }

std::string DataFolder::ownFiles() const { return joinPath(folder_, "system"); }

std::string DataFolder::own(std::string_view name) const { return joinPath(ownFiles(), name); }

void DataFolder::mark(DataFile file) const {
  FieldWriter zero;
  zero.text("0");
  files_.writeMarker(path(file), zero.bytes());
}

}  // namespace orvanta
