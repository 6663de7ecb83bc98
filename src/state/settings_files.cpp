// Field tables of the settings family. The order of the fields is the files' format.
#include "state/settings_files.h"

#include <span>
#include <variant>
#include <vector>

#include "base/log.h"
#include "base/text.h"
#include "platform/ports/files.h"
#include "state/field_file.h"
#include "state/field_store.h"

namespace orvanta {

namespace {

/// Where a field goes. A kept field is one that other programs of the family own: it is read and
/// written back by the number of its place in Settings::kept.
struct Kept {
  size_t place;
  bool quoted;
};
struct AlwaysEmpty {
  bool quoted;
};
using Target = std::variant<std::string Settings::*, int16_t Settings::*, Colour Settings::*, Kept, AlwaysEmpty>;

std::vector<Target> keptFields(size_t first, size_t count, bool quoted) {
  std::vector<Target> fields;
  for (size_t i = 0; i < count; ++i) fields.emplace_back(Kept{first + i, quoted});
  return fields;
}

std::vector<Target> orvwinFields() {
  std::vector<Target> fields{&Settings::appDir, &Settings::cdProbePath};
  for (const auto& field : keptFields(0, 3, false)) fields.push_back(field);
  for (const auto& field : keptFields(3, 9, true)) fields.push_back(field);
  return fields;
}

std::vector<Target> orvwin1Fields() {
  return {&Settings::mixerPath,       Kept{12, false}, &Settings::wallpaperMode, &Settings::wallpaperColor,      &Settings::wallpaperFile,
          &Settings::wallpaperOption, Kept{13, false}, Kept{14, false},          &Settings::editorFromFaceplate, &Settings::soundMode};
}

std::vector<Target> orvwin4Fields() {
  return {Kept{15, false},
          Kept{16, true},
          &Settings::lyricsSite,
          Kept{17, false},
          &Settings::soundsOff,
          &Settings::minToTray,
          Kept{18, false},
          &Settings::browserPath,
          Kept{19, true},
          Kept{20, true},
          &Settings::faceplateBorder,
          &Settings::faceplateBitmap,
          &Settings::faceplateBitmapOn,
          &Settings::noLcdFont,
          AlwaysEmpty{true},
          &Settings::showLights,
          &Settings::lcdCustom,
          &Settings::lcdFore,
          &Settings::lcdBack,
          Kept{21, false}};
}

std::vector<Target> orvwin7Fields() {
  std::vector<Target> fields{&Settings::recordCommand};
  for (const auto& field : keptFields(22, 19, true)) fields.push_back(field);
  return fields;
}

std::vector<Target> settingsDatFields() {
  return {&Settings::timeMode, AlwaysEmpty{false}, &Settings::expandedDisplay, &Settings::smallFaceplate, &Settings::repeatOn};
}

int16_t asInt16(const std::string& text) {
  const double value = leadingNumber(text);
  return value >= -32768 && value <= 32767 ? static_cast<int16_t>(value) : int16_t{0};
}

int32_t asInt32(const std::string& text) {
  const double value = leadingNumber(text);
  return value >= -2147483648.0 && value <= 2147483647.0 ? static_cast<int32_t>(value) : 0;
}

/// Red, green and blue, or a colour of the desktop, which is negative; an empty line is black. What is neither, as in a
/// file that holds something else, leaves the deck its own colour: in black on black nobody could read why.
Colour asColour(const std::string& text, Colour own) {
  const std::string_view held = trim(text);
  if (held.empty()) return 0;
  const bool number = held.find_first_not_of("+-.0123456789") == std::string_view::npos && held.find_first_of("0123456789") != held.npos;
  const double value = leadingNumber(held);
  if (!number || value < -2147483648.0 || value > colours::kWhite) return own;
  return static_cast<Colour>(static_cast<int32_t>(value));
}

/// A fresh installation's, for what a file does not tell.
const Settings& ownSettings() {
  static const Settings kOwn = [] {
    Settings settings = defaultSettings("", "");
    settings.fonts[kListFont].fontColor = colours::kWhite;
    return settings;
  }();
  return kOwn;
}

void assign(const Target& target, const std::string& text, Settings& settings) {
  if (const auto* string = std::get_if<std::string Settings::*>(&target)) {
    settings.*(*string) = text;
  } else if (const auto* number = std::get_if<int16_t Settings::*>(&target)) {
    settings.*(*number) = asInt16(text);
  } else if (const auto* colour = std::get_if<Colour Settings::*>(&target)) {
    settings.*(*colour) = asColour(text, ownSettings().*(*colour));
  } else if (const auto* kept = std::get_if<Kept>(&target)) {
    settings.kept.at(kept->place) = text;
  }
}

/// As a signed number: a desktop's own colours are negative.
void writeColour(Colour colour, FieldWriter& out) { out.number(static_cast<int32_t>(colour)); }

void write(const Target& target, const Settings& settings, FieldWriter& out) {
  if (const auto* string = std::get_if<std::string Settings::*>(&target)) {
    out.text(settings.*(*string));
  } else if (const auto* number = std::get_if<int16_t Settings::*>(&target)) {
    out.number(settings.*(*number));
  } else if (const auto* colour = std::get_if<Colour Settings::*>(&target)) {
    writeColour(settings.*(*colour), out);
  } else if (const auto* kept = std::get_if<Kept>(&target)) {
    const std::string& text = settings.kept.at(kept->place);
    if (kept->quoted) {
      out.text(text);
    } else {
      out.number(asInt32(text));
    }
  } else if (std::get<AlwaysEmpty>(target).quoted) {
    out.text("");
  } else {
    out.empty();
  }
}

/// ORVWIN3.INI holds groups and arrays, so its order is code: the same walk serves both ways.
template <class Visit>
void walkOrvwin3(Settings& settings, const Visit& visit) {
  const Settings& own = ownSettings();
  const auto font = [&](FontPlace place) {
    FontGroup& group = settings.fonts[place];
    return visit(group.fontName) && visit(group.fontSize) && visit(group.fontBold) && visit(group.fontItalic) &&
           visit(group.fontUnderline) && visit.colour(group.fontColor, own.fonts[place].fontColor);
  };
  if (!font(kDiscFont) || !font(kTrackFont)) return;
  for (size_t i = 1; i <= 5; ++i) {
    if (!visit(settings.appOptions[i])) return;
  }
  if (!visit(settings.searchEngine) || !font(kListFont)) return;
  for (size_t i = 0; i < settings.customColor.size(); ++i) {
    if (!visit.colour(settings.customColor[i], own.customColor[i])) return;
  }
}

struct ReadVisit {
  FieldReader& reader;
  bool& whole;
  template <class T>
  bool operator()(T& value) const {
    const auto text = reader.next();
    whole = text.has_value();
    if (!text) return false;
    if constexpr (std::is_same_v<T, std::string>) {
      value = *text;
    } else if constexpr (std::is_same_v<T, int16_t>) {
      value = asInt16(*text);
    } else {
      value = asInt32(*text);
    }
    return true;
  }
  bool colour(Colour& value, Colour own) const {
    std::string text;
    if (!(*this)(text)) return false;
    value = asColour(text, own);
    return true;
  }
};

struct WriteVisit {
  FieldWriter& out;
  template <class T>
  bool operator()(T& value) const {
    if constexpr (std::is_same_v<T, std::string>) {
      out.text(value);
    } else {
      out.number(value);
    }
    return true;
  }
  bool colour(Colour value, Colour /*own*/) const {
    writeColour(value, out);
    return true;
  }
};

const std::vector<Target>& fieldsOf(SettingsFile file) {
  static const std::vector<Target> kOrvwin = orvwinFields();
  static const std::vector<Target> kOrvwin1 = orvwin1Fields();
  static const std::vector<Target> kOrvwin4 = orvwin4Fields();
  static const std::vector<Target> kOrvwin7 = orvwin7Fields();
  static const std::vector<Target> kSettingsDat = settingsDatFields();
  switch (file) {
    case SettingsFile::Orvwin: return kOrvwin;
    case SettingsFile::Orvwin1: return kOrvwin1;
    case SettingsFile::Orvwin4: return kOrvwin4;
    case SettingsFile::Orvwin7: return kOrvwin7;
    default: return kSettingsDat;
  }
}

/// A new ORVWIN4.INI: its first field as now held, then nineteen empty strings.
void repairOrvwin4(Files& files, const std::string& path, const Settings& settings) {
  FieldWriter out;
  out.number(asInt16(settings.kept.at(15)));
  for (int i = 0; i < 19; ++i) out.text("");
  files.write(path, out.bytes());
}

}  // namespace

bool readFields(SettingsFile file, FieldReader reader, Settings& settings) {
  bool whole = true;
  if (file == SettingsFile::Orvwin3) {
    walkOrvwin3(settings, ReadVisit{reader, whole});
    return whole;
  }
  for (const Target& target : fieldsOf(file)) {
    const auto text = reader.next();
    if (!text) return false;
    assign(target, *text, settings);
  }
  return true;
}

FieldWriter writtenFields(SettingsFile file, const Settings& settings) {
  FieldWriter out;
  if (file == SettingsFile::Orvwin3) {
    Settings copy = settings;
    walkOrvwin3(copy, WriteVisit{out});
  } else {
    for (const Target& target : fieldsOf(file)) write(target, settings, out);
  }
  return out;
}

bool readSettings(SettingsFile file, Files& files, const std::string& folder, Settings& settings) {
  const std::string path = DataFolder(files, folder).path(file);
  const auto read = [&] {
    const auto fields = readFieldFile(files, path);
    return fields && readFields(file, fields->reader(), settings);
  };
  // A file that is there and cannot be read says nothing, and is not written over.
  const bool unreadable = files.exists(path) && !files.read(path);
  if (unreadable) logLine("settings", path + " cannot be read");
  if (file == SettingsFile::Orvwin7 && !files.exists(path)) settings.recordCommand.clear();
  bool whole = read();
  if (file == SettingsFile::Orvwin4) {
    if (!whole && !unreadable) {
      repairOrvwin4(files, path, settings);
      whole = read();
    }
    fillLcdColours(settings);
  }
  return whole;
}

bool writeSettings(SettingsFile file, Files& files, const std::string& folder, const Settings& settings) {
  return writeFieldFile(files, DataFolder(files, folder).path(file), writtenFields(file, settings));
}

bool keepModes(Files& files, const Settings& settings) {
  return writeSettings(SettingsFile::SettingsDat, files, settings.appDir, settings);
}

void fillLcdColours(Settings& settings) {
  if (settings.lcdCustom != 1) {
    settings.lcdColor = {0x00FF00, 0x00FF00, 0x004040, 0x00FFFF, 0x00FF00, 0x0000FF, 0x004000, 0x0000FF, 0xFFFF00, 0x404000, 0};
    return;
  }
  if (settings.lcdFore == settings.lcdBack) {
    settings.lcdFore = 0;
    settings.lcdBack = 0x29CF95;
  }
  const Colour fore = settings.lcdFore;
  const Colour back = settings.lcdBack;
  settings.lcdColor = {fore, fore, back, fore, fore, back, back, fore, fore, back, back};
  settings.customColor[kCustomBars] = settings.customColor[kCustomLegends] = settings.customColor[kCustomDigits] = fore;
  settings.fonts[kDiscFont].fontColor = settings.fonts[kTrackFont].fontColor = fore;
}

Settings defaultSettings(const std::string& appDir, const std::string& drive) {
  Settings settings;
  settings.appDir = appDir;
  settings.cdProbePath = drive;
  settings.soundMode = 3;
  settings.appOptions[kIntroLength] = 7;
  settings.showLights = 1;
  // The deck's own metal: black where these are 0.
  settings.customColor[kCustomBorderLines] = 0xA8A29C;
  settings.customColor[kCustomMetal] = 0x332E2B;
  settings.customColor[kCustomDoor] = 0x3D3733;
  settings.customColor[kCustomKeypad] = 0x2B2724;
  settings.customColor[kCustomBars] = 0x60D818;
  settings.fonts[kDiscFont].fontColor = 0x50C8FF;
  settings.fonts[kTrackFont].fontColor = 0x00FF00;
  settings.searchEngine = "Yahoo";
  return settings;
}

bool writeMissingSettings(Files& files, const Settings& settings) {
  const DataFolder data(files, settings.appDir);
  bool all = files.makeFolder(data.discs());
  for (const auto file :
       {SettingsFile::Orvwin1, SettingsFile::Orvwin3, SettingsFile::Orvwin4, SettingsFile::Orvwin7, SettingsFile::SettingsDat}) {
    if (!files.exists(data.path(file))) all = writeSettings(file, files, settings.appDir, settings) && all;
  }
  return all;
}

}  // namespace orvanta
