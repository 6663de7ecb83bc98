// The user's own words on the disk: genres and captions of any script, and saves that fail.
#include <gtest/gtest.h>

#include "library/genres.h"
#include "platform/forms/form.h"
#include "tests/support/fakes.h"

namespace orvanta::test {
namespace {

struct GenresTest : testing::Test {
  FakeFiles files;
  FakeDialogs dialogs;
  SharedState state;
  Genres genres{files, dialogs, state};
  forms::Form form{"form"};
  forms::Combo combo{form, "combo"};

  GenresTest() { state.settings.appDir = "/data"; }
  bool lists(const std::string& genre) {
    genres.fillGenres(combo);
    const auto& all = combo.items();
    return std::count(all.begin(), all.end(), genre) == 1;
  }
  bool add(const std::string& genre) {
    dialogs.answers = {genre};
    return genres.addGenre() == genre;
  }
};

TEST_F(GenresTest, AnyScriptComesBack) {
  EXPECT_TRUE(add("\u0420\u043e\u043a"));
  EXPECT_TRUE(add("\u0414\u0436\u0430\u0437"));
  EXPECT_EQ(files.files["/DATA/ADDCATS.DAT"], "\"???\"\r\n\"????\"\r\n");
  EXPECT_TRUE(lists("\u0420\u043e\u043a") && lists("\u0414\u0436\u0430\u0437"));
  files.files["/DATA/ADDCATS.DAT"] = "\"By hand\"\r\n\"????\"\r\n";
  EXPECT_TRUE(lists("\u0414\u0436\u0430\u0437")) << "moved by another line's going";
  EXPECT_TRUE(lists("By hand"));

  dialogs.answers = {"\u041d\u0430\u0441\u0442\u0440\u043e\u0439, \"!\"", "Mood"};
  genres.askUserCaptions();
  EXPECT_EQ(files.files["/DATA/USERDEF.DAT"], "\"???????~ `!`:\"\r\n\"Mood:\"\r\n");
  SharedState later;
  later.settings.appDir = "/data";
  Genres(files, dialogs, later).readUserCaptions();
  EXPECT_EQ(later.library.userCaptions[0], "\u041d\u0430\u0441\u0442\u0440\u043e\u0439, \"!\":");
  EXPECT_EQ(later.library.userCaptions[1], "Mood:");
  dialogs.answers = {"", ""};
  genres.askUserCaptions();
  EXPECT_FALSE(files.exists("/data/userdef.dat") || files.exists("/data/userdef.dat.utf8"));
}

TEST_F(GenresTest, ASaveThatFailsIsToldOnceAndLosesNothing) {
  add("Jazz Rock");
  const auto before = files.files;
  dialogs.tape.clear();
  for (const char* genre : {"Plain", "\u0420\u043e\u043a"}) {
    files.failAt = files.writes() + 1;
    add(genre);
    files.failAt = files.writes() + 1;
    dialogs.answers = {genre, genre};
    genres.askUserCaptions();
  }
  files.unreadable = {"/DATA/ADDCATS.DAT"};
  add("Plain");
  EXPECT_EQ(files.files, before);
  const auto told = std::count_if(dialogs.tape.begin(), dialogs.tape.end(), [](const std::string& box) {
    return box.rfind("Orvanta: The file /data/", 0) == 0 &&
           box.find(".dat could not be written: No space left on device.") != std::string::npos;
  });
  EXPECT_EQ(told, 5);
}

}  // namespace
}  // namespace orvanta::test
