// The disc's files, field by field.
#include "library/cd_records.h"

#include <algorithm>
#include <functional>

#include "base/code_page.h"
#include "base/text.h"
#include "platform/ports/files.h"
#include "state/field_file.h"

namespace orvanta {

namespace {

constexpr int kCorrectionLine = 42;  ///< empty fields before the time correction
constexpr size_t kProgramLines = 100;

std::string swapped(std::string text, char quote, char comma, char toQuote, char toComma) {
  for (char& c : text) {
    if (c == quote) {
      c = toQuote;
    } else if (c == comma) {
      c = toComma;
    }
  }
  return text;
}

/// Fields in the order of a file, as places to read into or write from.
using Fields = std::vector<std::reference_wrapper<std::string>>;

Fields mainFields(DiscState& disc) {
  Fields fields{disc.discTitle, disc.discArtist, disc.linerNotes};
  for (size_t track = 1; track <= CdRecords::kMainTitles; ++track) fields.emplace_back(disc.trackTitles[track]);
  for (size_t i = 1; i <= 5; ++i) fields.emplace_back(disc.discInfo[i]);
  return fields;
}

template <size_t N>
Fields fieldsOf(std::array<std::string, N>& table, size_t first, size_t last) {
  Fields fields;
  for (size_t i = first; i <= last; ++i) fields.emplace_back(table[i]);
  return fields;
}

/// False when the file ended before the last field, which then keep what they hold.
bool readInto(const std::string& bytes, const Fields& fields) {
  FieldReader reader(bytes);
  for (std::string& field : fields) {
    const auto text = reader.next();
    if (!text) return false;
    field = unescapeField(*text);
  }
  return true;
}

/// `raw`: a field that is written as it stands; nullptr for none.
std::string written(const Fields& fields, const std::string* raw = nullptr) {
  FieldWriter out;
  for (const std::string& field : fields) out.text(&field == raw ? field : escapeField(field));
  return out.bytes();
}

/// What a field comes back as when it is read again.
std::string asRead(const std::string& text) { return unescapeField(fromWindows1252(toWindows1252(escapeField(text)))); }

/// All fields of the family under names of their own.
void eachText(DiscState& disc, const std::function<void(const std::string&, std::string&)>& visit) {
  visit("title", disc.discTitle);
  visit("artist", disc.discArtist);
  visit("notes", disc.linerNotes);
  for (size_t i = 1; i <= 100; ++i) visit("track" + std::to_string(i), disc.trackTitles[i]);
  for (size_t i = 1; i <= 5; ++i) visit("info" + std::to_string(i), disc.discInfo[i]);
  for (size_t i = 0; i <= 75; ++i) visit("extra" + std::to_string(i), disc.extraInfo[i]);
  for (size_t i = 1; i <= 50; ++i) visit("lyrics" + std::to_string(i), disc.lyricsHigh[i]);
}

/// One line of any text.
std::string oneLine(const std::string& text) {
  std::string line;
  for (const char c : text) {
    line += c == '\\' ? "\\\\" : c == '\n' ? "\\n" : c == '\r' ? "\\r" : c == '\t' ? "\\t" : std::string(1, c);
  }
  return line;
}

std::string anyLines(const std::string& line) {
  std::string text;
  for (size_t i = 0; i < line.size(); ++i) {
    if (line[i] != '\\' || i + 1 == line.size()) {
      text += line[i];
      continue;
    }
    const char c = line[++i];
    text += c == 'n' ? '\n' : c == 'r' ? '\r' : c == 't' ? '\t' : c;
  }
  return text;
}

}  // namespace

std::string escapeField(std::string text) { return swapped(std::move(text), '"', ',', '`', '~'); }

std::string unescapeField(std::string text) { return swapped(std::move(text), '`', '~', '"', ','); }

void CdRecords::readCdRecord() {
  if (const auto bytes = files_.read(path(""))) readInto(*bytes, mainFields(disc_));
  disc_.extraInfo.fill("");
  if (const auto bytes = files_.read(path("3"))) {
    readInto(*bytes, fieldsOf(disc_.extraInfo, 0, 75));
    if (trim(disc_.extraInfo[1]).empty()) disc_.extraInfo[1] = "Audio CD";
  }
  // Whatever the disc's track count, these titles win.
  if (const auto bytes = files_.read(path("4"))) readInto(*bytes, fieldsOf(disc_.trackTitles, 1, 100));
  if (const auto bytes = files_.read(path("5"))) readInto(*bytes, fieldsOf(disc_.lyricsHigh, 1, 50));
  readWholeTexts();
}

bool CdRecords::extraWanted() const {
  const auto& extra = disc_.extraInfo;
  if (!trim(extra[0]).empty()) return true;
  for (size_t i = 2; i <= 75; ++i) {
    const std::string text = toWindows1252(trim(extra[i]));
    if (!text.empty() && static_cast<unsigned char>(text[0]) > 31 && static_cast<unsigned char>(text[0]) < 127) return true;
  }
  return trim(extra[1]) != "Audio CD";
}

bool CdRecords::writeCdRecord() {
  files_.makeFolder(joinPath(settings_.appDir, "datacd"));
  // The time list keeps its commas: they part its times.
  bool done = files_.write(path(""), written(mainFields(disc_), &disc_.discInfo[1]));
  if (leadingNumber(disc_.discInfo[2]) > kMainTitles || disc_.trackCount > kMainTitles) {
    done = files_.write(path("4"), written(fieldsOf(disc_.trackTitles, 1, 100))) && done;
    done = files_.write(path("5"), written(fieldsOf(disc_.lyricsHigh, 1, 50))) && done;
  }
  const bool extra = extraWanted();
  done = writeWholeTexts() && done;
  if (extra) {
    // From here until the next read the table itself holds the escaped texts, as its readers expect.
    for (std::string& field : disc_.extraInfo) field = escapeField(field);
    done = files_.write(path("3"), written(fieldsOf(disc_.extraInfo, 0, 75))) && done;
  }
  return done;
}

int16_t CdRecords::readTimeCorrection() const {
  const auto bytes = files_.read(path("1"));
  if (!bytes) return 0;
  FieldReader reader(*bytes);
  for (int i = 0; i < kCorrectionLine; ++i) reader.next();
  const double value = leadingNumber(reader.next().value_or(""));
  return static_cast<int16_t>(std::clamp(value, -3.0, 5.0));
}

bool CdRecords::writeTimeCorrection() {
  FieldWriter out;
  for (int i = 0; i < kCorrectionLine; ++i) out.text("");
  out.number(disc_.timeCorrection);
  files_.makeFolder(joinPath(settings_.appDir, "datacd"));
  return files_.write(path("1"), out.bytes());
}

std::optional<std::vector<int>> CdRecords::readProgram() const {
  const auto bytes = files_.read(path("2"));
  if (!bytes) return std::nullopt;
  std::vector<int> values;
  FieldReader reader(*bytes);
  for (auto text = reader.next(); text && values.size() < kProgramLines; text = reader.next()) {
    const double value = leadingNumber(*text);
    values.push_back(value > 0 && value < 1000 ? static_cast<int>(value) : 0);
  }
  return values;
}

bool CdRecords::writeProgram(const std::vector<int>& tracks) {
  FieldWriter out;
  for (size_t i = 0; i < kProgramLines; ++i) out.number(i < tracks.size() ? tracks[i] : 0);
  files_.makeFolder(joinPath(settings_.appDir, "datacd"));
  return files_.write(path("2"), out.bytes());
}

bool CdRecords::programExists() const { return files_.exists(path("2")); }

bool CdRecords::deleteProgram() { return files_.remove(path("2")); }

// ---- texts beyond the code page, whole, in a file of our own: "field<TAB>as the family holds it<TAB>whole".
// They win as long as the family still holds what was written for them; another program's edit wins over them.

std::string CdRecords::wholeTextsPath() const {
  const std::string& main = disc_.cdFilePath;
  return main.substr(0, main.size() - std::min<size_t>(main.size(), 3)) + ".utf8";
}

void CdRecords::readWholeTexts() {
  const auto bytes = files_.read(wholeTextsPath());
  if (!bytes || !isUtf8(*bytes)) return;
  std::vector<std::array<std::string, 3>> lines;
  for (const std::string& line : splitLines(*bytes)) {
    const auto first = line.find('\t');
    const auto second = first == std::string::npos ? first : line.find('\t', first + 1);
    if (second == std::string::npos) continue;
    lines.push_back({line.substr(0, first), anyLines(line.substr(first + 1, second - first - 1)), anyLines(line.substr(second + 1))});
  }
  eachText(disc_, [&](const std::string& name, std::string& text) {
    for (const auto& [field, held, whole] : lines) {
      if (field == name && held == text) {
        text = whole;
        return;
      }
    }
  });
}

bool CdRecords::writeWholeTexts() {
  std::string bytes;
  eachText(disc_, [&](const std::string& name, std::string& text) {
    if (fitsWindows1252(text)) return;
    // The extended fields may stand escaped in memory, from the save before.
    const std::string whole = name.rfind("extra", 0) == 0 ? unescapeField(text) : text;
    bytes += name + "\t" + oneLine(asRead(text)) + "\t" + oneLine(whole) + "\n";
  });
  return bytes.empty() ? files_.remove(wholeTextsPath()) : files_.write(wholeTextsPath(), bytes);
}

}  // namespace orvanta
