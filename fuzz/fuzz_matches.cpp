// Replies to a query: any bytes give rows within their bounds, the same however they arrive, and an id that goes back plainly.
#include "base/code_page.h"
#include "cddb/matches.h"
#include "cddb/reply_shaper.h"
#include "cddb/toc_text.h"
#include "fuzz/check.h"

using namespace orvanta;

namespace {

std::string shaped(std::string_view bytes, Shape shape, size_t piece) {
  ReplyShaper shaper;
  std::string all;
  for (size_t at = 0; at < bytes.size(); at += piece) {
    check(shaper.take(bytes.substr(at, piece)));
    while (const auto reply = shaper.next(shape)) all += *reply + "|";
  }
  return all;
}

void rowsBy(const Road& road, std::string_view bytes) {
  const QueryReply reply = readQueryReply(bytes, road);
  check(reply.rows.size() < road.replyLines && reply.rows.size() <= std::max<size_t>(reply.total, 1));
  for (const std::string& row : reply.rows) {
    const Match match = matchOfRow(row);
    check(match.discId.size() <= 8);
    check((match.category + match.discId).find_first_of("\r\n") == std::string::npos);
    check(isUtf8(row) && row.find_first_of("\r\n") == std::string::npos);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view bytes = bytesOf(data, size);
  for (const Shape shape : {Shape::Line, Shape::Reply, Shape::Mail}) check(shaped(bytes, shape, 1) == shaped(bytes, shape, 7));
  rowsBy(kCddbpRoad, bytes);
  rowsBy(kHttpRoad, withLineEnds(bytes));
  check(discIdOf(bytes).size() <= 8);
  return 0;
}
