// Addresses of the web, made of what the disc's texts say. Pure text; nothing is started here.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvanta {

/// Engines that can be chosen. Their names are kept in settings files and stay, whatever has become of the engine.
struct SearchEngine {
  std::string_view item;  ///< of the menu
  std::string_view name;
  std::string_view address;  ///< the query is appended
  bool takesQuery = true;
};

extern const std::array<SearchEngine, 11> kSearchEngines;

/// nullptr for a name that is none of them.
const SearchEngine* engineNamed(std::string_view name);

enum class Search : uint8_t { Artist, ArtistAndTitle, ArtistAndSong };

/// Artist and what else is searched for with it, "+" for each blank. Nothing else is encoded: engines take words as they stand.
std::string searchQuery(std::string_view artist, std::string_view other, Search kind);

/// `engine`: a name; any other text is an address itself, and gets no query.
std::string searchAddress(std::string_view engine, std::string_view query);

/// As browsers take it: with "http://" where it names no road of the web. So it never begins with "-".
std::string webAddress(std::string_view text);

/// A name as lyrics sites list it: without "The" and "A", some bands by one spelling.
std::string listedArtist(std::string_view artist);
std::string listedTitle(std::string_view title);

/// `site`: the base of a site that the user has chosen, "" for one of today.
std::string lyricsAddress(std::string_view site, std::string_view artist, std::string_view title);

}  // namespace orvanta
