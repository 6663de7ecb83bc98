// The disc's files, field by field.
#include "records/disc_files.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "base/code_page.h"
#include "base/log.h"
#include "base/text.h"
#include "platform/ports/files.h"
#include "records/escape.h"
#include "state/field_file.h"

namespace orvanta {

namespace {

constexpr int kCorrectionLine = 42;  ///< empty fields before the time correction
constexpr size_t kProgramLines = 100;
constexpr double kMostTrack = 1000;

/// Fields in the order of a file, as places to read into or write from.
using Fields = std::vector<std::reference_wrapper<std::string>>;

Fields mainFields(DiscTexts& texts) {
  Fields fields{texts.discTitle, texts.discArtist, texts.linerNotes};
  for (size_t track = 1; track <= DiscFiles::kMainTitles; ++track) fields.emplace_back(texts.trackTitles[track]);
  for (size_t i = 1; i <= 5; ++i) fields.emplace_back(texts.discInfo[i]);
  return fields;
}

template <size_t N>
Fields fieldsOf(std::array<std::string, N>& table, size_t first, size_t last) {
  Fields fields;
  for (size_t i = first; i <= last; ++i) fields.emplace_back(table[i]);
  return fields;
}

/// A file that ends before the last field leaves the rest as they are.
void readInto(const std::string& bytes, const Fields& fields) {
  FieldReader reader(bytes);
  for (std::string& field : fields) {
    const auto text = reader.next();
    if (!text) return;
    field = unescapeField(*text);
    // The rows of lists are parted by TABs.
    std::replace(field.begin(), field.end(), '\t', ' ');
  }
}

/// `raw`: a field that is written as it stands; nullptr for none.
std::string written(const Fields& fields, const std::string* raw = nullptr) {
  FieldWriter out;
  for (const std::string& field : fields) out.text(&field == raw ? field : escapeField(field));
  return out.bytes();
}

/// Something of it can be seen in the family's files.
bool printable(const std::string& text) {
  const std::string bytes = toWindows1252(trim(text));
  return std::any_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) > 31 && c != 127; });
}

std::string folderOf(const std::string& path) { return path.substr(0, std::min(path.rfind('/'), path.size())); }

}  // namespace

std::optional<std::string> DiscFiles::contents(const char* suffix) const {
  auto bytes = files_.read(path(suffix));
  if (!bytes && files_.exists(path(suffix))) logLine("disc", path(suffix) + " is there and cannot be read");
  return bytes;
}

/// The family's own, as any of its programs reads them.
void DiscFiles::readHeld(DiscTexts& texts) const {
  if (const auto bytes = contents("")) readInto(*bytes, mainFields(texts));
  texts.extraInfo.fill("");
  if (const auto bytes = contents("3")) {
    readInto(*bytes, fieldsOf(texts.extraInfo, 0, 75));
    if (trim(texts.extraInfo[kMediaType]).empty()) texts.extraInfo[kMediaType] = "Audio CD";
  }
  // Whatever the disc's track count, these titles win.
  if (const auto bytes = contents("4")) readInto(*bytes, fieldsOf(texts.trackTitles, 1, 100));
  if (const auto bytes = contents("5")) readInto(*bytes, fieldsOf(texts.lyricsHigh, 1, 50));
}

void DiscFiles::readTexts(DiscTexts& texts) const {
  readHeld(texts);
  makeWhole(texts, wholeTexts());
}

/// A file that is there stays in step, so that a field that was cleared is cleared in it.
bool DiscFiles::extraWanted(const DiscTexts& texts) const {
  if (files_.exists(path("3")) || !trim(texts.extraInfo[kCost]).empty() || trim(texts.extraInfo[kMediaType]) != "Audio CD") return true;
  return std::any_of(texts.extraInfo.begin() + kYear, texts.extraInfo.end(), printable);
}

