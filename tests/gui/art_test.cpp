// What the drawings owe the eye: whole letters, captions that can be read, a round key that stays round.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QBuffer>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <algorithm>
#include <functional>
#include <set>

#include "platform/forms/design.h"
#include "platform/qt/art_tools.h"
#include "platform/qt/picture_file.h"
#include "platform/qt/text_lines.h"
#include "shell/about.h"
#include "shell/upward.h"
#include "tests/gui/deck.h"

namespace orvanta::test {
namespace {

TEST(TextLines, BreakAtBlanksAndKeepWithinTheirPlace) {
  Fonts fonts;
  const forms::Font font{"Roboto Condensed", 8.25};
  constexpr double kPixels = 11;
  const char* const texts[] = {
      "",
      "A",
      "Short",
      "The Winterlight Quartet - Harbour Lights and a good deal more than fits into any two lines of it",
      "Donaudampfschifffahrtsgesellschaftskapitänsmützenabzeichen",
      " leading",
      "two  blanks",
      "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E\xE3\x81\xAE\xE9\x95\xB7\xE3\x81\x84\xE9\xA1\x8C\xE5\x90\x8D\xE3\x81\xA8 Latin",
      "\xF0\x9F\x8E\xB5\xF0\x9F\x8E\xB5\xF0\x9F\x8E\xB5\xF0\x9F\x8E\xB5\xF0\x9F\x8E\xB5\xF0\x9F\x8E\xB5\xF0\x9F\x8E\xB5"};
  for (const char* text : texts) {
    for (const double width : {40.0, 153.0, 360.0}) {
      for (const int most : {1, 2, 3}) {
        TextLines lines(fonts, font, kPixels, 0, QString::fromUtf8(text));
        const double whole = lines.width(0);
        lines.wrap(width, most);
        EXPECT_LE(lines.count(), most) << text;
        for (int i = 0; i < lines.count(); ++i) EXPECT_LE(lines.width(i), width) << text << ' ' << i;
        EXPECT_EQ(lines.count() == 1, whole <= width || most == 1) << text << ' ' << width;
      }
    }
  }
}

/// Rows of a label that have ink on them, from its top, at that size of its font.
std::vector<bool> inkRows(Deck& deck, const forms::Label& label) {
  const QImage picture = deck.window->widgetOf(label)->grab().toImage();
  const int bleed = deck.window->widgetOf(label)->bleed();
  std::vector<bool> rows;
  for (int y = 0; y < picture.height(); ++y) {
    bool ink = false;
    for (int x = 0; x < picture.width(); ++x) ink = ink || qGreen(picture.pixel(x, y)) > 200;
    rows.push_back(ink);
  }
  EXPECT_GT(bleed, 0);
  return rows;
}

TEST(Titles, ShowWholeLettersAtEverySizeOfFont) {
  for (const double factor : {1.0, 1.5, 2.0}) {
    for (const int twips : {15, 12}) {
      Deck deck(factor, twips);
      CDForm& form = deck.core.form;
      for (const double points : {7.0, 8.25, 10.0, 12.0, 16.0, 24.0, 40.0}) {
        for (forms::Label* label : {&form.Label12, &form.Label13}) {
          label->foreColor = 0xFFFFFF;
          label->font = forms::Font{"Roboto Condensed", points, false, false, false};
          label->caption = "Hgjpqy Egjpqy Agjpqy Ngjpqy Wgjpqy Zgjpqy Xgjpqy";
          const auto rows = inkRows(deck, *label);
          // Below the tails of the last line there is room: they were not cut off at the label's edge.
          const int bleed = deck.window->widgetOf(*label)->bleed();
          const int inside = static_cast<int>(rows.size()) - bleed;
          EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), [](bool ink) { return ink; })) << points;
          EXPECT_FALSE(std::any_of(rows.begin() + inside + 1, rows.end(), [](bool ink) { return ink; }))
              << label->name() << ' ' << points << " at " << factor << ' ' << twips;
        }
      }
    }
  }
}

