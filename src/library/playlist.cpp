// List2 is the playlist as shown, List3 its track numbers: whatever is done to one is done to the other.
#include "library/playlist.h"

#include <algorithm>

#include "base/text.h"
#include "library/list_looks.h"
#include "library/list_text.h"
#include "library/placing.h"
#include "platform/ports/dialogs.h"
#include "platform/ports/screen.h"
#include "state/not_written.h"

namespace orvanta {

namespace {

constexpr int16_t kNoRow = 101;
constexpr int kMostRows = 101;
constexpr size_t kProgramEntries = 100;

}  // namespace

Playlist::Playlist(const LibraryPorts& ports, Engine& engine, Modes& modes, Display& display, cdplist& form, CDForm& faceplate,
                   SharedState& state)
    : ports_(ports), engine_(engine), modes_(modes), display_(display), form_(form), faceplate_(faceplate), state_(state) {
  form.setEvents(this);
}

void Playlist::open() {
  if (state_.disc.trackCount < 1) return;
  form_.show(ports_.desktop);
}

DiscFiles Playlist::discFiles() const { return {ports_.files, state_.disc.cdFilePath}; }

// ---- load

void Playlist::load() {
  place();
  form_.List1.multiSelect = form_.List2.multiSelect = true;
  for (auto* list : {&form_.List1, &form_.List2}) dressList(*list, state_.settings);
  form_.Command2.enabled = discFiles().programExists();
  form_.Command10.enabled = state_.program.pgmStored;
  previewRow_ = kNoRow;
  previewing_ = false;
  fill();
}

/// Over the faceplate's middle, above it where there is room, else below it.
void Playlist::place() {
  const forms::Place screen{0, 0, ports_.screen.widthTwips(), ports_.screen.heightTwips()};
  const forms::Place window = besideDeck(placeOf(form_), placeOf(faceplate_), screen, {Side::Above, Side::Below, Side::Right, Side::Left});
  form_.left = window.left;
  form_.top = window.top;
}

void Playlist::fill() {
  const DiscState& disc = state_.disc;
  form_.List1.clear();
  clearList();
  for (int track = 1; track <= listedTracks(disc); ++track) form_.List1.add(titleForList(track));
  // A program that runs is shown.
  if (state_.program.pgmIndex <= 0) return;
  for (size_t entry = 1; entry <= kProgramEntries; ++entry) {
    if (state_.program.pgmList[entry] > 0) append(state_.program.pgmList[entry]);
  }
}

std::string Playlist::titleForList(int track) const {
  const std::string title(trim(state_.disc.trackTitles[static_cast<size_t>(track)]));
  return title.empty() ? "Track " + std::to_string(track) : title;
}

void Playlist::showTitles() {
  if (!form_.loaded()) return;
  for (int row = 0; row < form_.List1.count(); ++row) form_.List1.set(row, titleForList(row + 1));
  const std::vector<int> tracks = numbers();
  for (size_t row = 0; row < tracks.size(); ++row) form_.List2.set(static_cast<int>(row), titleOf(tracks[row]));
}

/// A number beyond the disc's tracks shows as an empty row.
void Playlist::append(int track) {
  form_.List3.add(std::to_string(track));
  form_.List2.add(titleOf(track));
}

std::vector<int> Playlist::numbers() const {
  std::vector<int> all;
  all.reserve(static_cast<size_t>(form_.List3.count()));
  for (int row = 0; row < form_.List3.count(); ++row) all.push_back(static_cast<int>(leadingNumber(form_.List3.row(row))));
  return all;
}

// ---- input

void Playlist::mouseUp(forms::Control* control, const forms::Mouse& mouse) {
  if (control == nullptr || mouse.button != forms::MouseButton::Left) return;
  const std::string& name = control->name();
  if (name == "Command5" || name == "Command11") addRows(name == "Command11");
  if (name == "Command6") remove();
  const int row = form_.List2.listIndex();
  if (name == "Command7") moveRow(row, row - 1);
  if (name == "Command8") moveRow(row, row + 1);
  if (name == "Command3") unselect();
  if (name == "Command9") clearList();
  if (name == "Command1") save();
  if (name == "Command2") recall();
  if (name == "Command10") deleteProgram();
  if (name == "Command4") play();
  if (name == "Command12") prvcdt();
  if (name == "Command13") stop();
}

void Playlist::click(forms::Control& control) {
  if (&control == &form_.List1) previewRow_ = static_cast<int16_t>(form_.List1.listIndex());
}

void Playlist::doubleClick(forms::Control* control) {
  if (control == &form_.List1) prvcdt();
}

bool Playlist::keyDown(const forms::KeyPress& key) {
  if (key.code != forms::key::kEscape) return false;
  form_.unload();
  return true;
}

/// Dragged by the user.
void Playlist::rowMoved(forms::ListBox& list, int from, int to) {
  if (&list != &form_.List2) return;
  form_.List2.move(from, to);
  form_.List3.move(from, to);
  form_.List2.setListIndex(to);
  form_.List2.selectOnly(to);
}

// ---- the list

void Playlist::addRows(bool all) {
  if (form_.List1.count() == 0) return;
  for (int row = 0; row < form_.List1.count(); ++row) {
    if ((all || form_.List1.selected(row)) && form_.List2.count() < kMostRows) append(row + 1);
  }
  form_.List2.selectOnly(form_.List2.count() - 1);
  form_.List2.setListIndex(form_.List2.count() - 1);
  unselect();
}

void Playlist::remove() {
  if (form_.List2.count() == 0) return;
  for (int row = form_.List2.count() - 1; row >= 0; --row) {
    if (!form_.List2.selected(row)) continue;
    form_.List2.remove(row);
    form_.List3.remove(row);
  }
  form_.List2.selectOnly(form_.List2.count() - 1);
  form_.List2.setListIndex(form_.List2.count() - 1);
}

/// Only the row that the keyboard stands on moves, however many are selected.
void Playlist::moveRow(int from, int to) {
  bool any = false;
  for (int row = 0; row < form_.List2.count(); ++row) any = any || form_.List2.selected(row);
  if (!any || from < 0 || to < 0 || to >= form_.List2.count()) return;
  form_.List2.move(from, to);
  form_.List3.move(from, to);
  form_.List2.setListIndex(to);
}

void Playlist::unselect() {
  form_.List1.selectOnly(-1);
  previewRow_ = kNoRow;
  stopPreview();
}

void Playlist::clearList() {
  form_.List2.clear();
  form_.List3.clear();
}

// ---- the program

void Playlist::save() {
  if (form_.List3.count() == 0) return;
  if (const Unwritten failed = discFiles().writeProgram(numbers()); failed.any()) {
    tellNotWritten(ports_.dialogs, ports_.files, failed.path, failed.reason);
    return;
  }
  state_.program.pgmStored = true;
  form_.Command10.enabled = true;
  display_.program(true);
  play();
}

void Playlist::recall() {
  clearList();
  const auto stored = discFiles().program();
  if (!stored) return;
  for (size_t entry = 0; entry < stored->size() && entry < kProgramEntries; ++entry) {
    if ((*stored)[entry] > 0) append((*stored)[entry]);
  }
}

void Playlist::deleteProgram() {
  if (!state_.program.pgmStored) return;
  if (!ports_.dialogs.askYesNo(BoxStyle::Critical, "Orvanta", "Are you sure you wish to delete this playlist?")) return;
  if (const Unwritten failed = discFiles().deleteProgram(); failed.any()) {
    tellNotWritten(ports_.dialogs, ports_.files, failed.path, failed.reason);
    return;
  }
  engine_.clrpgm();
  state_.program.pgmStored = false;
  form_.Command10.enabled = false;
  display_.program(false);
}

void Playlist::play() {
  const std::vector<int> tracks = numbers();
  if (tracks.empty()) return;
  state_.program.pgmIndex = 0;
  modes_.Image4_MouseUp(PgmKey);
  state_.transport.pausePosition = 0;
  state_.program.clearList();
  for (size_t i = 0; i < tracks.size() && i < kProgramEntries; ++i) state_.program.pgmList[i + 1] = static_cast<int16_t>(tracks[i]);
  form_.unload();
  // The disc may have gone meanwhile: the program waits for it then.
  if (state_.disc.trackCount > 0 && !state_.disc.drawerOpen) engine_.playKey();
}

void Playlist::prvcdt() {
  previewing_ = true;
  modes_.Image4_MouseUp(OneKey);
  if (previewRow_ < 0 || previewRow_ >= state_.disc.trackCount) return;
  if (previewRow_ + 1 == state_.transport.curTrack && state_.transport.playingFlag) return;
  state_.transport.selTrack = previewRow_;
  engine_.clrab();
  engine_.jump();
  if (state_.settings.repeatOn <= 0) display_.lamps(20, kLcdDim);
}

void Playlist::stop() {
  engine_.stopKey();
  previewing_ = false;
}

void Playlist::stopPreview() {
  if (previewing_) stop();
}

}  // namespace orvanta
