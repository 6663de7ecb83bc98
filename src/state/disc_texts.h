// Everything that is written about a disc: what its files hold, and what its windows show and change.
#pragma once

#include <array>
#include <string>

namespace orvanta {

/// Places in DiscTexts::discInfo.
enum InfoField : size_t { kTimeList = 1, kTrackCount = 2, kComposer = 3, kLabel = 4, kGenre = 5 };

/// Places in DiscTexts::extraInfo. Those of no name have no field; they are kept as they stand.
enum ExtraField : size_t {
  kCost = 0,
  kMediaType = 1,
  kYear = 2,
  kArtistSite = 3,
  kStorage = 4,
  kRecordingInfo = 5,
  kRecordingVenue = 6,
  kMusicRating = 7,
  kRecordingRating = 8,
  kMediaRating = 9,
  kPackageRating = 10,
  kContentsRating = 11,
  kUserDefined1 = 12,
  kFirstLyrics = 13,  ///< of track 1; those of track 50 stand at 62
  kArtistInfo = 63,
  kAlbumInfo = 64,
  kChangerId = 65,
  kCatalogNumber = 66,
  kRecordingCode = 67,
  kUpcNumber = 73,
  kUserDefined2 = 74,
  kAlbumCredits = 75,
};

/// Tables of tracks are by track number, from 1.
struct DiscTexts {
  std::string discTitle;
  std::string discArtist;
  std::string linerNotes;  ///< may hold line breaks
  std::array<std::string, 101> trackTitles;
  std::array<std::string, 6> discInfo;     ///< by InfoField; the time list is total and track times, a comma after each
  std::array<std::string, 76> extraInfo;   ///< by ExtraField; from a save to the next read it holds them escaped
  std::array<std::string, 51> lyricsHigh;  ///< [1]..[50]: lyrics of tracks 51 to 100

  bool operator==(const DiscTexts&) const = default;
};

}  // namespace orvanta
