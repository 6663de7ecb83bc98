// Records: any bytes, read twice over as one visit does, give texts that can be shown and written, and read back once submitted.
#include "base/code_page.h"
#include "cddb/disc_record.h"
#include "cddb/record_writer.h"
#include "cddb/reply_shaper.h"
#include "fuzz/check.h"

using namespace orvanta;

namespace {

void checkText(const std::string& text, size_t most) { check(isUtf8(text) && text.size() <= most); }

void submit(const DiscRecord& record) {
  const Naming naming = namingOf(record.title);
  Submission disc{"1f032a03", naming.artist, naming.title, record.notes, "", "", {}, {}};
  for (size_t track = 1; track <= record.count; ++track) {
    disc.titles.push_back(record.titles[track]);
    disc.texts.push_back(record.extended[track]);
  }
  const std::string bytes = writeRecord(disc, {std::vector<int64_t>(record.count, 150), 1}).value_or("");
  check(!bytes.empty() && bytes.find("\r\n.") == std::string::npos);
  for (const char c : bytes) check(c == '\r' || c == '\n' || (c >= ' ' && c <= '~'));
  DiscRecord back;
  readRecord(bytes, kHttpRoad, back);
  check(back.count == record.count);
}

void readBy(const Road& road, std::string_view bytes) {
  DiscRecord record;
  for (const int visit : {1, 2}) {
    readRecord(bytes, road, record);
    check(record.count <= DiscRecord::kMostTracks);
    checkText(record.title, DiscRecord::kMostTitle);
    checkText(record.notes, 3 * DiscRecord::kMostText);
    for (size_t track = 1; track <= DiscRecord::kMostTracks; ++track) {
      checkText(record.titles[track], DiscRecord::kMostTitle);
      checkText(record.extended[track], 3 * static_cast<size_t>(visit) * DiscRecord::kMostText);
    }
  }
  yearIn(record.notes, 2026);
  submit(record);
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view bytes = bytesOf(data, size);
  readBy(kCddbpRoad, bytes);
  readBy(kHttpRoad, withLineEnds(bytes));
  return 0;
}
