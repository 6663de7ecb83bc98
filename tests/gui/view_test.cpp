// The view on Qt's offscreen platform: geometry at every scale, hits, names for screen readers, what
// is painted, and the form's input by real events.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QDropEvent>
#include <QFocusEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <QWindow>
#include <algorithm>
#include <map>
#include <memory>
#include <numeric>
#include <set>
#include <vector>

#include "platform/qt/form_view.h"
#include "platform/qt/keys.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_screen.h"
#include "tests/gui/deck.h"

namespace orvanta::test {
namespace {

TEST(View, EdgesMeetAtEveryScale) {
  for (const int twips : {15, 12}) {
    for (const double factor : {1.0, 1.25, 1.5, 2.0}) {
      const Deck deck(factor, twips);
      const CDForm& form = deck.core.form;
      EXPECT_EQ(deck.window->width(), static_cast<int>(std::lround(form.width * factor / twips)));
      // The function row's keys stand wall to wall, inside panels and outside.
      for (size_t key = 0; key + 1 < 4; ++key) {
        EXPECT_EQ(deck.inWindow(form.Image10[key]).right() + 1, deck.inWindow(form.Image10[key + 1]).left()) << factor;
      }
      const QRect digits = deck.inWindow(form.Label10);
      EXPECT_NEAR(digits.left(), (form.Panel3D1.left + form.Label10.left) * factor / twips, 1);
      EXPECT_FALSE(deck.picture().isNull());
    }
  }
}

TEST(View, APressReachesTheKeyUnderItsCaption) {
  Deck deck;
  const CDForm& form = deck.core.form;
  // Through the mask-free symbol over the play key.
  QTest::mousePress(deck.window, Qt::LeftButton, {}, deck.inWindow(form.icntla[Play]).center());
  EXPECT_TRUE(form.Shape2.visible);
  QTest::mouseRelease(deck.window, Qt::LeftButton, {}, QPoint(1, 1));
  EXPECT_EQ(deck.core.state.transport.playingFlag, kOff) << "whoever slides off has thought better of it";
  EXPECT_FALSE(form.Shape2.visible);
  // From its very corner, where the key gives way from under the mouse.
  QTest::mouseClick(deck.window, Qt::LeftButton, {}, deck.inWindow(form.icntla[Play]).topLeft());
  EXPECT_EQ(deck.core.state.transport.playingFlag, kOn);
  QTest::mouseClick(deck.window, Qt::LeftButton, {}, deck.inWindow(form.icntla[Pause]).center());
  EXPECT_EQ(deck.core.state.transport.pausedFlag, kOn);
  QTest::keyClick(deck.window, Qt::Key_D);
  EXPECT_EQ(deck.core.state.transport.playingFlag, kOn);
}

TEST(View, EveryKeyIsWhatItSays) {
  using namespace forms::key;  // NOLINT(google-build-using-namespace): the table reads as one
  const std::map<int, int> named = {
      {Qt::Key_Tab, kTab},       {Qt::Key_Backtab, kTab},         {Qt::Key_Return, kEnter}, {Qt::Key_Enter, kEnter},
      {Qt::Key_Left, kLeft},     {Qt::Key_Right, kRight},         {Qt::Key_Up, kUp},        {Qt::Key_Down, kDown},
      {Qt::Key_Escape, kEscape}, {Qt::Key_Backspace, kBackspace}, {Qt::Key_Help, kHelp},    {Qt::Key_F1, kF1},
      {Qt::Key_F7, kF1 + 6},     {Qt::Key_F12, kF1 + 11},         {Qt::Key_Menu, kMenu}};
  std::set<int> codes;
  for (const auto& [qtKey, code] : named) {
    EXPECT_EQ(keyPress(QKeyEvent(QEvent::KeyPress, qtKey, Qt::NoModifier)).code, code) << qtKey;
    EXPECT_GT(code, 0xFF) << "beyond all characters";
    codes.insert(code);
  }
  EXPECT_EQ(codes.size(), named.size() - 2) << "Tab and ENTER alone are on two keys";
  // Of all characters those that stand for a key of the deck; "/" or "%" is for text fields.
  for (int character = 1; character < 0x500; ++character) {
    const bool known = character == ' ' || (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z');
    EXPECT_EQ(keyPress(QKeyEvent(QEvent::KeyPress, character, Qt::NoModifier)).code, known ? character : 0) << character;
  }
  const forms::KeyPress all = keyPress(QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier | Qt::AltModifier, "a", true));
  EXPECT_TRUE(all.shift && all.alt && all.repeats && !all.control);
  EXPECT_TRUE(keyPress(QKeyEvent(QEvent::KeyPress, Qt::Key_Backtab, Qt::ControlModifier)).shift);
  EXPECT_EQ(keyPress(QKeyEvent(QEvent::KeyPress, Qt::Key_F10, Qt::ShiftModifier)).code, kMenu);
  EXPECT_EQ(keyPress(QKeyEvent(QEvent::KeyPress, Qt::Key_F10, Qt::NoModifier)).code, kF1 + 9);
}

/// A drag over the window from a source that offers these actions, let go on it: what the source is told was done.
Qt::DropAction dropped(Deck& deck, const QString& url, Qt::DropActions offered, Qt::DropAction proposed) {
  QMimeData data;
  data.setUrls({QUrl(url)});
  const QPointF place(100, 100);
  QDragEnterEvent enter(place.toPoint(), offered, &data, Qt::LeftButton, proposed == Qt::MoveAction ? Qt::ShiftModifier : Qt::NoModifier);
  QApplication::sendEvent(deck.window, &enter);
  if (!enter.isAccepted()) return Qt::IgnoreAction;
  QDropEvent drop(place, offered, &data, Qt::LeftButton, Qt::NoModifier);
  drop.setDropAction(proposed);
  QApplication::sendEvent(deck.window, &drop);
  return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
}

TEST(View, ADropIsACopy) {
  Deck deck;
  const Qt::DropActions both = Qt::CopyAction | Qt::MoveAction;
  EXPECT_EQ(dropped(deck, QStringLiteral("file:///music/disc.cue"), both, Qt::MoveAction), Qt::CopyAction);
  EXPECT_EQ(dropped(deck, QStringLiteral("file:///music/disc.cue"), both, Qt::CopyAction), Qt::CopyAction);
  EXPECT_EQ(dropped(deck, QStringLiteral("file:///music/disc.cue"), Qt::MoveAction, Qt::MoveAction), Qt::IgnoreAction);
  EXPECT_EQ(dropped(deck, QStringLiteral("https://example.org/disc.cue"), both, Qt::CopyAction), Qt::IgnoreAction);
}

/// A file whose every reading is counted, as each of them waits for its program.
class CountedFile : public QMimeData {
 public:
  mutable int readings = 0;

