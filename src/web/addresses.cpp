// Engines and their addresses. Those whose own search has gone lead to one of today, with the query in its form.
#include "web/addresses.h"

#include <algorithm>

#include "base/text.h"

namespace orvanta {

const std::array<SearchEngine, 11> kSearchEngines = {{
    // The open CDDB's own site.
    {"se0", "CDDB", "https://gnudb.org/xm/search?q="},
    // Gone since 2013. As plain, and as quiet about who asks.
    {"se1", "AltaVista", "https://duckduckgo.com/?q="},
    // Asks no index of its own any more; one that passes queries on without the asker's name.
    {"se2", "Excite", "https://www.startpage.com/sp/search?query="},
    // Still there, at its own address and in a form of today.
    {"se2a", "Go2Net (MetaCrawler)", "https://www.metacrawler.com/serp?q="},
    // The engine that it asked last.
    {"se3", "Hotbot", "https://www.bing.com/search?q="},
    // A directory with search, long closed; one with an index of its own.
    {"se4", "Infoseek", "https://www.qwant.com/?q="},
    // Still there.
    {"se5", "Lycos", "https://search.lycos.com/web/?q="},
    // Closed to the public; a small engine with an index of its own.
    {"se5a", "Northern Light", "https://www.mojeek.com/search?q="},
    // Still there.
    {"se6", "WebCrawler", "https://www.webcrawler.com/serp?q="},
    // Still there.
    {"se7", "Yahoo", "https://search.yahoo.com/search?p="},
    // A list of bands to look through; it takes no query.
    {"se8", "Ultimate Band List", "https://www.discogs.com/search/", false},
}};

namespace {

/// For users who have chosen no site of their own: its pages are found by words, in its own form.
constexpr std::string_view kLyricsSearch = "https://genius.com/search?q=";

/// Words of an address: a control sign would end a line of whoever takes it.
std::string plussed(std::string_view text) {
  std::string words = withoutControls(text);
  std::replace(words.begin(), words.end(), ' ', '+');
  return words;
}

/// Without the first of these words that it starts with. A name that is no more than the word stays.
std::string_view withoutArticle(std::string_view name) {
  for (const std::string_view article : {"THE ", "A "}) {
    if (startsWithNoCase(name, article)) return name.substr(article.size());
  }
  return name;
}

}  // namespace

const SearchEngine* engineNamed(std::string_view name) {
  const auto* const found = std::find_if(kSearchEngines.begin(), kSearchEngines.end(), [&](const auto& each) { return each.name == name; });
  return found == kSearchEngines.end() ? nullptr : found;
}

std::string searchQuery(std::string_view artist, std::string_view other, Search kind) {
  std::string query(trim(artist));
  if (kind != Search::Artist) query += "+" + std::string(other);
  return plussed(query);
}

std::string searchAddress(std::string_view engine, std::string_view query) {
  const SearchEngine* known = engineNamed(trim(engine));
  if (known == nullptr) return webAddress(engine);
  return std::string(known->address) + (known->takesQuery ? std::string(query) : "");
}

std::string webAddress(std::string_view text) {
  const std::string address = plussed(trim(text));
  const bool whole = startsWithNoCase(address, "http://") || startsWithNoCase(address, "https://");
  return whole ? address : "http://" + address;
}

std::string listedArtist(std::string_view artist) {
  const std::string_view name = trim(artist);
  const std::string_view plain = withoutArticle(name);
  if (plain.size() < name.size()) return std::string(plain);
  if (startsWithNoCase(name, "10,000")) return "10000" + std::string(name.substr(6));
  if (startsWithNoCase(name, "10 CC")) return "10CC";
  if (startsWithNoCase(name, "2 PAC")) return "2PAC";
  return std::string(name);
}

std::string listedTitle(std::string_view title) { return std::string(withoutArticle(trim(title))); }

std::string lyricsAddress(std::string_view site, std::string_view artist, std::string_view title) {
  const std::string bands = plussed(listedArtist(artist));
  const std::string label = plussed(listedTitle(title));
  if (trim(site).empty()) return std::string(kLyricsSearch) + bands + "+" + label;
  return webAddress(site) + "/search/checknormal.asp?bands=" + bands + "&label=" + label + "&song=&match=like";
}

}  // namespace orvanta