TEST(Titles, AreUnderlinedSlantedAndBoldAsSet) {
  Deck deck;
  CDForm& form = deck.core.form;
  form.Label12.caption = "Nnnnnn";
  form.Label12.foreColor = 0xFFFFFF;
  const auto look = [&](bool bold, bool italic, bool underline) {
    form.Label12.font = forms::Font{"Roboto Condensed", 10, bold, italic, underline};
    return deck.window->widgetOf(form.Label12)->grab().toImage();
  };
  const QImage plain = look(false, false, false);
  EXPECT_NE(look(true, false, false), plain);
  const QImage underlined = look(false, false, true);
  // One row that is lit from the first letter to the last.
  const auto longest = [](const QImage& picture) {
    int best = 0;
    for (int y = 0; y < picture.height(); ++y) {
      int run = 0;
      for (int x = 0; x < picture.width(); ++x) {
        run = qGreen(picture.pixel(x, y)) > 150 ? run + 1 : 0;
        best = std::max(best, run);
      }
    }
    return best;
  };
  EXPECT_LT(longest(plain), 12);
  EXPECT_GT(longest(underlined), 30);
  form.Label12.caption = "\xE6\x97\xA5\xE6\x9C\xAC nnn";
  EXPECT_GT(longest(look(false, false, true)), 20) << "in the system's face too";
}

TEST(Captions, CanBeReadOnTheirKeys) {
  const QColor aluminium(0x9B, 0xA1, 0xA8);
  const auto packed = [](const QColor& c) { return static_cast<Colour>(c.red() | c.green() << 8 | c.blue() << 16); };
  for (const Colour colour : {0x00FF00U, 0x00FFFFU, 0xFFFFFFU, 0x004040U, 0x000000U, 0x0000FFU}) {
    EXPECT_GE(contrast(packed(readable(qColour(colour), aluminium)), packed(aluminium)), 3) << colour;
  }
  EXPECT_EQ(readable(qColour(0x004000), aluminium), qColour(0x004000)) << "dark enough as it is";
  EXPECT_EQ(readable(QColor(0xC8, 0xCD, 0xD2), QColor(0x33, 0x37, 0x3D)), QColor(0xC8, 0xCD, 0xD2)) << "light on dark";
}

TEST(Skins, ARoundKeyStaysRound) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("apower1.bmp"));
  QImage square(120, 120, QImage::Format_RGB32);
  square.fill(Qt::magenta);
  ASSERT_TRUE(square.save(path));
  Deck deck;
  const QRect key = deck.inWindow(deck.core.form.Image5);
  const QColor corner = deck.picture().pixelColor(key.topLeft());
  deck.core.form.Image5.picture = path.toStdString();
  const QImage skinned = deck.picture();
  EXPECT_EQ(skinned.pixelColor(key.center()), QColor(Qt::magenta));
  EXPECT_LT(std::abs(skinned.pixelColor(key.topLeft()).red() - corner.red()), 40) << "the metal shows at the corners";
}

/// A photo as a camera writes it: it says of itself that it is to be turned to the right.
QByteArray sidewaysPhoto(const QSize& size) {
  QImage photo(size, QImage::Format_RGB32);
  photo.fill(Qt::magenta);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  photo.save(&buffer, "JPG");
  static const QByteArray kTurned = QByteArray::fromHex(
      "ffe10022457869660000"
      "4d4d002a00000008"
      "0001"
      "0112000300000001"
      "00060000"
      "00000000");
  return bytes.insert(2, kTurned);
}