 protected:
  QStringList formats() const override { return {QStringLiteral("text/uri-list")}; }
  QVariant retrieveData(const QString& /*type*/, QMetaType /*wanted*/) const override {
    ++readings;
    return QByteArray(readings == 1 ? "file:///music/disc.cue\r\n" : "");
  }
};

TEST(View, ADragIsReadOnce) {
  Deck deck;
  const CountedFile file;
  QDragEnterEvent enter({100, 100}, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(deck.window, &enter);
  for (int x = 100; x < 110; ++x) {
    QDragMoveEvent move({x, 100}, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(deck.window, &move);
    EXPECT_TRUE(move.isAccepted());
  }
  QDropEvent drop({110, 100}, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(deck.window, &drop);
  EXPECT_EQ(file.readings, 1) << "its program may have ended with the drop";
  EXPECT_EQ(deck.player.answer.refusal, "/music/disc.cue is no disc.") << "it was given to the drive";
  QDragEnterEvent next({100, 100}, Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(deck.window, &next);
  EXPECT_FALSE(next.isAccepted()) << "each drag is read for itself";
}

TEST(View, TheMetalIsDraggedByAMoveAndCentredByTwoClicks) {
  Deck deck;
  CDForm& form = deck.core.form;
  const QPoint metal(300, 10);
  const auto moveTo = [&](QPoint place) {
    QMouseEvent move(QEvent::MouseMove, place, deck.window->mapToGlobal(place), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(deck.window, &move);
    QTest::qWait(5);
  };
  form.left = 3000;
  form.top = 1500;
  const QPoint before = deck.window->pos();
  QTest::mousePress(deck.window, Qt::LeftButton, {}, metal);
  moveTo(metal + QPoint(3, 3));
  EXPECT_EQ(deck.window->pos(), before) << "a hand trembles";
  moveTo(metal + QPoint(20, 8));
  moveTo(metal + QPoint(30, 12));
  EXPECT_EQ(deck.window->pos(), before + QPoint(30, 12));
  QTest::mouseRelease(deck.window, Qt::LeftButton, {}, metal);
  EXPECT_EQ(form.left, 3000 + 30 * 15);
  EXPECT_EQ(deck.files.tape.back(), "write /data/CDPOSN.DAT");
  // The move and the release wait together: the window does not stick to the mouse.
  QTest::mousePress(deck.window, Qt::LeftButton, {}, metal);
  QMouseEvent move(QEvent::MouseMove, metal + QPoint(40, 0), deck.window->mapToGlobal(metal + QPoint(40, 0)), Qt::NoButton, Qt::LeftButton,
                   Qt::NoModifier);
  QApplication::sendEvent(deck.window, &move);
  QTest::mouseRelease(deck.window, Qt::LeftButton, {}, metal);
  moveTo(metal + QPoint(80, 0));
  EXPECT_EQ(form.left, 3000 + 30 * 15);
  QTest::mouseDClick(deck.window, Qt::LeftButton, {}, metal);
  EXPECT_EQ(form.left, (deck.screen.widthTwips() - form.width) / 2);
  EXPECT_EQ(deck.files.tape.back(), "remove /data/CDPOSN.DAT.utf8");
  EXPECT_FALSE(deck.files.exists("/data/CDPOSN.DAT"));
}

TEST(View, TabShowsFocusAndSpacePresses) {
  Deck deck;
  const QImage before = deck.picture();
  QTest::keyClick(deck.window, Qt::Key_Tab);
  ASSERT_EQ(deck.core.form.activeControl(), &deck.core.form.icntla[Play]);
  EXPECT_NE(deck.picture(), before);
  QTest::keyClick(deck.window, Qt::Key_Space);
  EXPECT_EQ(deck.core.state.transport.playingFlag, kOn);
}

TEST(View, ScreenReadersFindEveryControl) {
  qputenv("ORVANTA_TEST_NAMES", "1");
  Deck deck;
  const auto interfaceOf = [&](const forms::Control& control) {
    return QAccessible::queryAccessibleInterface(deck.window->widgetOf(control));
  };
  int named = 0;
  for (const forms::Control* control : deck.core.form.controls()) {
    QAccessibleInterface* found = interfaceOf(*control);
    ASSERT_NE(found, nullptr) << control->fullName();
    EXPECT_EQ(found->text(QAccessible::Description).toStdString(), control->fullName());
    if (!control->tabStop) continue;
    EXPECT_FALSE(found->text(QAccessible::Name).isEmpty()) << control->fullName();
    ++named;
  }
  EXPECT_GT(named, 50);
  const CDForm& form = deck.core.form;
  EXPECT_EQ(interfaceOf(form.Label10)->text(QAccessible::Name), "13:29");
  EXPECT_EQ(interfaceOf(form.icntla[Play])->role(), QAccessible::PushButton);
  interfaceOf(form.icntla[Play])->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QApplication::processEvents();
  deck.clock.advance(3000);
  EXPECT_EQ(interfaceOf(form.Label10)->text(QAccessible::Name), "0:03");
  EXPECT_EQ(interfaceOf(form.CDStatusBar)->text(QAccessible::Value), "1%");
  EXPECT_EQ(interfaceOf(form.Label10)->rect().size(), deck.inWindow(form.Label10).size());
}

/// What a screen reader meets: names of what can be pressed, with their states; "?" for a picture that has none.
void listTree(QAccessibleInterface* node, Tape& out) {
  const QAccessible::State state = node->state();
  const bool picture = node->role() == QAccessible::Graphic && node->text(QAccessible::Name).isEmpty();
  if (picture) out.emplace_back("?");
  if (!state.invisible && (node->role() == QAccessible::PushButton || node->role() == QAccessible::Slider)) {
    out.push_back(node->text(QAccessible::Name).toStdString() + (state.disabled ? ", unavailable" : "") + (state.checked ? ", on" : "") +
                  (state.pressed ? ", pressed" : ""));
  }
  for (int i = 0; i < node->childCount(); ++i) {
    EXPECT_EQ(node->indexOfChild(node->child(i)), i);
    listTree(node->child(i), out);
  }
}

TEST(View, ScreenReadersHearWhatKeysAreAndDo) {
  Deck deck;
  const auto heard = [&] {
    Tape all;
    listTree(QAccessible::queryAccessibleInterface(deck.window), all);
    std::sort(all.begin(), all.end());
    return all;
  };
  const Tape stopped = heard();
  EXPECT_EQ(std::adjacent_find(stopped.begin(), stopped.end()), stopped.end()) << "no two keys of one name";
  EXPECT_EQ(std::count(stopped.begin(), stopped.end(), "?"), 0);
  const auto differs = [&](const Tape& before) {
    const Tape after = heard();
    Tape news;
    std::set_difference(after.begin(), after.end(), before.begin(), before.end(), std::back_inserter(news));
    return news;
  };
  deck.gate.enter([&] { deck.core.form.press(deck.core.form.icntla[Play]); });
  EXPECT_EQ(differs(stopped), (Tape{"Next", "Pause", "Play, on, pressed", "Previous", "Scan back", "Scan forward", "Stop"}));
  const Tape playing = heard();
  for (const Tape& told : {Tape{"Repeat, on, pressed"}, Tape{}}) {
    deck.gate.enter([&] { deck.core.form.press(deck.core.form.Image16[2]); });
    deck.clock.advance(200);
    EXPECT_EQ(differs(playing), told);
  }
  deck.gate.enter([&] { deck.core.form.press(deck.core.form.Image2[1]); });
  deck.gate.enter([&] { deck.core.form.press(deck.core.form.Image4[1]); });
  EXPECT_EQ(differs(playing),
            (Tape{"Cont mode", "Mute, on, pressed", "One mode, on, pressed", "Repeat, unavailable", "Shuffle, unavailable"}));
  // A slider goes up and down; pressing it in the middle would throw the level away.
  QAccessibleInterface* slider = QAccessible::queryAccessibleInterface(deck.window->widgetOf(deck.core.form.VolumeL));
  const int place = deck.core.form.ThumbL.top;
  deck.gate.enter([&] { deck.core.form.press(deck.core.form.Image2[0]); });
  slider->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QApplication::processEvents();
  EXPECT_EQ(deck.core.form.ThumbL.top, place);
  slider->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
  EXPECT_GT(deck.core.form.ThumbL.top, place);
}

TEST(View, ATaskButtonIsHeardByItsTitle) {
  Deck deck;
  deck.core.state.disc.trackTitles[1] = "One";
  deck.core.state.disc.trackTitles[2] = "*";
  QTest::keyClicks(deck.window, "d");
  deck.gate.enter([&] { deck.core.form.press(deck.core.form.Image7); });
  FormWindow* button = windowOf(deck.core.iconForm);
  ASSERT_TRUE(button->isMinimized());
  for (const char* title : {"Orvanta [One]", "Orvanta [*]"}) {
    EXPECT_EQ(button->windowHandle()->title(), title);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name), title);
    deck.gate.enter([&] { deck.core.actions().run(Action::TrackAfter); });
    deck.clock.advance(1000);
  }
}

TEST(View, PaintsWhatChanges) {
  Deck deck;
  const CDForm& form = deck.core.form;
  const QRect digits = deck.inWindow(form.Label10);
  const QImage before = deck.picture();
  deck.core.form.Label10.caption = "1:23";
  const QImage after = deck.picture();
  EXPECT_NE(before.copy(digits), after.copy(digits));
  const QRect keypad = deck.inWindow(form.Panel3D3);
  EXPECT_EQ(before.copy(keypad), after.copy(keypad));
  // Any script, any length: nothing to draw it with is no reason to fall over.
  for (const char* title : {"\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E \xD0\x96 \xF0\x9F\x8E\xB5", "", " ", "&amp; <b>plain</b>"}) {
    deck.core.form.Label12.caption = title;
    EXPECT_FALSE(deck.picture().isNull());
  }
  deck.core.form.Label12.caption = std::string(5000, 'W');
  EXPECT_FALSE(deck.picture().isNull());
}

TEST(View, AnHourOfPlayKeepsNoMorePicturesThanAMinute) {
  for (const double factor : {1.0, 1.5, 2.0}) {
    Deck deck(factor);
    CDForm& form = deck.core.form;
    ControlWidget* digits = deck.window->widgetOf(form.Label10);
    const auto showSecond = [&](int second) {
      form.Label10.caption = std::to_string(second / 60) + (second % 60 < 10 ? ":0" : ":") + std::to_string(second % 60);
      return digits->grab().toImage();
    };
    for (int second = 0; second < 1200; ++second) showSecond(second);
    const qsizetype glows = deck.window->stock().glows.count();
    const qsizetype surfaces = deck.window->stock().pictures.count();
    EXPECT_LT(glows, 120) << "ten digits at each place, and the display's words";
    for (int second = 1200; second < 3600; ++second) showSecond(second);
    EXPECT_LE(deck.window->stock().glows.count(), glows + 4) << factor;
    EXPECT_EQ(deck.window->stock().pictures.count(), surfaces);
    // What was kept is what a new deck would draw.
    Deck other(factor);
    other.core.form.Label10.caption = "59:59";
    EXPECT_EQ(showSecond(3599), other.window->widgetOf(other.core.form.Label10)->grab().toImage());
  }
}

TEST(View, AFirstPaintFindsItsPicturesDrawn) {
  for (const double factor : {1.0, 1.5, 2.0}) {
    Deck deck(factor);
    deck.picture();
    std::map<std::string, std::set<std::string>> byKey;
    for (const forms::Control* control : deck.core.form.controls()) {
      const ControlWidget* widget = deck.window->widgetOf(*control);
      const std::string key = widget->pictureKey();
      if (!widget->isVisible() || key.empty()) continue;
      byKey[key].insert(control->name());
      const QImage* kept = deck.window->stock().pictures.find(key);
      ASSERT_NE(kept, nullptr) << control->fullName();
      Fonts fonts;
      ArtCache pictures(ArtCache::kSurfaces);
      ArtCache glows(ArtCache::kGlows);
      EXPECT_EQ(*kept, widget->picture({fonts, pictures, glows})) << control->fullName() << " is the same from any thread";
    }
    EXPECT_GE(byKey.size(), 14U) << "metal, panels, door, glass, and a cap of each kind";
    EXPECT_EQ(std::count_if(byKey.begin(), byKey.end(), [](const auto& kept) { return kept.first.rfind("key:number up", 0) == 0; }), 1);
    // The desktop's icon comes behind.
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::windowIcon().availableSizes().size(), 7);
  }
}

TEST(View, LightStandsEvenlyAroundItsDigits) {
  for (const auto align : {forms::Align::Left, forms::Align::Center, forms::Align::Right}) {
    Deck deck(2);
    forms::Label& time = deck.core.form.Label10;
    time.align = align;
    const auto show = [&](const char* text) {
      time.caption = text;
      return deck.window->widgetOf(time)->grab().toImage();
    };
    const QImage dark = show("");
    const QImage lit = show("8:8");
    std::vector<int> columns(static_cast<size_t>(lit.width()));
    for (int x = 0; x < lit.width(); ++x) {
      for (int y = 0; y < lit.height(); ++y) columns[static_cast<size_t>(x)] += qGreen(lit.pixel(x, y)) - qGreen(dark.pixel(x, y));
    }
    const int solid = *std::max_element(columns.begin(), columns.end()) / 3;
    const auto first = std::find_if(columns.begin(), columns.end(), [&](int sum) { return sum > solid; });
    const auto last = std::find_if(columns.rbegin(), columns.rend(), [&](int sum) { return sum > solid; }).base();
    const int left = std::accumulate(first - std::min<ptrdiff_t>(8, first - columns.begin()), first, 0);
    const int right = std::accumulate(last, last + std::min<ptrdiff_t>(8, columns.end() - last), 0);
    EXPECT_GT(left, 0);
    EXPECT_NEAR(left, right, .25 * left) << static_cast<int>(align);
  }
}

/// Paints of a widget and all that lie in it.
struct Paints : QObject {
  explicit Paints(QWidget& window) {
    window.installEventFilter(this);
    for (QWidget* child : window.findChildren<QWidget*>()) child->installEventFilter(this);
  }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
  int count = 0;
};

TEST(View, FocusAndIdleTicksPaintNothing) {
  Deck deck;
  QTest::qWait(50);
  Paints paints(*deck.window);
  QFocusEvent lost(QEvent::FocusOut);
  QCoreApplication::sendEvent(deck.window, &lost);
  QFocusEvent got(QEvent::FocusIn);
  QCoreApplication::sendEvent(deck.window, &got);
  QTest::qWait(50);
  EXPECT_EQ(paints.count, 0) << "the window's focus shows nowhere";
  deck.clock.advance(10000);
  QTest::qWait(50);
  EXPECT_EQ(paints.count, 0) << "stopped, nothing changes";
  deck.gate.enter([&] { deck.core.form.press(deck.core.form.icntla[Play]); });
  deck.clock.advance(3000);
  deck.gate.enter([&] { deck.core.form.press(deck.core.form.icntla[Pause]); });
  deck.clock.advance(3000);
  QTest::qWait(50);
  EXPECT_GT(paints.count, 0);
  paints.count = 0;
  deck.clock.advance(10000);
  QTest::qWait(50);
  EXPECT_EQ(paints.count, 0) << "nor paused";
}

TEST(View, AParkedFormIsNotMapped) {
  Deck deck;
  EXPECT_TRUE(deck.window->isVisible());
  deck.core.form.parked = true;
  EXPECT_FALSE(deck.window->isVisible());
  deck.core.form.parked = false;
  EXPECT_TRUE(deck.window->isVisible());
}

TEST(QtClock, TimersDoNotReenterThemselves) {
  CoreGate gate;
  QtClock clock(gate);
  int depth = 0;
  int deepest = 0;
  int fired = 0;
  std::unique_ptr<Timer> timer = clock.makeTimer([&] {
    deepest = std::max(deepest, ++depth);
    if (++fired < 3) {
      QTest::qWait(20);
    } else {
      end();
    }
    --depth;
  });
  timer->setInterval(2);
  QTest::qWait(150);
  EXPECT_EQ(deepest, 1);
  EXPECT_EQ(fired, 3) << "nothing after the end";
}

}  // namespace
}  // namespace orvanta::test

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
