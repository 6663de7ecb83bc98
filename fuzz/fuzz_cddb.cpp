// What servers send: any bytes give matches, records and lists within their bounds, the same however they arrive.
#include <cstdlib>

#include "base/code_page.h"
#include "cddb/disc_record.h"
#include "cddb/matches.h"
#include "cddb/reply_shaper.h"
#include "cddb/server_list.h"
#include "cddb/toc_text.h"

using namespace orvanta;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

void check(bool good) {
  if (!good) std::abort();
}

std::string shaped(std::string_view bytes, Shape shape, size_t piece) {
  ReplyShaper shaper;
  std::string all;
  for (size_t at = 0; at < bytes.size(); at += piece) {
    check(shaper.take(bytes.substr(at, piece)));
    while (const auto reply = shaper.next(shape)) all += *reply + "|";
  }
  return all;
}

void readsBy(const Road& road, std::string_view bytes) {
  const QueryReply reply = readQueryReply(bytes, road);
  check(reply.rows.size() < road.replyLines && reply.rows.size() <= std::max<size_t>(reply.total, 1));
  for (const std::string& row : reply.rows) {
    check(matchOfRow(row).discId.size() <= 8);
    check(isUtf8(row) && row.find_first_of("\r\n") == std::string::npos);
  }
  DiscRecord record;
  readRecord(bytes, road, record);
  readRecord(bytes, road, record);
  check(record.count <= DiscRecord::kMostTracks);
  for (const std::string* text : {&record.title, &record.notes, &record.titles[1], &record.extended[100]}) check(isUtf8(*text));
  namingOf(record.title);
  yearIn(record.notes, 2026);
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  for (const Shape shape : {Shape::Line, Shape::Reply, Shape::Mail}) check(shaped(bytes, shape, 1) == shaped(bytes, shape, 7));
  readsBy(kCddbpRoad, bytes);
  readsBy(kHttpRoad, withLineEnds(bytes));
  for (const Site& site : readSites(bytes)) check(site.sitePort >= -999 && site.sitePort <= 65535);
  check(discIdOf(bytes).size() <= 8);
  return 0;
}
