// Probe, load and deferred table of a disc. It happens once in a process: a new disc is a new
// process.
#include "playback/disc_load.h"

#include <cmath>

#include "base/text.h"
#include "base/times.h"
#include "platform/ports/cd_device.h"
#include "platform/ports/files.h"
#include "platform/ports/screen.h"
#include "playback/upward.h"
#include "records/disc_files.h"
#include "records/sheet.h"
#include "state/data_folder.h"

namespace orvanta {

namespace {

/// Eight digits: zero-padded, of a longer number the last eight.
std::string keyOf(int32_t sum) {
  const std::string text = "00000000" + std::to_string(sum);
  return text.substr(text.size() - 8);
}

}  // namespace

bool DiscLoad::entryIsAudio() const { return endsWithNoCase(device_.directoryEntry(), ".CDA"); }

bool DiscLoad::probe() {
  DiscState& disc = state_.disc;
  device_.setWait(0);
  device_.setUpdateInterval(0);
  device_.setDeviceType("CDAudio");
  device_.command("Open");
  bool playable = device_.error() != device_error::kNoDisc;
  if (playable) {
    disc.trackCount = device_.tracks();
    device_.command("Close");
    // One track may be a disc of data alone.
    playable = disc.trackCount > 1 || entryIsAudio();
  }
  if (!playable) {
    if (layer_.openDevice()) loadDisc();
    disc.noDiscState = kNoDiscAtStart;
    return false;
  }
  disc.noDiscState = kDiscAtStart;
  disc.trackCount = 1;
  if (layer_.openDevice()) loadDisc();
  if (device_.length() == 0) totalFromTracks();
  readOwn();
  return true;
}

void DiscLoad::loadDisc() {
  DiscState& disc = state_.disc;
  device_.setWait(0);
  device_.setUpdateInterval(0);
  device_.setDeviceType("CDAudio");
  device_.sendString("set cdaudio time format milliseconds");
  const double start = leadingNumber(device_.sendString("status cdaudio position track 1"));
  disc.trackFrames[0] = static_cast<int32_t>(std::floor(start * kFramesPerSecond / 1000));
  device_.setTimeFormat(kTimeFormatTmsf);
  disc.trackCount = device_.tracks();
  for (int16_t track = 1; track <= disc.trackCount && track <= 100; ++track) {
    disc.dataTrack[static_cast<size_t>(track)] = device_.isData(track);
  }
  display_.word("Reading CD Information...");
  disc.discSum = layer_.sumOfTracks();
  disc.discKey = keyOf(disc.discSum);
  disc.discLengthText = layer_.discLengthTextOf();
  disc.cdFilePath = DataFolder(files_, state_.settings.appDir).disc(disc.discKey);
  if (files_.exists(disc.cdFilePath)) {
    readTexts();
  } else {
    clearTexts();
  }
  display_.disc(disc.trackCount, disc.discLengthText);
}

void DiscLoad::readTexts() {
  DiscState& disc = state_.disc;
  DiscFiles(files_, disc.cdFilePath).readTexts(disc);
  // A record that knows fewer tracks than the drive takes the drive's count.
  if (leadingNumber(disc.discInfo[kTrackCount]) < disc.trackCount) disc.discInfo[kTrackCount] = std::to_string(disc.trackCount);
  display_.showHeader();
}

void DiscLoad::readTextsAgain() {
  if (files_.exists(state_.disc.cdFilePath)) {
    readTexts();
  } else {
    fillFromSheet(state_.disc, device_.texts());
    display_.showHeader();
  }
}

/// What else the user keeps of the disc: a program, and by how much its table is wrong.
void DiscLoad::readOwn() {
  const DiscFiles own(files_, state_.disc.cdFilePath);
  const auto program = own.program();
  state_.program.pgmStored = program && !program->empty() && program->front() >= 1;
  state_.disc.timeCorrection = own.timeCorrection();
}

/// The user has written nothing about this disc: it may tell of itself.
void DiscLoad::clearTexts() {
  state_.disc.trackTitles.fill("");
  fillFromSheet(state_.disc, device_.texts());
  display_.showHeader();
}

/// For a driver that gives no length: the tracks' sum, 3 seconds allowed for what their
/// rounding down has dropped.
void DiscLoad::totalFromTracks() {
  int sum = 3;
  for (int16_t track = 1; track <= state_.disc.trackCount; ++track) sum += secondsOf(layer_.trackLengthText(track));
  display_.disc(state_.disc.trackCount, longTime(sum));
}

void DiscLoad::deferredTable() {
  DiscState& disc = state_.disc;
  if (!disc.trackTableDone) {
    screen_.setPointer(Pointer::Hourglass);
    for (int16_t track = 1; track <= disc.trackCount; ++track) {
      disc.trackLengths[static_cast<size_t>(track)] = layer_.trackLengthText(track);
    }
    disc.trackTableDone = true;
    screen_.setPointer(Pointer::Normal);
  }
  if (typeShown_) return;
  showDiscType();
  if (disc.trackFrames[0] > 0) upward_.automaticLookup();
}

void DiscLoad::clearOnRequest() {
  DiscState& disc = state_.disc;
  if (!disc.clearDiscRequest) return;
  disc.clearDiscRequest = disc.searching = false;
  disc.discArtist.clear();
  disc.discTitle.clear();
  display_.emptyHeader();
  display_.searching(false);
  upward_.closeDiscWindows();
}

void DiscLoad::showDiscType() {
  typeShown_ = true;
  if (entryIsAudio()) {
    display_.discType("DISC");
    return;
  }
  display_.discType("Enh-CD");
  state_.disc.enhancedCd = true;
  looks_.darkenIntro();
  form_.Image12.visible = true;
}

}  // namespace orvanta
