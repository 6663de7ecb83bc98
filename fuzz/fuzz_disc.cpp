// The files of a disc: any bytes in any of them give texts, and what was read is written and read again as the same.
#include <cstdlib>
#include <iterator>

#include "records/disc_files.h"
#include "records/draft.h"
#include "tests/support/fakes.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // A byte of 0xFF parts the files, in this order.
  orvanta::test::FakeFiles files;
  std::string bytes;
  size_t file = 0;
  const char* const names[] = {"CD", "CD1", "CD2", "CD3", "CD4", "CD5", "UTF8", "DRAFT"};
  for (size_t i = 0; i <= size && file < std::size(names); ++i) {
    if (i < size && data[i] != 0xFF) {
      bytes += static_cast<char>(data[i]);
      continue;
    }
    if (!bytes.empty()) files.files[std::string("/D/1.") + names[file]] = bytes;
    bytes.clear();
    ++file;
  }
  const orvanta::DiscFiles disc(files, "/d/1.CD");
  orvanta::DiscTexts texts;
  disc.readTexts(texts);
  const int16_t correction = disc.timeCorrection();
  if (correction < -3 || correction > 5) std::abort();
  if (const auto program = disc.program(); program && program->size() > 100) std::abort();
  if (disc.writeTexts(texts, 99, correction).any()) std::abort();
  orvanta::DiscTexts again;
  disc.readTexts(again);
  orvanta::DiscTexts twice = again;
  if (disc.writeTexts(twice, 99, correction).any()) std::abort();
  orvanta::DiscTexts third;
  disc.readTexts(third);
  if (third != again || disc.timeCorrection() != correction) std::abort();
  if (const auto draft = files.read("/d/1.draft")) {
    const orvanta::Draft parsed = orvanta::parseDraft(*draft);
    if (orvanta::parseDraft(orvanta::draftBytes(parsed)) != parsed) std::abort();
  }
  return 0;
}
