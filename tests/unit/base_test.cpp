// Text, code page, times and the record form of files, by tables.
#include <gtest/gtest.h>

#include <cstdio>

#include "base/code_page.h"
#include "base/text.h"
#include "base/times.h"
#include "state/field_file.h"
#include "tests/support/transcript.h"

namespace orvanta::test {
namespace {

TEST(Text, ReadsNumbersAndTimes) {
  expectAnswers("answers/numbers.txt", [](const std::string& text) {
    char number[32];
    std::snprintf(number, sizeof number, "%.10g", leadingNumber(text));
    return std::string(number);
  });
  expectAnswers("answers/seconds.txt", [](const std::string& text) { return std::to_string(secondsOf(text)); });
}

TEST(Times, GoThereAndBack) {
  for (const int frames : {0, 1, 74, 75, 4499, 4500, 360000, 449999}) EXPECT_EQ(framesOf(msfOfFrames(frames)), frames);
  EXPECT_EQ(packMsf({4, 6, 27}), 1771012U) << "as a driver packs it";
  EXPECT_EQ(unpackTmsf(packSeekTarget(7, 125)), (Tmsf{7, {2, 5, 0}}));
  EXPECT_EQ(clockPicture(3, 7), "03:07");
  EXPECT_EQ(clockPicture(25, 3), "25:3") << "no valid hour: stays as it is";
  EXPECT_EQ(longTime(3599), "59:59");
  EXPECT_EQ(longTime(3661), "1:01:01");
  EXPECT_EQ(minutesSeconds(4510), "75:10");
}

TEST(CodePage, KeepsWhatItKnowsAndMarksTheRest) {
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  const std::string text = fromWindows1252(all);
  EXPECT_TRUE(isUtf8(text));
  std::string expected = all;
  for (const int open : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) expected[static_cast<size_t>(open - 1)] = '?';
  EXPECT_EQ(toWindows1252(text), expected);
  EXPECT_EQ(toWindows1252("\xE2\x82\xAC \xC5\x81\xC3\xB3"
                          "d\xC5\xBA \xE6\x97\xA5"),
            "\x80 L\xF3"
            "dz ?");
  for (const char* broken : {"\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF8\x88\x80\x80\x80", "\x80", "\xF4\x90\x80\x80"}) {
    EXPECT_FALSE(isUtf8(broken));
    EXPECT_NE(toWindows1252(broken).find('?'), std::string::npos);
  }
}

TEST(FieldFile, ReadsWhatHandsAndProgramsWrite) {
  expectAnswers("answers/fields.txt", [](const std::string& bytes) {
    std::string told;
    FieldReader reader(bytes);
    while (const auto value = reader.next()) told += "<" + *value + ">";
    return told;
  });
  FieldWriter writer;
  writer.text(
      "Stra\xC3\x9F"
      "e");
  writer.number(-3);
  writer.empty();
  EXPECT_EQ(writer.bytes(),
            "\"Stra\xDF"
            "e\"\r\n-3\r\n\r\n");
}

}  // namespace
}  // namespace orvanta::test
