// Addresses of the web, and what opens them.
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

#include "platform/linux/associations.h"
#include "tests/support/fakes.h"
#include "tests/support/test_discs.h"
#include "tests/support/transcript.h"
#include "web/addresses.h"
#include "web/browser.h"

namespace orvanta::test {
namespace {

/// The fields of a question, between bars.
Tape fieldsOf(const std::string& line) {
  Tape fields{""};
  for (const char c : line) {
    if (c == '|') {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  fields.resize(5);
  return fields;
}

TEST(Addresses, AreMadeOfTextsAsTheyStand) {
  EXPECT_EQ(kSearchEngines.size(), 11U);
  expectAnswers("answers/addresses.txt", [](const std::string& line) -> std::string {
    const Tape f = fieldsOf(line);
    if (f[0] == "lyrics") return lyricsAddress(f[1], f[2], f[3]);
    if (f[0] == "site") return webAddress(f[1]);
    const Search kind = f[1] == "1" ? Search::Artist : f[1] == "2" ? Search::ArtistAndTitle : Search::ArtistAndSong;
    return searchAddress(f[0], searchQuery(f[2], f[3], kind));
  });
  const std::string all = searchAddress("Yahoo", searchQuery(std::string(10000, '&'), "x", Search::ArtistAndTitle));
  EXPECT_EQ(all.size(), std::string("https://search.yahoo.com/search?p=").size() + 10002);
}

TEST(Associations, AreReadFromTheDesktopsFiles) {
  expectAnswers("answers/associations.txt", [](const std::string& line) -> std::string {
    const Tape f = fieldsOf(line);
    if (f[0] == "exec") return commandOf(f[1]).value_or("none");
    std::string all;
    for (const std::string& each :
         f[0] == "start" ? browserArguments(splitCommand(f[1], false), f[2]) : choicesFor(f[1], "Default Applications", "text/html"))
      all += "[" + each + "]";
    return all;
  });
}

TEST(Associations, TakeTheFirstProgramThatCanBeHad) {
  const std::vector<std::string> kPages = {"text/html", "x-scheme-handler/http"};
  const TempFolder home;
  std::filesystem::create_directories(home / "data/applications/own");
  const auto program = [&](const char* name, const char* command) {
    writeFile(home / "data/applications" + name, std::string("[Desktop Entry]\nExec=") + command + " %u\n");
  };
  std::map<std::string, std::string> before;
  for (const auto& [variable, value] :
       {std::pair{"XDG_CONFIG_HOME", "config"}, {"XDG_DATA_HOME", "data"}, {"XDG_DATA_DIRS", "none"}, {"XDG_CONFIG_DIRS", "none"}}) {
    const char* old = std::getenv(variable);
    before[variable] = old != nullptr ? old : "";
    ::setenv(variable, (home / value).c_str(), 1);
  }
  EXPECT_EQ(associatedCommand(kPages), "");
  program("/cached.desktop", "cached");
  writeFile(home / "data/applications/mimeinfo.cache", "[MIME Cache]\ntext/html=editor.desktop;\nx-scheme-handler/http=cached.desktop;\n");
  program("/editor.desktop", "editor");
  EXPECT_EQ(associatedCommand(kPages), "cached");
  program("/own/browser.desktop", "chosen");
  std::filesystem::create_directories(home / "config");
  writeFile(home / "config/mimeapps.list", "[Default Applications]\ntext/html=gone.desktop;../../etc/x.desktop;own-browser.desktop\n");
  EXPECT_EQ(associatedCommand(kPages), "chosen") << "one that has gone is passed over";
  const std::string added = "[Added Associations]\ntext/html=editor.desktop\n";
  writeFile(home / "config/mimeapps.list", added);
  EXPECT_EQ(associatedCommand(kPages), "editor");
  writeFile(home / "config/mimeapps.list", added + "[Default Applications]\nx-scheme-handler/http=cached.desktop\n");
  EXPECT_EQ(associatedCommand(kPages), "cached") << "chosen for any type, before what was added to one";
  writeFile(home / "config/mimeapps.list",
            "[Default Applications]\nx-scheme-handler/http=cached.desktop\ntext/html=own-browser.desktop\n" + added);
  EXPECT_EQ(associatedCommand(kPages), "chosen");
  for (const auto& [variable, value] : before) value.empty() ? ::unsetenv(variable.c_str()) : ::setenv(variable.c_str(), value.c_str(), 1);
}

}  // namespace
}  // namespace orvanta::test
