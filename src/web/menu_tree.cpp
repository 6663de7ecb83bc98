// Rows, in the order and depth in which they are shown. Each only calls into other rooms.
#include "web/menu_tree.h"

#include <algorithm>
#include <span>

#include "base/text.h"

namespace orvanta {

namespace {

using On = const MenuParts&;

template <Action A>
void act(On on) {
  on.actions.run(A);
}

template <Action A>
bool can(On on) {
  return on.actions.enabled(A);
}

template <void (WebSearch::*Call)()>
void web(On on) {
  (on.search.*Call)();
}

template <void (WebUpward::*Call)()>
void upward(On on) {
  (on.upward.*Call)();
}

template <Search Kind>
void search(On on) {
  on.search.searchwww(Kind);
}

bool discIn(On on) { return on.state.disc.in(); }
bool small(On on) { return on.state.settings.smallFaceplate == kOn; }
bool large(On on) { return !small(on); }
bool stored(On on) { return on.state.program.pgmStored; }

/// A text of others in a caption: "&" stands for itself.
std::string shownText(std::string_view text) {
  std::string shown;
  for (const char c : withoutControls(text)) shown += c == '&' ? "&&" : std::string(1, c);
  return shown;
}

std::string displayCaption(On on) {
  return on.state.settings.expandedDisplay == kOn ? "Normal &Display Mode (Dsp)" : "Expanded &Display Mode (Dsp)";
}

/// A name of ten thousand characters would be wider than any screen.
std::string webSiteCaption(On on) {
  constexpr size_t kShown = 60;
  const std::string_view artist = trim(on.state.disc.discArtist);
  const std::string_view start = firstCharacters(artist, kShown);
  return shownText(start) + (start.size() < artist.size() ? "..." : "") + " &Web Site";
}

void zoom(On on) { on.actions.run(small(on) ? Action::Large : Action::Small); }
bool canZoom(On on) { return on.actions.enabled(small(on) ? Action::Large : Action::Small); }
void setUp(On on) { on.state.process.setupWanted = true; }
void library(On on) { on.library.arun5(); }
bool looksUp(On on) { return on.upward.looksUp(); }
bool hasSite(On on) { return discIn(on) && !on.search.webSite().empty(); }
bool hasTexts(On on) { return discIn(on) && !trim(on.state.disc.discArtist).empty() && !trim(on.state.disc.discTitle).empty(); }

constexpr std::string_view kEngines = "seleng";

const MenuRow kRows[] = {
    {1, "playb", "&Playback"},
    {2, "amprev", "P&revious Track", act<Action::Previous>, can<Action::Previous>},
    {2, "amnext", "&Next Track", act<Action::Next>, can<Action::Next>},
    {2, "amplay", "&Play", act<Action::Play>, can<Action::Play>},
    {2, "ampause", "Pa&use", act<Action::Pause>, can<Action::Pause>},
    {2, "amstop", "&Stop", act<Action::Stop>, can<Action::Stop>},
    {2, "amrip", "Record (&CD Ripper)", act<Action::Record>, can<Action::Record>},
    {2, "ameject", "&Eject", act<Action::Eject>, can<Action::Eject>},
    {2, "amabloop", "&A<->B (start/stop/clear toggle)", act<Action::AbLoop>, can<Action::AbLoop>},
    {2, "ammute", "Volume &Mute (toggle)", act<Action::Mute>, can<Action::Mute>},
    {2, "amvolup", "&Volume Up", act<Action::Louder>, can<Action::Louder>},
    {2, "amvoldown", "Volume &Down", act<Action::Softer>, can<Action::Softer>},
    {1, "optmenuz", "&Options"},
    {2, "omtime", "&Time Display (toggle)", act<Action::TimeMode>, can<Action::TimeMode>},
    {2, "omrepeat", "&Repeat", act<Action::Repeat>, can<Action::Repeat>},
    {2, "omshuffle", "&Shuffle", act<Action::Shuffle>, can<Action::Shuffle>},
    {2, "ominfo", "&Info", act<Action::TrackList>, can<Action::TrackList>},
    {2, "ommixer", "&Mixer", act<Action::Mixer>, can<Action::Mixer>},
    {2, "omplaymode", "&Play Mode (toggle)", act<Action::NextMode>, can<Action::NextMode>},
    {2, "ompgmrcl", "Recall Sa&ved Program", act<Action::Recall>, can<Action::Recall>, stored},
    {2, "ompgmpl", "P&GM Playlist Editor", act<Action::Playlist>, can<Action::Playlist>},
    {2, "omwp", "&Wallpaper (toggle)", act<Action::Wallpaper>},
    {2, "dspmode", "", act<Action::DisplaySize>, can<Action::DisplaySize>, large, displayCaption},
    {2, "omzoom", "&Faceplate Size (large/small toggle)", zoom, canZoom},
    {2, "ctrfpx", "&Center Faceplate (dbl-click faceplate)", upward<&WebUpward::centreFaceplate>},
    {2, "omminpop", "Minimize to P&opup Display", act<Action::MinimiseToStrip>},
    {2, "omminst", "Minimize to S&ystray", act<Action::MinimiseToTray>},
    {1, "orvhelpx", "&Help", act<Action::Help>},
    {1, "arun8", "Orvanta LX &Setup", setUp},
    {1, "sep001", ""},
    {1, "drcddb", "CDD&B Data Retrieval"},
    {2, "cddbdnld", "&Get CDDB Data Online", upward<&WebUpward::lookUpOnline>, discIn},
    {2, "cddbcanz", "&Cancel Online CDDB Data Retrieval", upward<&WebUpward::cancelLookUp>, looksUp},
    {1, "ripper", "CD &Ripper", act<Action::Record>, can<Action::Record>},
    {1, "arun5", "&Music Library", library},
    {1, "alib", "CD &Data", act<Action::CdData>, can<Action::CdData>},
    {1, "isrchopts", "&Internet Search Options"},
    {2, "awebsite", "", web<&WebSearch::awebsite>, hasSite, hasSite, webSiteCaption},
    {2, "wsung", "W&ho Sung What? (CDDB)", web<&WebSearch::wsung>},
    {2, "alyrics", "View Song &Lyrics (ILS)", web<&WebSearch::alyrics>, hasTexts, hasTexts},
    {2, "srchart", "&Artist Search", search<Search::Artist>, discIn},
    {2, "srchartit", "Artist/&Title Search", search<Search::ArtistAndTitle>, discIn},
    {2, "srchartsong", "Artist/&Song Search", search<Search::ArtistAndSong>, discIn},
    {2, kEngines, "Select Search &Engine"},
    {2, "wb", "Access Web &Browser", web<&WebSearch::wb>},
    {1, "sep567", ""},
    {1, "aboutlx", "&About Orvanta", upward<&WebUpward::showAbout>},
};

MenuItem itemOf(On on, const MenuRow& row) {
  MenuItem item;
  item.caption = row.ownCaption != nullptr ? row.ownCaption(on) : std::string(row.caption);
  // A separator cannot be chosen, so it has no name in a menu.
  if (!item.caption.empty()) item.name = row.name;
  item.enabled = row.enabled == nullptr || row.enabled(on);
  item.shown = row.shown == nullptr || row.shown(on);
  return item;
}

std::vector<MenuItem> engines(On on) {
  std::vector<MenuItem> items;
  for (const SearchEngine& engine : kSearchEngines) {
    items.push_back({std::string(engine.item), shownText(engine.name), true, trim(on.state.searchEngine()) == engine.name, true, {}});
  }
  return items;
}

/// Rows from `at` on that lie at `level` or deeper; `at` is behind them afterwards.
std::vector<MenuItem> itemsAt(On on, int level, std::span<const MenuRow>& rows) {
  std::vector<MenuItem> items;
  while (!rows.empty() && rows.front().level >= level) {
    const MenuRow& row = rows.front();
    rows = rows.subspan(1);
    MenuItem item = itemOf(on, row);
    item.items = row.name == kEngines ? engines(on) : itemsAt(on, row.level + 1, rows);
    items.push_back(std::move(item));
  }
  return items;
}

/// The engine is the CDDB until one was chosen.
void webchk(On on) {
  std::string& engine = on.state.settings.searchEngine;
  if (trim(engine).size() <= 3) engine = kSearchEngines.front().name;
}

}  // namespace

MenuItem menuTree(const MenuParts& on) {
  webchk(on);
  std::span<const MenuRow> rows(kRows);
  MenuItem tree{"wwwdt", "Links...", true, false, true, {}};
  tree.items = itemsAt(on, 1, rows);
  return tree;
}

MenuItem menuPart(const MenuParts& on, std::string_view name) {
  const MenuItem tree = menuTree(on);
  const auto found = std::find_if(tree.items.begin(), tree.items.end(), [&](const MenuItem& each) { return each.name == name; });
  return found == tree.items.end() ? MenuItem{} : *found;
}

void choose(const MenuParts& on, std::string_view name) {
  const auto* const engine =
      std::find_if(kSearchEngines.begin(), kSearchEngines.end(), [&](const auto& each) { return each.item == name; });
  if (engine != kSearchEngines.end()) on.state.process.menusEngine = engine->name;
  const auto* const row = std::find_if(std::begin(kRows), std::end(kRows), [&](const MenuRow& each) { return each.name == name; });
  if (row == std::end(kRows) || row->chosen == nullptr) return;
  // While the menu stood, the disc may have gone.
  const MenuItem now = itemOf(on, *row);
  if (now.enabled && now.shown) row->chosen(on);
}

}  // namespace orvanta
