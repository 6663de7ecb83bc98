// Names of files, which other programs of the family know too.
#include "state/data_folder.h"

#include "base/text.h"

namespace orvanta {

std::string DataFolder::path(DataFile file) const {
  static constexpr std::string_view kNames[] = {"audiocd.tmp", "ejcd.tmp",    "CDPOSN.DAT", "SMPOS1.DAT", "addcats.dat",
                                                "userdef.dat", "audiocd.dat", "tray.dat",   "level.dat"};
  return joinPath(folder_, kNames[static_cast<size_t>(file)]);
}

std::string DataFolder::discs() const { return joinPath(folder_, "datacd"); }

std::string DataFolder::disc(std::string_view key) const { return joinPath(discs(), std::string(key) + ".CD"); }

std::string DataFolder::draft(std::string_view key) const { return joinPath(folder_, std::string(key) + ".draft"); }

std::string DataFolder::own(std::string_view name) const { return joinPath(joinPath(folder_, "system"), name); }

void DataFolder::mark(DataFile file) const {
  FieldWriter zero;
  zero.text("0");
  save(file, zero);
}

}  // namespace orvanta
