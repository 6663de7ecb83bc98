// autorun.inf, then the usual names, then the one program in the root, then the user.
#include "web/enhanced_disc.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "base/foreign_text.h"
#include "base/text.h"
#include "faceplate/actions.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/disc_data.h"
#include "platform/ports/processes.h"
#include "platform/ports/screen.h"

namespace orvanta {

namespace {

constexpr const char* kTitle = "Orvanta Enhanced CD Menu";
constexpr size_t kAutorunBytes = 65536;  ///< more is none
constexpr const char* kUsual[] = {"program.exe", "run.exe", "play.exe", "start.exe", "runme32.exe", "launch.exe"};

/// Marks that turn letters round, in UTF-8, by their first and last: Arabic's own; two of direction; embeddings and overrides
/// with the two separators before them; isolates.
// NOLINTBEGIN(misc-misleading-bidirectional)
constexpr std::pair<std::string_view, std::string_view> kTurning[] = {
    {"\xD8\x9C", "\xD8\x9C"}, {"\xE2\x80\x8E", "\xE2\x80\x8F"}, {"\xE2\x80\xA8", "\xE2\x80\xAE"}, {"\xE2\x81\xA6", "\xE2\x81\xA9"}};
// NOLINTEND(misc-misleading-bidirectional)

bool turns(std::string_view character) {
  return std::any_of(std::begin(kTurning), std::end(kTurning), [&](const auto& range) {
    const std::string_view mark = character.substr(0, range.first.size());
    return mark >= range.first && mark <= range.second;
  });
}

/// A name of the disc's making, so that all of it is read as it is: in lines that fit a box, without marks that turn letters round.
std::string shownName(const std::string& way) {
  constexpr size_t kLine = 60;  // characters
  std::string shown;
  size_t count = 0;
  const std::string plain = withoutControls(way);
  for (std::string_view rest = plain; !rest.empty(); ++count) {
    const std::string_view character = firstCharacters(rest, 1);
    if (count > 0 && count % kLine == 0) shown += '\n';
    shown += turns(character) ? "?" : character;
    rest.remove_prefix(character.size());
  }
  return shown;
}

}  // namespace

std::string autorunFile(const std::string& text) {
  for (const std::string& line : splitLines(withoutControls(foreignText(text), true))) {
    const std::string_view trimmed = trim(line);
    if (!startsWithNoCase(trimmed, "OPEN=")) continue;
    std::string way(trim(trimmed.substr(5)));
    std::replace(way.begin(), way.end(), '\\', '/');
    while (way.starts_with('/')) way.erase(0, 1);
    return ("/" + way + "/").find("/../") == std::string::npos ? way : "";
  }
  return {};
}

std::string EnhancedDisc::ofAutorun() const {
  const std::string list = ports_.discData.find("autorun.inf");
  if (list.empty()) return {};
  const std::string way = autorunFile(ports_.discData.read(list, kAutorunBytes));
  return way.empty() ? "" : ports_.discData.find(way);
}

std::string EnhancedDisc::onlyProgram() const {
  std::string only;
  for (const std::string& name : ports_.discData.rootFiles()) {
    if (!endsWithNoCase(name, ".exe")) continue;
    if (!only.empty()) return {};
    only = name;
  }
  return only;
}

std::string EnhancedDisc::startFile() const {
  if (std::string way = ofAutorun(); !way.empty()) return way;
  for (const char* name : kUsual) {
    if (std::string way = ports_.discData.find(name); !way.empty()) return way;
  }
  return onlyProgram();
}

void EnhancedDisc::launchEnhancedCd() {
  if (form_.Label14.caption.get() != "Enh-CD" || state_.disc.drawerOpen || busy_) return;
  busy_ = true;
  ports_.screen.setPointer(Pointer::Hourglass);
  disc_ = ports_.discData.disc();
  const std::string way = startFile();
  ports_.screen.setPointer(Pointer::Normal);
  const Start how = way.empty() ? Start::Impossible : start(way);
  if (how == Start::Impossible) askForAnother(way);
  if (how == Start::Started) giveWay();
  busy_ = false;
}

EnhancedDisc::Start EnhancedDisc::start(const std::string& way) {
  const std::string question =
      "The disc would like to start its program \"" + shownName(way) + "\".\n\nA program can do to your files whatever you can. Start it?";
  if (!ports_.dialogs.confirm(kTitle, question) || !discStays()) return Start::Unwanted;
  ports_.screen.setPointer(Pointer::Hourglass);
  const std::string program = ports_.discData.bring(way);
  ports_.screen.setPointer(Pointer::Normal);
  tellUnread();
  if (!discStays()) return Start::Unwanted;
  // A disc's program finds what is the disc's from its root on.
  ProcessRequest request{{program}, ports_.discData.folder(), WindowStyle::Normal};
  request.detached = true;
  const bool started = !program.empty() && ports_.processes.canStart(program) && ports_.processes.start(request) != 0;
  return started ? Start::Started : Start::Impossible;
}

/// Before the program shows a picture that lacks something.
void EnhancedDisc::tellUnread() {
  constexpr size_t kShown = 5;  // names
  const std::vector<std::string> ways = ports_.discData.takeUnread();
  if (ways.empty()) return;
  std::string message = "Not all of the disc could be copied. Its programs may miss:\n";
  for (size_t i = 0; i < ways.size() && i < kShown; ++i) message += '\n' + shownName(ways[i]);
  if (ways.size() > kShown) message += "\nand " + std::to_string(ways.size() - kShown) + " more";
  ports_.dialogs.message(BoxStyle::Warning, kTitle, message);
}

/// A yes is one to the disc that was asked about.
bool EnhancedDisc::discStays() const { return !state_.disc.drawerOpen && ports_.discData.disc() == disc_; }

/// `failed`: could not be started here; "" where none was found.
void EnhancedDisc::askForAnother(const std::string& failed) {
  const std::string why =
      failed.empty() ? "Enhanced CD Startup File Not Found!" : "\"" + shownName(failed) + "\" could not be started on this system.";
  if (!ports_.dialogs.askYesNo(BoxStyle::Question, kTitle, why + " Do you wish to search for the program file on the CD?")) return;
  ports_.screen.setPointer(Pointer::Hourglass);
  // The question may make a person mount it.
  if (disc_.empty()) disc_ = ports_.discData.disc();
  const std::string folder = discStays() ? ports_.discData.folder() : "";
  ports_.screen.setPointer(Pointer::Normal);
  tellUnread();
  if (!discStays()) return;
  if (folder.empty()) {
    ports_.dialogs.message(BoxStyle::Warning, kTitle,
                           "The files of the disc cannot be reached: it is damaged, not mounted, or there is no room for a copy.");
    return;
  }
  const auto file = ports_.dialogs.askOpenFile({"Find Enhanced CD Startup File...", folder, "", "All Executable Files (*)|*"});
  if (!file) return;
  const std::string way = ports_.discData.wayOf(*file);
  if (way.empty()) {
    ports_.dialogs.message(BoxStyle::Warning, kTitle, "The file " + shownName(*file) + " does not lie on the disc.");
    return;
  }
  const Start how = start(way);
  if (how == Start::Started) giveWay();
  if (how == Start::Impossible)
    ports_.dialogs.message(BoxStyle::Warning, kTitle, "The file " + shownName(*file) + " could not be started on this system.");
}

/// The disc is the other program's now.
void EnhancedDisc::giveWay() {
  actions_.run(Action::Stop, By::Program);
  actions_.run(Action::Cont, By::Program);
}

}  // namespace orvanta
