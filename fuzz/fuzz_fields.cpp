// The settings reader: any bytes can be read into any file's fields, and what was read is written
// back to the same values.
#include <cstdlib>

#include "state/settings_files.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using orvanta::SettingsFile;
  for (const auto file : {SettingsFile::Orvwin, SettingsFile::Orvwin1, SettingsFile::Orvwin3, SettingsFile::Orvwin4, SettingsFile::Orvwin7,
                          SettingsFile::SettingsDat}) {
    orvanta::Settings settings;
    orvanta::readFields(file, {reinterpret_cast<const char*>(data), size}, settings);
    orvanta::fillLcdColours(settings);
    const std::string written = orvanta::writtenFields(file, settings);
    orvanta::Settings back;
    if (!orvanta::readFields(file, written, back) && file != SettingsFile::Orvwin) std::abort();
  }
  return 0;
}
