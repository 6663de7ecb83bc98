// Rows of the track list's window and of the editor's two lists.
#include "library/list_text.h"

#include <algorithm>

#include "base/text.h"
#include "records/escape.h"

namespace orvanta {

namespace {

constexpr int kMostTracks = 100;
constexpr int kLowTracks = 50;  ///< whose lyrics lie among the extended fields
constexpr size_t kWrap = 74;
constexpr size_t kNotesLine = 73;  ///< longest line of notes that keeps its breaks

void addIfSet(forms::ListBox& list, const std::string& caption, const std::string& value) {
  if (trim(value).empty()) return;
  list.add("");
  list.add(caption + "  " + std::string(trim(value)));
}

void addWrapped(forms::ListBox& list, std::string_view text) {
  for (const std::string& row : wrapWords(text, kWrap)) list.add(row);
}

void addNotes(forms::ListBox& list, DiscState& disc) {
  if (trim(disc.linerNotes).empty()) return;
  list.add("");
  list.add("LINER NOTES:");
  const auto lines = splitLines(disc.linerNotes);
  const bool fit = std::all_of(lines.begin(), lines.end(), [](const std::string& line) { return characterCount(line) <= kNotesLine; });
  if (lines.size() > 1 && fit) {
    for (const std::string& line : lines) list.add(line);
    return;
  }
  if (lines.size() > 1) {
    std::string joined;
    for (const std::string& line : lines) joined += (&line == &lines.front() ? "" : "  ") + line;
    disc.linerNotes = joined;
  }
  addWrapped(list, disc.linerNotes);
}

void addLyrics(forms::ListBox& list, const DiscState& disc) {
  bool headed = false;
  for (int track = 1; track <= listedTracks(disc); ++track) {
    const std::string text(trim(lyricsOf(disc, track)));
    if (text.empty()) continue;
    if (!headed) {
      list.add("");
      list.add("TRACK LYRICS / INFORMATION:");
      headed = true;
    }
    if (characterCount(text) < 2) continue;
    if (characterCount(text) < kWrap) {
      list.add(lyricsRow(track, text));
      continue;
    }
    list.add("");
    list.add("TRACK " + std::to_string(track) + ":  [" + disc.trackTitles[static_cast<size_t>(track)] + "]");
    addWrapped(list, withoutControls(text));
  }
}

void addOwnField(forms::ListBox& list, const std::string& caption, const std::string& value) {
  if (trim(value).empty()) return;
  list.add("");
  list.add(caption);
  list.add(std::string(trim(value)));
}

/// What CD Info tells of a disc where it is set, in this order.
constexpr std::pair<const char*, size_t> kFields[] = {
    {"YEAR RELEASED:", kYear},
    {"UPC #:", kUpcNumber},
    {"ARTIST WEB SITE:", kArtistSite},
    {"ARTIST INFO:", kArtistInfo},
    {"STORAGE LOCATION:", kStorage},
    {"ALBUM CREDITS:", kAlbumCredits},
    {"ALBUM INFO:", kAlbumInfo},
    {"RECORDING INFO:", kRecordingInfo},
    {"RECORDING VENUE:", kRecordingVenue},
    {"MUSIC RATING:", kMusicRating},
    {"RECORDING RATING:", kRecordingRating},
    {"MEDIA RATING:", kMediaRating},
    {"PACKAGING RATING:", kPackageRating},
    {"CONTENTS RATING:", kContentsRating},
    {"RECORDING CODE:", kRecordingCode},
};

}  // namespace

int listedTracks(const DiscState& disc) { return std::min<int>(disc.trackCount, kMostTracks); }

std::string lyricsOf(const DiscState& disc, int track) {
  const auto index = static_cast<size_t>(track);
  return unescapeField(track <= kLowTracks ? disc.extraInfo[kFirstLyrics + index - 1] : disc.lyricsHigh[index - kLowTracks]);
}

void setLyrics(DiscState& disc, int track, const std::string& text) {
  const auto index = static_cast<size_t>(track);
  (track <= kLowTracks ? disc.extraInfo[kFirstLyrics + index - 1] : disc.lyricsHigh[index - kLowTracks]) = text;
}

std::string extraField(const DiscState& disc, size_t index) { return unescapeField(disc.extraInfo[index]); }

std::string trackRow(const DiscState& disc, int track, const std::string& title) {
  return std::to_string(track) + ":\t" + withoutControls(title) + "\t" + disc.trackLengths[static_cast<size_t>(track)];
}

std::string lyricsRow(int track, const std::string& lyrics) { return std::to_string(track) + ":\t" + withoutControls(lyrics); }

std::string rowTitle(const std::string& row) {
  const auto from = row.find('\t');
  if (from == std::string::npos) return {};
  const auto to = row.find('\t', from + 1);
  return row.substr(from + 1, to == std::string::npos ? std::string::npos : to - from - 1);
}

void fillTrackList(forms::ListBox& list, const DiscState& disc) {
  if (disc.trackCount < 1) return;
  list.clear();
  for (int track = 1; track <= listedTracks(disc); ++track) list.add(trackRow(disc, track, disc.trackTitles[static_cast<size_t>(track)]));
}

void fillLyricsList(forms::ListBox& list, const DiscState& disc, LibraryState& library) {
  if (disc.trackCount < 1) return;
  list.clear();
  for (int track = 1; track <= listedTracks(disc); ++track) {
    const std::string lyrics = lyricsOf(disc, track);
    library.trackLyrics[static_cast<size_t>(track)] = lyrics;
    list.add(lyricsRow(track, std::string(trim(lyrics))));
  }
}

void fillCdInfoList(forms::ListBox& list, DiscState& disc, const LibraryState& library) {
  if (disc.trackCount < 1) return;
  fillTrackList(list, disc);
  addNotes(list, disc);
  list.add("");
  list.add("TOTAL DISC TIME:  " + disc.discLengthText);
  addIfSet(list, "GENRE:", disc.discInfo[kGenre]);
  addIfSet(list, "LABEL:", disc.discInfo[kLabel]);
  addIfSet(list, "CATALOG #:", extraField(disc, kCatalogNumber));
  list.add("");
  const std::string media(trim(extraField(disc, kMediaType)));
  list.add("MEDIA TYPE:  " + (disc.enhancedCd ? "Enhanced Audio CD" : media.empty() ? "Audio CD" : media));
  for (const auto& [caption, index] : kFields) addIfSet(list, caption, extraField(disc, index));
  const auto caption = [&](size_t which, const char* usual) {
    return library.userCaptions[which].empty() ? std::string(usual) : library.userCaptions[which];
  };
  addOwnField(list, caption(0, "USER DEFINED 1:"), extraField(disc, kUserDefined1));
  addOwnField(list, caption(1, "USER DEFINED 2:"), extraField(disc, kUserDefined2));
  addIfSet(list, "COMPOSER:", disc.discInfo[kComposer]);
  addIfSet(list, "COST:", extraField(disc, kCost));
  addIfSet(list, "CD CHANGER ID:", extraField(disc, kChangerId));
  list.add("Orvanta Catalog #:  " + disc.discKey);
  addLyrics(list, disc);
}

}  // namespace orvanta