TEST(Pictures, APhotoComesUprightAndNoLargerThanItIsNeeded) {
  const QTemporaryDir folder;
  const auto put = [&](const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(QLatin1String(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return file.fileName().toStdString();
  };
  const std::string large = put("large.jpg", sidewaysPhoto({7000, 5000}));
  EXPECT_EQ(pictureExtent(large), QSize(5000, 7000));
  EXPECT_EQ(readPicture(large, {600, 220}).size(), QSize(1200, 440));
  EXPECT_GT(readPicture(large, {600, 220}).pixelColor(50, 50).red(), 250) << "more than Qt takes by itself";
  EXPECT_EQ(readPicture(put("small.jpg", sidewaysPhoto({40, 20})), {600, 220}).size(), QSize(20, 40));
  for (const std::string& none : {put("empty.png", {}), put("text.png", "words"), folder.path().toStdString(), std::string()}) {
    EXPECT_EQ(pictureExtent(none), QSize(0, 0)) << none;
    EXPECT_TRUE(readPicture(none, {600, 220}).isNull()) << none;
  }
}

/// A window of other names: a key with its mask and light, a slider with its percent, a pane of glass.
struct Stranger : forms::Form {
  Stranger() : Form("Stranger") {}
  forms::Image start{*this, "start"};
  forms::Image veil{*this, "veil"};
  forms::Image shine{*this, "shine"};
  forms::Panel fader{*this, "fader"};
  forms::Label amount{*this, "amount"};
  forms::Panel pane{*this, "pane"};

 protected:
  static constexpr forms::DesignRow row(const char* name, const forms::Place& place, const char* art, bool tabStop, int z,
                                        const char* caption = "") {
    return {name, forms::kNoIndex,    "Stranger", z,       place, place, caption, 0xFFFFFF, 0x2B2724, "Arial", 8, false,
            true, forms::Align::Left, false,      tabStop, false, art,   "",      name};
  }
  std::span<const forms::DesignRow> design() const override {
    static constexpr forms::DesignRow kRows[] = {
        row("Stranger", {0, 0, 3000, 1500}, "", false, 0),         row("start", {150, 150, 924, 495}, "transport:play", true, 1),
        row("veil", {495, 300, 180, 195}, "mask:play", false, 2),  row("shine", {495, 300, 180, 195}, "lit:play", false, 2),
        row("fader", {1500, 150, 255, 1200}, "clear", true, 1),    row("amount", {1500, 0, 345, 150}, "percent", false, 1, "42"),
        row("pane", {1950, 150, 900, 900}, "glass:rule", false, 1)};
    return kRows;
  }
  std::span<const forms::PartnerRow> partners() const override {
    static constexpr forms::PartnerRow kRows[] = {{forms::Role::Mask, "start", forms::kNoIndex, "veil"},
                                                  {forms::Role::Light, "start", forms::kNoIndex, "shine"},
                                                  {forms::Role::Percent, "fader", forms::kNoIndex, "amount"}};
    return kRows;
  }
};

TEST(View, DrawsAWindowOfAnyNames) {
  CoreGate gate;
  QtDesktop desktop(gate, Scale{});
  Stranger form;
  form.show(desktop);
  FormWindow* window = windowOf(form);
  ASSERT_NE(window, nullptr);
  const auto key = [&](bool masked, bool lit) {
    form.veil.visible = masked;
    form.shine.visible = lit;
    return window->grab().toImage().copy(10, 10, 61, 33);
  };
  const QImage plain = key(false, false);
  const QImage masked = key(true, false);
  const QImage lit = key(false, true);
  EXPECT_NE(plain, masked);
  EXPECT_NE(plain, lit);
  EXPECT_GT(lit.pixelColor(30, 16).green(), lit.pixelColor(30, 16).red() + 40) << "green light";
  EXPECT_LT(masked.pixelColor(30, 16).lightness(), plain.pixelColor(30, 16).lightness()) << "the face leaves its symbol to the mask";
  key(true, false);
  auto* start = QAccessible::queryAccessibleInterface(window->widgetOf(form.start));
  EXPECT_TRUE(start->state().disabled);
  auto* fader = QAccessible::queryAccessibleInterface(window->widgetOf(form.fader));
  EXPECT_EQ(fader->role(), QAccessible::Slider);
  EXPECT_EQ(fader->text(QAccessible::Value), QStringLiteral("42%"));
  EXPECT_LT(window->grab().toImage().pixelColor(160, 40).lightness(), 40) << "glass without a display's area of its own";
}

TEST(AboutBox, IsReachedWholeByKeysAndByAScreenReader) {
  struct Browser : ShellUpward {
    void showAbout() override {}
    void endAtOnce() override {}
    void showPage(const std::string& address) override { pages.push_back(address); }
    std::vector<std::string> pages;
  } browser;
  Deck deck;
  AboutBox form;
  About about({deck.dialogs, deck.files, deck.processes, deck.screen, deck.system, deck.systemTray, deck.facts, deck.qtDesktop}, form,
              deck.core.form, deck.core.state.settings, browser);
  about.show();
  FormWindow* window = windowOf(form);
  const auto key = [&](Qt::Key code) { QTest::keyClick(window, code); };
  QStringList heard;
  std::function<void(QAccessibleInterface*)> listen = [&](QAccessibleInterface* at) {
    heard << at->text(QAccessible::Name);
    for (int i = 0; i < at->childCount(); ++i) listen(at->child(i));
  };
  listen(QAccessible::queryAccessibleInterface(window));
  for (const char* text :
       {"Orvanta LX", "1.2.3", "A system", "A toolkit", "A wire", "/drive", "Qt 6 (linked dynamically)", "LGPL-3.0", "Close"})
    EXPECT_TRUE(heard.contains(QString::fromLatin1(text))) << text;
  std::set<std::string> visited;
  for (int i = 0; i < 20; ++i) {
    key(Qt::Key_Tab);
    const forms::Control* at = form.activeControl();
    visited.insert(at->name());
    const auto role = QAccessible::queryAccessibleInterface(window->widgetOf(*at))->role();
    EXPECT_EQ(role, at->kind() == forms::Kind::Label ? QAccessible::Link : QAccessible::PushButton) << at->fullName();
    if (at == &form.AboutLicence[1] && browser.pages.empty()) key(Qt::Key_Space);
  }
  EXPECT_EQ(visited, (std::set<std::string>{"AboutLicence", "AboutClose", "AboutExit"}));
  EXPECT_EQ(browser.pages, std::vector<std::string>{"https://www.gnu.org/licenses/lgpl-3.0.html"});
  // The window goes in the midst of its own event.
  const QPointer<FormWindow> watched(window);
  key(Qt::Key_Escape);
  EXPECT_FALSE(form.loaded());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(watched.isNull());
}

TEST(Drops, LightTheDeckUpForWhatItTakes) {
  Deck deck;
  const QImage dark = deck.picture();
  const auto hover = [&](const char* path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromUtf8(path))});
    QDragEnterEvent enter({100, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(deck.window, &enter);
    EXPECT_TRUE(enter.isAccepted()) << "what is not taken is told when it is dropped";
  };
  const auto leave = [&] {
    QDragLeaveEvent event;
    QApplication::sendEvent(deck.window, &event);
  };
  hover("/music/Disc.CUE");
  const QImage lit = deck.picture();
  for (const QPoint& rim : {QPoint(300, 0), QPoint(0, 100), QPoint(lit.width() - 1, 100), QPoint(300, lit.height() - 1)})
    EXPECT_GT(lit.pixelColor(rim).red(), 180);
  EXPECT_EQ(lit.copy(20, 20, 500, 180), dark.copy(20, 20, 500, 180));
  leave();
  EXPECT_EQ(deck.picture(), dark);
  // A program that dies in the midst of its drag says no more; the mouse is the deck's again.
  const std::function<void()> signs[] = {[&] { QTest::keyClick(deck.window, Qt::Key_Shift); },
                                         [&] {
                                           QTest::mouseClick(deck.window, Qt::RightButton, {}, {3, 3});
                                         },
                                         [&] {
                                           QEnterEvent event({1, 1}, {1, 1}, {1, 1});
                                           QApplication::sendEvent(deck.window, &event);
                                         }};
  for (const auto& sign : signs) {
    hover("/music/disc.cue");
    EXPECT_NE(deck.picture(), dark);
    sign();
    EXPECT_EQ(deck.picture(), dark);
  }
  // Qt takes the next drag for the one that never left.
  QMimeData next;
  next.setUrls({QUrl::fromLocalFile(QStringLiteral("/music/disc.cue"))});
  QDragMoveEvent move({100, 100}, Qt::CopyAction, &next, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(deck.window, &move);
  EXPECT_TRUE(move.isAccepted());
  EXPECT_NE(deck.picture(), dark);
  signs[2]();  // the mouse that is let go comes to the window before its drop does
  QDropEvent drop({100, 100}, Qt::CopyAction, &next, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(deck.window, &drop);
  EXPECT_EQ(deck.player.answer.refusal, "/music/disc.cue is no disc.") << "it was given to the drive";
  hover("/music/disc.m3u");
  EXPECT_EQ(deck.picture(), dark);
}

}  // namespace
}  // namespace orvanta::test