Unwritten DiscFiles::writeTexts(DiscTexts& texts, int trackCount, int timeCorrection) const {
  if (const Unwritten failed = makeFolder(); failed.any()) return failed;
  // What the files hold now, to know which whole texts still belong to them.
  DiscTexts held;
  readHeld(held);
  const std::vector<WholeText> both = linesForBoth(texts, held, wholeTexts());
  const bool extra = extraWanted(texts);
  FileSet set(files_);
  // First, for old files and new ones: a save that breaks in the middle loses neither's whole texts.
  if (!both.empty()) set.write(wholeTextsPath(), wholeTextsBytes(both));
  FieldWriter correction;
  for (int i = 0; i < kCorrectionLine; ++i) correction.text("");
  correction.number(timeCorrection);
  set.write(path("1"), correction.bytes());
  if (leadingNumber(texts.discInfo[kTrackCount]) > kMainTitles || trackCount > kMainTitles) {
    set.write(path("4"), written(fieldsOf(texts.trackTitles, 1, 100)));
    set.write(path("5"), written(fieldsOf(texts.lyricsHigh, 1, 50)));
  }
  if (extra) set.write(path("3"), written(fieldsOf(texts.extraInfo, 0, 75)));
  // The time list keeps its commas: they part its times.
  set.write(path(""), written(mainFields(texts), &texts.discInfo[kTimeList]));
  const Unwritten failed = set.commit();
  if (failed.any()) return failed;
  // The old ones' lines have served. Left there they would do no harm.
  const std::vector<WholeText> lines = linesFor(texts);
  if (lines.empty()) {
    if (!both.empty() || files_.exists(wholeTextsPath())) files_.remove(wholeTextsPath());
  } else if (lines.size() != both.size()) {
    files_.write(wholeTextsPath(), wholeTextsBytes(lines));
  }
  // From here until the next read the table itself holds the escaped texts, as its readers expect.
  if (extra) {
    for (std::string& field : texts.extraInfo) field = escapeField(field);
  }
  return {};
}

Unwritten DiscFiles::makeFolder() const {
  const std::string folder = folderOf(main_);
  return files_.makeFolder(folder) ? Unwritten{} : Unwritten{folder, files_.reason()};
}

int16_t DiscFiles::timeCorrection() const {
  const auto bytes = contents("1");
  if (!bytes) return 0;
  FieldReader reader(*bytes);
  for (int i = 0; i < kCorrectionLine; ++i) reader.next();
  const double value = leadingNumber(reader.next().value_or(""));
  return static_cast<int16_t>(std::nearbyint(std::clamp(value, -3.0, 5.0)));
}

std::optional<std::vector<int>> DiscFiles::program() const {
  const auto bytes = contents("2");
  if (!bytes) return std::nullopt;
  std::vector<int> values;
  FieldReader reader(*bytes);
  for (auto text = reader.next(); text && values.size() < kProgramLines; text = reader.next()) {
    const double value = std::nearbyint(leadingNumber(*text));
    values.push_back(value > 0 && value < kMostTrack ? static_cast<int>(value) : 0);
  }
  return values;
}

Unwritten DiscFiles::writeProgram(const std::vector<int>& tracks) const {
  if (const Unwritten failed = makeFolder(); failed.any()) return failed;
  FieldWriter out;
  for (size_t i = 0; i < kProgramLines; ++i) out.number(i < tracks.size() ? tracks[i] : 0);
  FileSet set(files_);
  set.write(path("2"), out.bytes());
  return set.commit();
}

bool DiscFiles::programExists() const { return files_.exists(path("2")); }

Unwritten DiscFiles::deleteProgram() const { return files_.remove(path("2")) ? Unwritten{} : Unwritten{path("2"), files_.reason()}; }

std::string DiscFiles::wholeTextsPath() const { return main_.substr(0, main_.size() - std::min<size_t>(main_.size(), 3)) + ".utf8"; }

std::vector<WholeText> DiscFiles::wholeTexts() const {
  const auto bytes = files_.read(wholeTextsPath());
  return bytes ? parseWholeTexts(*bytes) : std::vector<WholeText>();
}

}  // namespace orvanta
