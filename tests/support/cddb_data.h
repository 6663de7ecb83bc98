// Records and recorded conversations of real servers, from tests/data/cddb.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cddb/disc_record.h"

namespace orvanta::test {

/// Text with \r, \n, \t, \\ and \xNN as the bytes that it stands for.
std::string unescaped(std::string_view text);
/// A file under tests/data/cddb, byte for byte.
std::string cddbData(const std::string& name);
/// Names of the files in a folder there, sorted.
std::vector<std::string> cddbNames(const std::string& folder);

/// One thing the client said, and all that the server said next. The first has nothing asked: the banner.
struct Exchanged {
  std::string asked;
  std::string answered;
  bool closes = false;  ///< the server closed after it
};

/// A conversation, line ends and all. The recordings' client goes by our name.
std::vector<Exchanged> recording(const std::string& name);
/// All that the server said, of HTTP the body alone.
std::string replyOf(const std::string& name);
/// All that the client said, of HTTP the body alone.
std::string requestOf(const std::string& name);

/// A parsed record to read and compare: a line each title, text and line of notes.
std::string told(const DiscRecord& record);

}  // namespace orvanta::test
