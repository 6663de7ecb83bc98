// Lists of servers, as they were downloaded or typed: any bytes give at most 250 sites that can be shown and dialled.
#include "base/code_page.h"
#include "fuzz/check.h"
#include "state/server_list.h"

using namespace orvanta;

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const auto sites = readSites(bytesOf(data, size));
  check(sites.size() <= 250);
  for (const Site& site : sites) {
    check(site.sitePort >= -999 && site.sitePort <= 65535);
    check(isUtf8(site.siteName) && site.siteHost.find_first_of(" \r\n") == std::string::npos);
  }
  return 0;
}
