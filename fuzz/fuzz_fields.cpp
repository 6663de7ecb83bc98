// The settings reader, a file and its companion: any bytes can be read into any file's fields, and what was read is
// written back to the same values, whatever script they are in. Lists of genres and captions are read the same way.
#include <cstdlib>

#include "state/settings_files.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

/// The file ends at the first zero byte; the companion follows.
std::pair<std::string_view, std::string_view> parted(std::string_view input) {
  const auto zero = input.find('\0');
  return zero == std::string_view::npos ? std::pair{input, std::string_view{}} : std::pair{input.substr(0, zero), input.substr(zero + 1)};
}

void readWhole(orvanta::FieldReader reader) {
  orvanta::FieldWriter out;
  std::vector<std::string> fields;
  while (const auto field = reader.next()) {
    fields.push_back(*field);
    out.text(*field);
  }
  orvanta::FieldReader again(out.bytes(), out.companion());
  for (const std::string& field : fields) {
    if (again.next() != field) std::abort();
  }
  if (again.next()) std::abort();
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using orvanta::FieldReader, orvanta::SettingsFile;
  const auto [bytes, companion] = parted({reinterpret_cast<const char*>(data), size});
  readWhole(FieldReader(bytes, companion));
  for (const auto file : {SettingsFile::Orvwin, SettingsFile::Orvwin1, SettingsFile::Orvwin3, SettingsFile::Orvwin4, SettingsFile::Orvwin7,
                          SettingsFile::SettingsDat}) {
    orvanta::Settings settings;
    orvanta::readFields(file, FieldReader(bytes, companion), settings);
    orvanta::fillLcdColours(settings);
    const orvanta::FieldWriter written = orvanta::writtenFields(file, settings);
    orvanta::Settings back;
    if (!orvanta::readFields(file, FieldReader(written.bytes(), written.companion()), back)) std::abort();
    const orvanta::FieldWriter again = orvanta::writtenFields(file, back);
    if (again.bytes() != written.bytes() || again.companion() != written.companion()) std::abort();
  }
  return 0;
}
