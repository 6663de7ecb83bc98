// Who the user is to the CDDB, which server is asked, and how mail goes out: "cddbol.dat" and "cddbml.dat" in
// the data folder, shared with other programs of the family.
#pragma once

#include <cstdint>
#include <string>

namespace orvanta {

class Files;

/// Where servers of old called back; nothing is read there.
inline constexpr uint16_t kListenPort = 1001;

/// Addresses of our own, in one place.
namespace cddb_defaults {
inline constexpr const char* kHost = "gnudb.gnudb.org";
inline constexpr int kPort = 8880;
inline constexpr const char* kSiteName = "gnudb.org";
inline constexpr const char* kSubmissions = "freedb-submit@gnudb.org";
inline constexpr const char* kFreedbSubmissions = "freedb-submit@freedb.org";
inline constexpr const char* kTestSubmissions = "test-submit@gnudb.org";
}  // namespace cddb_defaults

struct CddbSettings {
  // cddbol.dat
  std::string cddbServer;    ///< host; over HTTP the whole address of the server's script
  std::string cddbSiteName;  ///< as the list of servers has it
  int cddbPort = 0;
  std::string emailUser;  ///< what stands before the "@"
  std::string emailDomain;
  std::string proxyUser;
  bool useCddbp = false;     ///< else HTTP
  bool autoConnect = false;  ///< an unknown disc is looked up by itself
  std::string proxyServer;
  std::string proxyPassword;  ///< "" sends no credentials at all

  // cddbml.dat
  std::string submitAddress;
  std::string smtpServer;
  int smtpPort = 0;

  /// Server, port and address are all there: a lookup can begin.
  bool complete() const;
  bool senderKnown() const;
  /// Where submissions go: what was entered, the usual address without it, or that of the server's own people.
  std::string submissionsTo() const;
};

/// What "cddbol.dat" holds; false without the file. Fields that it lacks keep what they were.
bool readCddbSettings(Files& files, const std::string& appDir, CddbSettings& settings);
bool writeCddbSettings(Files& files, const std::string& appDir, const CddbSettings& settings);

bool readMailSettings(Files& files, const std::string& appDir, CddbSettings& settings);
bool writeMailSettings(Files& files, const std::string& appDir, const CddbSettings& settings);

/// Both files, with what no file may say put right.
CddbSettings storedCddbSettings(Files& files, const std::string& appDir);

/// A port that mail can go to: 25 for one below 1 or above 9999.
int mailPort(int port);

/// For a fresh data folder: the public server, nobody's address, and both lists of servers. What is there
/// stays. True when all stand afterwards.
bool writeMissingCddbFiles(Files& files, const std::string& appDir);

}  // namespace orvanta
