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
  const std::set<std::string> adapters = {"platform/qt", "platform/qt/net", "platform/linux"};
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

}  // namespace
}  // namespace orvanta::test
