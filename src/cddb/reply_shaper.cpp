// The end of a reply is looked for once in each byte, so that a long one that drips in costs no more.
#include "cddb/reply_shaper.h"

#include "base/text.h"
#include "cddb/wire_text.h"

namespace orvanta {

namespace {

constexpr int kEntryFollows = 210;
constexpr int kMatchesFollow = 211;

/// Without its line end, be it CR LF or LF.
std::string_view bare(std::string_view line) {
  if (line.ends_with('\n')) line.remove_suffix(1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

bool anyLine(std::string_view /*line*/) { return true; }
bool isDot(std::string_view line) { return line == "."; }
bool endsMail(std::string_view line) { return line.size() < 4 || line[3] != '-'; }

}  // namespace

bool ReplyShaper::take(std::string_view bytes) {
  // Once an arrival, not once a line.
  waiting_.erase(0, start_);
  searched_ -= start_;
  start_ = 0;
  if (waiting_.size() + bytes.size() > kMost) {
    clear();
    return false;
  }
  waiting_ += bytes;
  return true;
}

void ReplyShaper::clear() {
  waiting_.clear();
  start_ = searched_ = 0;
}

std::optional<std::string> ReplyShaper::next(Shape shape) {
  if (shape == Shape::Mail) return nextUpTo(endsMail);
  const auto end = waiting_.find('\n', start_);
  if (shape == Shape::Line || end == std::string::npos) return nextUpTo(anyLine);
  const int code = replyCode(cleanStart(std::string_view(waiting_).substr(start_, end - start_)));
  return nextUpTo(code == kEntryFollows || code == kMatchesFollow ? isDot : anyLine);
}

std::optional<std::string> ReplyShaper::nextUpTo(bool (*last)(std::string_view line)) {
  while (true) {
    const auto end = waiting_.find('\n', searched_);
    if (end == std::string::npos) return std::nullopt;
    const std::string_view line = bare(std::string_view(waiting_).substr(searched_, end + 1 - searched_));
    searched_ = end + 1;
    if (last(line)) break;
  }
  std::string reply = withLineEnds(std::string_view(waiting_).substr(start_, searched_ - start_));
  start_ = searched_;
  return reply;
}

std::string withLineEnds(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    const auto end = bytes.find('\n');
    if (end == std::string_view::npos) return text.append(bytes);
    text.append(bare(bytes.substr(0, end + 1))).append("\r\n");
    bytes.remove_prefix(end + 1);
  }
  return text;
}

}  // namespace orvanta
