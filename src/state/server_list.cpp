// Reading lists that servers, users and older programs wrote; keeping the last good one.
#include "state/server_list.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/text.h"
#include "platform/ports/files.h"
#include "state/cddb_settings.h"
#include "state/data_folder.h"

namespace orvanta {

namespace {

constexpr size_t kMostSites = 250;
constexpr size_t kShortestHost = 3;
constexpr const char* kRandomSite = "Random US Site";
constexpr int kLowestPort = 888;

constexpr const char* kCddbpList = "gnudb.gnudb.org 8880 N059.34 E018.07 gnudb.org\r\n";
constexpr const char* kHttpList = "http://gnudb.gnudb.org/~cddb/cddb.cgi 80 gnudb.org, HTTP\r\n";

/// Two fields of a line, joined as they are read; what follows a second comma is dropped.
std::string fieldsOf(std::string_view line) {
  const auto comma = line.find(',');
  const std::string first(trim(line.substr(0, comma)));
  if (comma == std::string_view::npos || endsWithNoCase(first, kRandomSite)) return first;
  const std::string_view rest = line.substr(comma + 1);
  return first + ", " + std::string(trim(rest.substr(0, rest.find(','))));
}

/// A port may stand right at the host's end: four digits, or three.
int cutPort(std::string& host) {
  const auto last = [&](size_t count) { return host.substr(host.size() < count ? 0 : host.size() - count); };
  size_t digits = 3;
  int port = static_cast<int>(leadingNumber(last(digits)));
  if (port < kLowestPort) port = static_cast<int>(leadingNumber(last(++digits)));
  host.resize(host.size() - std::min(host.size(), digits));
  return port;
}

std::string nameIn(std::string_view text) {
  const auto digit = text.find_last_of("0123456789");
  const std::string_view name = trim(digit == std::string_view::npos ? text : text.substr(digit + 1));
  return startsWithNoCase(name, kRandomSite) ? kRandomSite : std::string(name);
}

bool hasContent(const Files& files, const std::string& path) { return !files.read(path).value_or("").empty(); }

}  // namespace

std::vector<Site> readSites(std::string_view bytes) {
  constexpr int kHighestPort = 65535;
  std::vector<Site> sites;
  for (const std::string& line : splitLines(fromWindows1252(bytes))) {
    const std::string text = fieldsOf(withoutControls(line));
    const auto blank = text.find(' ');
    if (blank == std::string::npos || sites.size() == kMostSites) break;
    Site site{text.substr(0, blank), 0, nameIn(text)};
    const double port = leadingNumber(text.substr(blank + 1));
    site.sitePort = port >= 1 && port <= kHighestPort ? static_cast<int>(port) : cutPort(site.siteHost);
    sites.push_back(std::move(site));
  }
  return sites;
}

ServerLists::ServerLists(Files& files, const std::string& appDir)
    : files_(files),
      folder_(DataFolder(files, appDir).discs()),
      cddbp_(DataFolder(files, appDir).path(DataFile::Servers)),
      backup_(DataFolder(files, appDir).path(DataFile::ServersBackup)),
      http_(DataFolder(files, appDir).path(DataFile::HttpServers)) {}

std::vector<Site> ServerLists::load(bool cddbp) {
  if (!cddbp) return readSites(files_.read(http_).value_or(""));
  std::vector<Site> sites = loadCddbp();
  if (sites.empty() || sites.front().siteHost.size() < kShortestHost) {
    // Spoiled: away with it, once, so that the backup gets its turn.
    files_.remove(cddbp_);
    sites = loadCddbp();
  }
  if (sites.empty()) sites.emplace_back();
  if (sites.front().siteName.empty()) sites.front() = {cddb_defaults::kHost, kLowestPort, kRandomSite};
  return sites;
}

std::vector<Site> ServerLists::loadCddbp() {
  if (!hasContent(files_, cddbp_) && hasContent(files_, backup_)) files_.write(cddbp_, *files_.read(backup_));
  return readSites(files_.read(cddbp_).value_or(""));
}

void ServerLists::beginUpdate() {
  const auto present = files_.read(cddbp_);
  if (!present || present->empty()) return;
  if (files_.write(backup_, *present)) files_.remove(cddbp_);
}

bool ServerLists::finishUpdate(std::string_view list) { return files_.write(cddbp_, list); }

void ServerLists::giveUpUpdate() {
  const auto kept = files_.read(backup_);
  if (!kept || kept->empty()) return;
  files_.remove(cddbp_);
  files_.write(cddbp_, *kept);
}

bool ServerLists::writeMissing() {
  bool all = files_.makeFolder(folder_);
  if (!files_.exists(cddbp_)) all = files_.write(cddbp_, kCddbpList) && all;
  if (!files_.exists(http_)) all = files_.write(http_, kHttpList) && all;
  return all;
}

}  // namespace orvanta
