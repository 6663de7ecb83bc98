// Text, code page, times and the record form of files, by tables.
#include <gtest/gtest.h>

#include "base/code_page.h"
#include "base/text.h"
#include "base/times.h"
#include "state/field_file.h"

namespace orvanta {
namespace {

TEST(Text, ReadsLeadingNumbers) {
  const std::pair<const char*, double> cases[] = {{"4:18", 4},   {"  12abc", 12}, {"-3", -3}, {"+7", 7},
                                                  {"2.5x", 2.5}, {"", 0},         {"inf", 0}, {"nan", 0},
                                                  {"x1", 0},     {"0:45", 0},     {"-", 0},   {"99999999999999999999", 1e20}};
  for (const auto& [text, value] : cases) EXPECT_DOUBLE_EQ(leadingNumber(text), value) << text;
}

TEST(Times, GoThereAndBack) {
  for (const int frames : {0, 1, 74, 75, 4499, 4500, 360000, 449999}) EXPECT_EQ(framesOf(msfOfFrames(frames)), frames);
  EXPECT_EQ(packMsf({4, 6, 27}), 1771012U) << "as a driver packs it";
  EXPECT_EQ(unpackTmsf(packSeekTarget(7, 125)), (Tmsf{7, {2, 5, 0}}));
  const std::pair<const char*, int> texts[] = {{"2:05", 125}, {"02:05", 125}, {"25:3", 1503}, {"", 0}, {":", 0}, {"61:00", 3660}};
  for (const auto& [text, seconds] : texts) EXPECT_EQ(secondsOf(text), seconds) << text;
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

std::vector<std::string> valuesOf(std::string_view bytes) {
  std::vector<std::string> values;
  FieldReader reader(bytes);
  while (const auto value = reader.next()) values.push_back(*value);
  return values;
}

TEST(FieldFile, ReadsWhatHandsAndProgramsWrite) {
  using Values = std::vector<std::string>;
  EXPECT_EQ(valuesOf("\"a, b\"\r\n12\r\n\r\n\"\"\r\n"), (Values{"a, b", "12", "", ""}));
  EXPECT_EQ(valuesOf("1,2 , \"x\" ,4\n5"), (Values{"1", "2", "x", "4", "5"}));
  EXPECT_EQ(valuesOf("\"two\r\nlines\"\r\n7"), (Values{"two\r\nlines", "7"}));
  EXPECT_EQ(valuesOf("\"never closed\r\n7"), (Values{"never closed\r\n7"}));
  EXPECT_EQ(valuesOf("caf\xE9\r\n"), (Values{"caf\xC3\xA9"}));
  EXPECT_EQ(valuesOf("\"a\" by hand\r\n\"b\"x,\"c\" \"d\"\r\n5"), (Values{"a", "b", "c", "5"}));
  EXPECT_EQ(valuesOf("\xEF\xBB\xBF\"caf\xC3\xA9\"\r\n2"), (Values{"caf\xC3\xA9", "2"})) << "saved by an editor that marks its files";
  EXPECT_EQ(valuesOf("\xEF\xBB\xBF\"caf\xE9\"\r\n2"), (Values{"caf\xC3\xA9", "2"}));
  EXPECT_EQ(valuesOf(""), Values{});
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
}  // namespace orvanta
