// Fields in the files' order, one table for reading and writing.
#include "state/cddb_settings.h"

#include <variant>

#include "base/text.h"
#include "platform/ports/files.h"
#include "state/data_folder.h"
#include "state/field_file.h"
#include "state/server_list.h"

namespace orvanta {

namespace {

using Field = std::variant<std::string CddbSettings::*, int CddbSettings::*, bool CddbSettings::*, std::monostate>;

const Field kOnlineFields[] = {&CddbSettings::cddbServer,  &CddbSettings::cddbSiteName, &CddbSettings::cddbPort, &CddbSettings::emailUser,
                               &CddbSettings::emailDomain, &CddbSettings::proxyUser,    &CddbSettings::useCddbp, &CddbSettings::autoConnect,
                               &CddbSettings::proxyServer, &CddbSettings::proxyPassword};
/// The first and the last belong to older programs.
const Field kMailFields[] = {std::monostate{}, &CddbSettings::submitAddress, &CddbSettings::smtpServer, &CddbSettings::smtpPort,
                             std::monostate{}};

int portOf(const std::string& text) {
  constexpr double kHighest = 65535;
  const double value = leadingNumber(text);
  return value >= 0 && value <= kHighest ? static_cast<int>(value) : 0;
}

void assign(const Field& field, const std::string& text, CddbSettings& settings) {
  if (const auto* string = std::get_if<std::string CddbSettings::*>(&field)) {
    settings.*(*string) = text;
  } else if (const auto* number = std::get_if<int CddbSettings::*>(&field)) {
    settings.*(*number) = portOf(text);
  } else if (const auto* flag = std::get_if<bool CddbSettings::*>(&field)) {
    settings.*(*flag) = leadingNumber(text) == 1;
  }
}

template <size_t N>
bool readFile(Files& files, const std::string& path, const Field (&fields)[N], CddbSettings& settings) {
  const auto bytes = files.read(path);
  if (!bytes) return false;
  FieldReader reader(*bytes);
  for (const Field& field : fields) {
    const auto text = reader.next();
    if (!text) break;
    assign(field, *text, settings);
  }
  return true;
}

template <size_t N>
bool writeFile(Files& files, const std::string& path, const Field (&fields)[N], const CddbSettings& settings) {
  FieldWriter out;
  for (const Field& field : fields) {
    if (const auto* string = std::get_if<std::string CddbSettings::*>(&field)) {
      out.text(settings.*(*string));
    } else if (const auto* number = std::get_if<int CddbSettings::*>(&field)) {
      out.number(settings.*(*number));
    } else if (const auto* flag = std::get_if<bool CddbSettings::*>(&field)) {
      out.number(settings.*(*flag) ? 1 : 0);
    } else {
      out.text("");
    }
  }
  return files.write(path, out.bytes());
}

}  // namespace

bool CddbSettings::complete() const { return !trim(cddbServer).empty() && cddbPort > 0 && senderKnown(); }

bool CddbSettings::senderKnown() const { return !trim(emailUser).empty() && !trim(emailDomain).empty(); }

std::string CddbSettings::submissionsTo() const {
  if (startsWithNoCase(cddbServer, "FREEDB")) return cddb_defaults::kFreedbSubmissions;
  return submitAddress.empty() ? cddb_defaults::kSubmissions : submitAddress;
}

bool readCddbSettings(Files& files, const std::string& appDir, CddbSettings& settings) {
  return readFile(files, DataFolder(files, appDir).path(DataFile::Online), kOnlineFields, settings);
}

bool writeCddbSettings(Files& files, const std::string& appDir, const CddbSettings& settings) {
  return writeFile(files, DataFolder(files, appDir).path(DataFile::Online), kOnlineFields, settings);
}

bool readMailSettings(Files& files, const std::string& appDir, CddbSettings& settings) {
  return readFile(files, DataFolder(files, appDir).path(DataFile::Mail), kMailFields, settings);
}

bool writeMailSettings(Files& files, const std::string& appDir, const CddbSettings& settings) {
  return writeFile(files, DataFolder(files, appDir).path(DataFile::Mail), kMailFields, settings);
}

CddbSettings storedCddbSettings(Files& files, const std::string& appDir) {
  constexpr size_t kShortestUser = 2;
  CddbSettings settings;
  readCddbSettings(files, appDir, settings);
  readMailSettings(files, appDir, settings);
  settings.smtpPort = mailPort(settings.smtpPort);
  if (trim(settings.proxyUser).size() < kShortestUser) settings.proxyUser.clear();
  return settings;
}

int mailPort(int port) { return port < 1 || port > 9999 ? 25 : port; }

bool writeMissingCddbFiles(Files& files, const std::string& appDir) {
  bool all = ServerLists(files, appDir).writeMissing();
  if (!files.exists(DataFolder(files, appDir).path(DataFile::Online))) {
    CddbSettings fresh;
    fresh.cddbServer = cddb_defaults::kHost;
    fresh.cddbSiteName = cddb_defaults::kSiteName;
    fresh.cddbPort = cddb_defaults::kPort;
    fresh.useCddbp = fresh.autoConnect = true;
    all = writeCddbSettings(files, appDir, fresh) && all;
  }
  return all;
}

}  // namespace orvanta
