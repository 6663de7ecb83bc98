// The lists of servers that the Setup tab offers: "srvcddbp.txt" with a backup, and "srvhttp.txt", in "datacd".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

class Files;

struct Site {
  std::string siteHost;  ///< of HTTP servers the whole address of the script
  int sitePort = 0;
  std::string siteName;
  bool operator==(const Site&) const = default;
};

/// A list's sites, at most 250; a line that names no site ends it. Lines are "host port ... name", in which the
/// name is what follows the last digit and may hold one comma.
std::vector<Site> readSites(std::string_view bytes);

class ServerLists {
 public:
  ServerLists(Files& files, const std::string& appDir);

  /// For the protocol. A CDDBP list that is missing, empty or spoiled falls back to its backup, and then to the
  /// one server that is always known.
  std::vector<Site> load(bool cddbp);

  /// A list is about to arrive from a server: the present one becomes the backup.
  void beginUpdate();
  /// The whole list that arrived; false when it cannot be stored.
  bool finishUpdate(std::string_view list);
  /// The backup back in the list's place: none arrived.
  void giveUpUpdate();

  bool writeMissing();

 private:
  std::vector<Site> loadCddbp();

  Files& files_;
  std::string folder_;
  std::string cddbp_;
  std::string backup_;
  std::string http_;
};

}  // namespace orvanta
