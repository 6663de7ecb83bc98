#include "tests/support/scene_start.h"

#include <algorithm>
#include <cstdlib>
#include <map>

#include "state/cddb_settings.h"

namespace orvanta::test {
namespace {

using Preparation = void (*)(PlayRig& rig, const Word& word);

Colour colour(const Word& word) { return static_cast<Colour>(word.number()); }

/// Settings, and what the disc, the drive and the host are like.
const std::map<std::string, Preparation> kPreparations = {
    {"level",
     [](PlayRig& rig, const Word& w) { rig.auxVolume.reading.volume = static_cast<uint32_t>(std::strtoul(w.value.c_str(), nullptr, 16)); }},
    {"daytime", [](PlayRig& rig, const Word& w) { rig.clock.startOfDay = w.number(); }},
    {"stuck", [](PlayRig& rig, const Word&) { rig.player.stuck = true; }},
    {"held", [](PlayRig& rig, const Word&) { rig.player.held = Holder::Other; }},
    {"drive", [](PlayRig& rig, const Word& w) { rig.player.absent = w.value; }},
    {"drive-told", [](PlayRig& rig, const Word& w) { rig.facts.now.drive = w.value; }},
    {"entry", [](PlayRig& rig, const Word& w) { rig.entry = w.value; }},
    {"plays", [](PlayRig& rig, const Word& w) { rig.playsFrom = w.number(); }},
    {"engine-before", [](PlayRig& rig, const Word& w) { rig.CoreRig::engine = w.value; }},
    {"words", [](PlayRig& rig, const Word& w) { rig.words = w.value; }},
    {"missing", [](PlayRig& rig, const Word& w) { rig.processes.missing.insert(w.value); }},
    {"recorder", [](PlayRig& rig, const Word& w) { rig.settings.recordCommand = w.value; }},
    {"mixer", [](PlayRig& rig, const Word& w) { rig.settings.mixerPath = w.value; }},
    {"browser", [](PlayRig& rig, const Word& w) { rig.settings.browserPath = w.value; }},
    {"engine", [](PlayRig& rig, const Word& w) { rig.settings.searchEngine = w.value; }},
    {"on-disc",
     [](PlayRig& rig, const Word& w) {
       const size_t colon = w.value.find(':');
       rig.discData.files[upper(w.value.substr(0, colon))] = colon == std::string::npos ? "" : w.value.substr(colon + 1);
     }},
    {"unread", [](PlayRig& rig, const Word& w) { rig.discData.unread.push_back(w.value); }},
    {"lyrics", [](PlayRig& rig, const Word& w) { rig.settings.lyricsSite = w.value; }},
    {"bits", [](PlayRig& rig, const Word& w) { rig.screen.bits = w.number(); }},
    {"twips", [](PlayRig& rig, const Word& w) { rig.screen.twips = w.number(); }},
    {"no-font", [](PlayRig& rig, const Word& w) { rig.screen.missing = {w.value}; }},
    {"font", [](PlayRig& rig, const Word& w) { rig.settings.fonts[0] = {w.list().at(0), w.number(1), 1, 0, 0, 0x123456}; }},
    {"lcdFore", [](PlayRig& rig, const Word& w) { rig.settings.lcdFore = colour(w); }},
    {"lcdBack", [](PlayRig& rig, const Word& w) { rig.settings.lcdBack = colour(w); }},
    {"colours", [](PlayRig& rig, const Word& w) { std::ranges::copy(w.numbers(), rig.settings.customColor.begin()); }},
    {"picture",
     [](PlayRig& rig, const Word& w) {
       rig.settings.faceplateBitmap = w.value;
       rig.settings.faceplateBitmapOn = 1;
       rig.files.files[upper(w.value)] = "x";
     }},
    {"no-picture", [](PlayRig& rig, const Word& w) { rig.screen.noPictures = {w.value}; }},
    {"paper",
     [](PlayRig& rig, const Word& w) {
       rig.settings.wallpaperFile = w.list().at(0);
       rig.screen.picture = {w.number(1), w.number(2)};
     }},
    {"papercolour", [](PlayRig& rig, const Word& w) { rig.settings.wallpaperColor = colour(w); }},
    {"file", [](PlayRig& rig, const Word& w) {
       const size_t colon = w.value.find(':');
       rig.files.files[upper(w.value.substr(0, colon))] = w.value.substr(colon + 1);
     }}};

int16_t* setting(Settings& settings, const std::string& name) {
  const std::pair<const char*, int16_t*> all[] = {{"timeMode", &settings.timeMode},
                                                  {"repeatOn", &settings.repeatOn},
                                                  {"soundMode", &settings.soundMode},
                                                  {"smallFaceplate", &settings.smallFaceplate},
                                                  {"expandedDisplay", &settings.expandedDisplay},
                                                  {"editorFromFaceplate", &settings.editorFromFaceplate},
                                                  {"lcdCustom", &settings.lcdCustom},
                                                  {"minToTray", &settings.minToTray},
                                                  {"wallpaper", &settings.wallpaperOption},
                                                  {"filling", &settings.wallpaperMode},
                                                  {"showLights", &settings.showLights},
                                                  {"border", &settings.faceplateBorder},
                                                  {"minToTray", &settings.minToTray}};
  for (const auto& [known, value] : all) {
    if (name == known) return value;
  }
  return name.starts_with("option") ? &settings.appOptions.at(static_cast<size_t>(name.back() - '0')) : nullptr;
}

/// A server that speaks from a recording, and the settings of a user who knows it.
void goOnline(PlayRig& rig, const std::vector<Word>& start, const std::string& session) {
  const auto said = [&](const char* verb) { return std::ranges::count(start, verb, &Word::verb) > 0; };
  CddbSettings settings;
  settings.useCddbp = !said("web");
  settings.autoConnect = said("auto");
  settings.cddbServer = settings.useCddbp ? "server" : "http://server/cddb.cgi";
  settings.cddbSiteName = settings.useCddbp ? "Site" : "Web, site";
  settings.cddbPort = settings.useCddbp ? 8880 : 80;
  settings.emailUser = "user";
  settings.emailDomain = "domain";
  rig.net.script = recording(session);
  for (const Word& word : start) {
    if (word.verb == "user") settings.emailUser = word.value;
    if (word.verb == "domain") settings.emailDomain = word.value;
    if (word.verb == "sites") rig.net.script.push_back({"sites \r\n", word.value, false});
    // "3:200 ..." is what the server says at its fourth turn.
    if (word.verb == "answers" || word.verb == "closes") {
      Exchanged& turn = rig.net.script.at(static_cast<size_t>(word.number()));
      turn.answered = word.value.substr(2);
      turn.closes = word.verb == "closes";
    }
  }
  writeCddbSettings(rig.files, "/data", settings);
  rig.files.write("/data/datacd/srvcddbp.txt", "server 8880 Site\r\nother 888 N1 Other\r\n");
  rig.files.write("/data/datacd/srvhttp.txt", "http://server/cddb.cgi 80 Web, site\r\n");
}

}  // namespace

Toc discOf(const Word& word) {
  if (word.value == "A") return discA();
  if (word.value == "B") return discB();
  if (word.value == "none") return {};
  if (const size_t by = word.value.find('x'); by != std::string::npos)
    return tracksOf(word.number(), std::atoi(word.value.c_str() + by + 1));
  std::vector<int> frames = word.numbers();
  const int leadOut = frames.back();
  frames.pop_back();
  return tocOf(frames, leadOut);
}

Toc discIn(const std::vector<Word>& start) {
  const auto found = std::ranges::find(start, "disc", &Word::verb);
  return found == start.end() ? discB() : discOf(*found);
}

void prepare(PlayRig& rig, const std::vector<Word>& start) {
  for (const Word& word : start) {
    if (int16_t* value = setting(rig.settings, word.verb)) *value = static_cast<int16_t>(word.number());
    if (const auto found = kPreparations.find(word.verb); found != kPreparations.end()) found->second(rig, word);
    if (word.verb == "cddb") goOnline(rig, start, word.value);
  }
  rig.player.images = {{"/a.cue", discA()}, {"/b.cue", discB()}};
}

}  // namespace orvanta::test
