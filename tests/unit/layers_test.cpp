// Holds the code to docs/ARCHITECTURE.md: which folder may include which.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "tests/support/places.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

/// Rows "| `folder` | `a`, `b` | ..." of the page's table.
std::map<std::string, std::set<std::string>> allowedIncludes() {
  std::map<std::string, std::set<std::string>> allowed;
  std::ifstream page(sourceFolder() + "/docs/ARCHITECTURE.md");
  const std::regex row(R"(^\| `src/([a-z/]+)` \|([^|]*)\|.*)");
  const std::regex name("`([a-z/]+)`");
  for (std::string line; std::getline(page, line);) {
    std::smatch match;
    if (!std::regex_match(line, match, row)) continue;
    auto& folders = allowed[match[1]];
    const std::string list = match[2];
    for (std::sregex_iterator it(list.begin(), list.end(), name); it != std::sregex_iterator(); ++it) folders.insert((*it)[1]);
  }
  return allowed;
}

std::string folderOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

TEST(Architecture, IncludesPointOneWay) {
  const auto allowed = allowedIncludes();
  ASSERT_GE(allowed.size(), 10U) << "the page's table was not found";
  const std::regex own("^#include \"([^\"]+)\"");
  const std::regex outer("^#include <([^>]+)>");
  const std::set<std::string> adapters = {"platform/qt", "platform/qt/net", "platform/disc", "platform/sound", "platform/linux"};
  for (const auto& entry : fs::recursive_directory_iterator(sourceFolder() + "/src")) {
    if (!entry.is_regular_file()) continue;
    const std::string path = fs::relative(entry.path(), sourceFolder() + "/src").string();
    const std::string folder = folderOf(path);
    ASSERT_TRUE(allowed.count(folder) == 1) << folder << " is not on the page";
    if (path == "app/main.cpp") continue;
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      std::smatch match;
      if (std::regex_search(line, match, own)) {
        const std::string target = folderOf(match[1]);
        EXPECT_TRUE(target == folder || allowed.at(folder).count(target) == 1) << path << " includes " << match[1];
      } else if (std::regex_search(line, match, outer) && adapters.count(folder) == 0) {
        // The standard library's headers have neither a capital nor an ending.
        EXPECT_TRUE(std::regex_match(match[1].str(), std::regex("[a-z_0-9]+"))) << path << " includes <" << match[1] << ">";
      }
    }
  }
}

/// Windows are data: no drawing, and nothing of the forms, asks for a control by its name. Names in small letters alone may be
/// words of a table, too.
TEST(Architecture, TheViewKnowsNoWindow) {
  const auto each = [](const char* folder, const std::regex& pattern, const auto& tell) {
    for (const auto& entry : fs::recursive_directory_iterator(sourceFolder() + "/src/" + folder)) {
      if (!entry.is_regular_file()) continue;
      std::ifstream file(entry.path());
      for (std::string line; std::getline(file, line);) {
        if (line.find('"') == std::string::npos) continue;
        for (std::sregex_iterator it(line.begin(), line.end(), pattern); it != std::sregex_iterator(); ++it) tell((*it)[1], entry.path());
      }
    }
  };
  std::set<std::string> names;
  each("windows", std::regex(R"re(\{\*this, "(\w*[A-Z0-9]\w*)"\})re"),
       [&](const std::string& name, const fs::path&) { names.insert(name); });
  ASSERT_GT(names.size(), 100U);
  for (const char* folder : {"platform/qt", "platform/forms"}) {
    each(folder, std::regex("\"(\\w+)"),
         [&](const std::string& text, const fs::path& path) { EXPECT_EQ(names.count(text), 0U) << path << " names " << text; });
  }
}

}  // namespace
/// Whether a line can name one of the display's or the keys' controls: regular expressions are slow.
bool mentions(const std::string& line) {
  for (const char* part : {"Label", "CDStatusBar", "cntl", "Image", "Pct", "Vbar", "Thumb", "Tline"}) {
    if (line.find(part) != std::string::npos) return true;
  }
  return false;
}

/// Some of what the faceplate shows has one writer alone. Places and fonts are the layout's.
TEST(Architecture, DisplayAndKeysHaveOneWriterEach) {
  struct Owner {
    const char* controls;
    const char* properties;
    std::set<std::string> files;
  };
  const Owner owners[] = {
      {"(Label6|Label7|Label8|Label9|Label1[0-4]|Label16|Label2[123]|Label30|Label43|CDStatusBar)",
       "(caption|visible|foreColor|backColor|floodPercent|floodColor)",
       {"playback/display.h", "playback/display.cpp", "playback/display_paint.cpp"}},
      {"(icntl[bc]|scntl[bc]|Image[34])", "visible", {"playback/key_looks.cpp"}},
      {"(Pct[LR]|Vbartop[LR]|Thumb[LR]|Tline[LR])", "(caption|visible|top|height|backColor)", {"faceplate/volume.cpp"}},
      {"(Label17|Label24|Label3[4589]|Label40|Label44|Label19|Label20|Label25)", "foreColor", {"playback/key_looks.cpp"}},
  };
  for (const Owner& owner : owners) {
    for (const auto& entry : fs::recursive_directory_iterator(sourceFolder() + "/src")) {
      const std::string path = fs::relative(entry.path(), sourceFolder() + "/src").string();
      if (!entry.is_regular_file() || owner.files.count(path) == 1 || path.rfind("platform/", 0) == 0) continue;
      // The windows of the library and the CDDB, and the strip, have controls of the same names.
      const bool windows = path.rfind("library/", 0) == 0 || path.rfind("cddb/", 0) == 0 || path.rfind("strip/", 0) == 0;
      const std::string control = (windows ? "faceplate_?\\." : "\\w+\\.") + std::string(owner.controls);
      const std::regex written("\\b" + control + "(\\[[^\\]]*\\])?\\." + owner.properties + " = ");
      // One of a list, or all of an array, that something is done to.
      const std::regex several("([{,] ?&|: )" + control + "(\\[[^\\]]*\\])?[,})]");
      std::ifstream file(entry.path());
      for (std::string line; std::getline(file, line);) {
        if (!mentions(line)) continue;
        const bool places = path == "faceplate/layout.cpp";
        EXPECT_FALSE(std::regex_search(line, written) || (!places && std::regex_search(line, several))) << path << ": " << line;
      }
    }
  }
}

}  // namespace orvanta::test
