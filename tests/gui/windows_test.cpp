// The deck's windows beside one another: what the mouse reaches in each, and which has the keyboard when one goes.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>

#include "platform/qt/data_window.h"
#include "platform/qt/qt_dialogs.h"
#include "tests/gui/deck.h"

namespace orvanta::test {
namespace {

struct Desk : Deck {
  ~Desk() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
  void run(Action action) {
    gate.enter([&] { core.actions().run(action); });
    clock.advance(2000);
    QApplication::processEvents();
  }
  void leave(forms::Form& left) {
    gate.enter([&] { left.closeAsked(); });
    QApplication::processEvents();
  }
  void goTo(QWidget& next) {
    next.activateWindow();
    QApplication::processEvents();
  }
  /// Without its task button, which this platform would click on.
  void stripOut() {
    run(Action::Play);
    gate.enter([&] {
      core.form.hide();
      core.stripForm.show(qtDesktop);
    });
    QApplication::processEvents();
  }
};

QPoint middleOf(const FormWindow& window, const forms::Control& control) {
  const ControlWidget* widget = window.widgetOf(control);
  return widget->mapTo(&window, widget->controlRect().center());
}

/// A part of it, or what covers it there.
bool standsFor(const forms::Control& taken, const forms::Control& key) {
  for (const forms::Control* each = taken.parent; each != nullptr; each = each->parent) {
    if (each == &key) return true;
  }
  return taken.parent == key.parent && taken.z >= key.z;
}

/// Presses each key of a window where it is seen; how many take it themselves.
int reachedOf(forms::Form& form, forms::FormEvents& deaf) {
  form.setEvents(&deaf);
  FormWindow& window = *windowOf(form);
  int reached = 0;
  for (const forms::Control* key : form.controls()) {
    if (!key->tabStop || !key->shown() || !key->enabled || !key->insideForm()) continue;
    QTest::mousePress(&window, Qt::LeftButton, {}, middleOf(window, *key));
    const forms::Control* taken = form.pressed();
    EXPECT_TRUE(taken == key || (taken != nullptr && standsFor(*taken, *key)))
        << form.name() << ' ' << key->fullName() << ": " << (taken != nullptr ? taken->fullName() : "nothing");
    QTest::mouseRelease(&window, Qt::LeftButton, {}, middleOf(window, *key));
    reached += taken == key ? 1 : 0;
  }
  return reached;
}

TEST(DeskWindows, TheMouseReachesEveryKeyOfThem) {
  forms::FormEvents deaf;
  Desk desk;
  desk.stripOut();
  desk.gate.enter([&] { desk.core.stripForm.press(desk.core.stripForm.Image6); });
  desk.run(Action::About);
  EXPECT_EQ(reachedOf(desk.core.stripForm, deaf), 15);
  EXPECT_EQ(reachedOf(desk.core.aboutForm, deaf), 10);
  desk.gate.enter([&] { desk.core.form.show(desk.qtDesktop); });
  EXPECT_EQ(reachedOf(desk.core.form, deaf), 51);
}

TEST(DeskWindows, AboutIsDraggedByAMoveAndClosedByAClick) {
  Desk desk;
  desk.run(Action::About);
  AboutBox& about = desk.core.aboutForm;
  FormWindow& window = *windowOf(about);
  const auto moveTo = [&](QPoint place) {
    QMouseEvent move(QEvent::MouseMove, place, window.mapToGlobal(place), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &move);
    QTest::qWait(5);
  };
  const QPoint before = window.pos();
  for (const forms::Control* ground : {static_cast<forms::Control*>(&about.AboutDisc), static_cast<forms::Control*>(&about.AboutText[0])}) {
    const QPoint at = middleOf(window, *ground);
    QTest::mousePress(&window, Qt::LeftButton, {}, at);
    moveTo(at + QPoint(2, 2));
    EXPECT_EQ(window.pos(), before) << "a click is no drag";
    QTest::mouseRelease(&window, Qt::LeftButton, {}, at);
    moveTo(at + QPoint(90, 90));
    EXPECT_EQ(window.pos(), before) << "let go";
  }
  const QPoint disc = middleOf(window, about.AboutDisc);
  QTest::mousePress(&window, Qt::LeftButton, {}, disc);
  moveTo(disc + QPoint(20, 0));
  moveTo(disc + QPoint(30, 10));
  QTest::mouseRelease(&window, Qt::LeftButton, {}, disc);
  EXPECT_EQ(window.pos(), before + QPoint(30, 10));
  QTest::mouseClick(&window, Qt::LeftButton, {}, middleOf(window, about.AboutLicence[7]));
  EXPECT_NE(desk.processes.tape.back().find("apache.org/licenses/LICENSE-2.0"), std::string::npos) << desk.processes.tape.back();
  QTest::mouseClick(&window, Qt::LeftButton, {}, middleOf(window, about.AboutClose));
  EXPECT_FALSE(about.loaded());
}

TEST(DeskWindows, TheStripHasTheKeyboardAgainWhenWhatStoodOverItGoes) {
  QWidget other;
  other.show();
  Desk desk;
  desk.stripOut();
  FormWindow* strip = windowOf(desk.core.stripForm);
  desk.goTo(*strip);
  const struct {
    Action opens;
    forms::Form& form;
  } rows[] = {{Action::Playlist, desk.core.playlistForm},
              {Action::TrackList, desk.core.infoForm},
              {Action::CdData, desk.core.editor},
              {Action::About, desk.core.aboutForm}};
  for (const auto& row : rows) {
    desk.run(row.opens);
    ASSERT_TRUE(row.form.loaded()) << row.form.name();
    EXPECT_FALSE(strip->isActiveWindow()) << row.form.name();
    desk.leave(row.form);
    ASSERT_FALSE(row.form.loaded()) << row.form.name();
    EXPECT_TRUE(strip->isActiveWindow()) << row.form.name();
  }
  QtDialogs boxes(desk.gate, desk.screen);
  for (int box = 0; box < 2; ++box) {
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    boxes.message(BoxStyle::Information, "Orvanta", "words");
    QApplication::processEvents();
    EXPECT_TRUE(strip->isActiveWindow());
  }
  // Of several the one that had it last.
  desk.run(Action::Playlist);
  desk.run(Action::TrackList);
  desk.leave(desk.core.infoForm);
  ASSERT_NE(QApplication::activeWindow(), nullptr);
  EXPECT_EQ(QApplication::activeWindow()->windowTitle().toStdString(), desk.core.playlistForm.caption.get());
  desk.leave(desk.core.playlistForm);
  EXPECT_TRUE(strip->isActiveWindow());
  // A window that goes without having it gives it to nobody.
  for (QWidget& user : {std::ref<QWidget>(*strip), std::ref<QWidget>(other)}) {
    desk.run(Action::TrackList);
    desk.goTo(user);
    desk.leave(desk.core.infoForm);
    EXPECT_TRUE(user.isActiveWindow());
  }
}

}  // namespace
}  // namespace orvanta::test
