// The data windows by real events: typing, ENTER, lists, closing, names; and a print into a PDF.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "platform/qt/data_window.h"
#include "platform/qt/late_printer.h"
#include "platform/qt/qt_printer.h"
#include "platform/qt/row_list.h"
#include "tests/gui/deck.h"

namespace orvanta::test {
namespace {

struct Windows : Deck {
  Windows() { clock.advance(2000); }
  ~Windows() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
  void press(forms::Control& control) {
    gate.enter([&] { control.form().press(control); });
  }
  static DataWindow& of(const forms::Form& form) { return *dynamic_cast<DataView*>(form.view())->window(); }
  template <class T>
  T& widget(const forms::Control& control) {
    of(control.form()).flush();
    return *dynamic_cast<T*>(of(control.form()).widgetOf(control));
  }
  acdtabs& editor = core.editor;
  cdplist& playlist = core.playlistForm;
};

TEST(DataWindow, TypingReachesTheDisc) {
  Windows rig;
  rig.press(rig.core.form.Image10[1]);
  ASSERT_TRUE(rig.editor.loaded());
  EXPECT_FALSE(rig.window->isVisible()) << "the editor takes the faceplate's place";
  auto& artist = rig.widget<QLineEdit>(rig.editor.Text2);
  QTest::keyClicks(&artist, "Artist");
  QTest::keyClick(&artist, Qt::Key_Return);
  EXPECT_EQ(rig.editor.activeControl(), &rig.editor.cat);
  auto& genre = rig.widget<QComboBox>(rig.editor.cat);
  QTest::keyClicks(genre.lineEdit(), "My own");
  QTest::keyClick(genre.lineEdit(), Qt::Key_Tab);
  EXPECT_EQ(rig.editor.activeControl(), &rig.editor.addGenreKey);
  QTest::keyClick(Windows::of(rig.editor).widgetOf(rig.editor.addGenreKey), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(rig.editor.activeControl(), &rig.editor.cat) << "there and back by Tab";
  rig.widget<QPlainTextEdit>(rig.editor.Text3)
      .setPlainText(QString::fromUtf8("eins\nzwei \xE6\x97\xA5\xE6\x9C\xAC ") + QString(300, QLatin1Char('l')));
  auto& rows = rig.widget<QTreeWidget>(rig.editor.List1);
  EXPECT_EQ(rows.topLevelItemCount(), 3);
  rows.setCurrentItem(rows.topLevelItem(1));
  rows.topLevelItem(1)->setSelected(true);
  QTest::keyClick(&rows, Qt::Key_Return);
  auto& title = rig.widget<QLineEdit>(rig.editor.Text1);
  QTest::keyClicks(&title, "Second");
  QTest::keyClick(&title, Qt::Key_Return);
  QTest::keyClicks(&title, "Third");
  QTest::keyClick(&title, Qt::Key_Return);
  EXPECT_EQ(rig.widget<QTreeWidget>(rig.editor.List1).topLevelItem(2)->text(1), QStringLiteral("Third"));
  EXPECT_EQ(rig.editor.activeControl(), &rig.editor.Command1);
  QTest::keyClick(Windows::of(rig.editor).widgetOf(rig.editor.Command1), Qt::Key_Space);
  EXPECT_FALSE(rig.editor.loaded());
  EXPECT_TRUE(rig.window->isVisible());
  EXPECT_EQ(rig.core.state.disc.discArtist, "Artist");
  EXPECT_EQ(rig.core.state.disc.discInfo[5], "My own");
  EXPECT_EQ(rig.core.state.disc.trackTitles[3], "Third");
  EXPECT_EQ(rig.core.state.disc.linerNotes.substr(0, 10), "eins\r\nzwei");
}

TEST(DataWindow, OpensUnseenAndClosesOnRequest) {
  Windows rig;
  rig.core.state.library.cddbMode = 3;
  rig.gate.enter([&] { rig.editor.show(rig.qtDesktop); });
  EXPECT_FALSE(Windows::of(rig.editor).isVisible());
  rig.core.state.library.cddbMode = 0;
  rig.gate.enter([&] { rig.editor.unload(); });
  rig.press(rig.core.form.Image10[1]);
  Windows::of(rig.editor).close();
  EXPECT_FALSE(rig.editor.loaded()) << "closing is Cancel";
  EXPECT_TRUE(rig.window->isVisible());
}

TEST(DataWindow, ScreenReadersFindEveryField) {
  Windows rig;
  rig.press(rig.core.form.Image10[1]);
  rig.press(rig.core.form.Image10[2]);
  for (forms::Form* form : {static_cast<forms::Form*>(&rig.editor), static_cast<forms::Form*>(&rig.playlist)}) {
    if (!form->loaded()) continue;
    for (const forms::Control* control : form->controls()) {
      if (!control->tabStop) continue;
      QAccessibleInterface* found = QAccessible::queryAccessibleInterface(Windows::of(*form).widgetOf(*control));
      ASSERT_NE(found, nullptr) << control->fullName();
      EXPECT_FALSE(found->text(QAccessible::Name).isEmpty()) << control->fullName();
    }
  }
}

TEST(DataWindow, ListsSelectInTheirOwnWays) {
  Windows rig;
  rig.press(rig.core.form.Image10[2]);
  ASSERT_TRUE(rig.playlist.loaded());
  auto& tracks = rig.widget<QTreeWidget>(rig.playlist.List1);
  tracks.topLevelItem(0)->setSelected(true);
  tracks.topLevelItem(2)->setSelected(true);
  QTest::mouseClick(Windows::of(rig.playlist).widgetOf(rig.playlist.Command5), Qt::LeftButton);
  EXPECT_EQ(rig.playlist.List3.count(), 2);
  EXPECT_EQ(rig.playlist.List3.row(1), "3");
  // A drag keeps the mouse's release to itself; keys work again after it.
  auto& chosen = dynamic_cast<RowList&>(rig.widget<QTreeWidget>(rig.playlist.List2));
  QTest::mousePress(chosen.viewport(), Qt::LeftButton, {}, chosen.visualItemRect(chosen.topLevelItem(0)).center());
  chosen.onDrag();
  chosen.onMove(0, 1);
  EXPECT_EQ(rig.playlist.List3.row(0), "3");
  QTest::mouseClick(Windows::of(rig.playlist).widgetOf(rig.playlist.Command9), Qt::LeftButton);
  EXPECT_EQ(rig.playlist.List3.count(), 0);
  QTest::keyClick(&chosen, Qt::Key_Escape);
  EXPECT_FALSE(rig.playlist.loaded());
}

struct PdfPrinter : QtPrinter {
  PdfPrinter(CoreGate& gate, QString path) : QtPrinter(gate), path_(std::move(path)) {}
  bool ask() override { return begin(path_); }
  QString path_;
};

TEST(DataWindow, PrintingIsLoadedWhenAskedFor) {
  CoreGate gate;
  LatePrinter printer(gate);
  QString title;
  QTimer::singleShot(0, [&] {
    if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
      title = box->metaObject()->className();
      box->reject();
    }
  });
  EXPECT_FALSE(printer.ask());
  EXPECT_EQ(title, "QPrintDialog") << "and not a box that the library is missing";
}

TEST(DataWindow, PrintsIntoAPdf) {
  Windows rig;
  rig.press(rig.core.form.Image10[1]);
  rig.gate.enter([&] {
    rig.editor.userText(rig.editor.Text2, "The Winterlight Quartet");
    rig.editor.userText(rig.editor.Text3, std::string(9000, 'n'));
  });
  rig.editor.List2.set(1, "2:\tWords of the second");
  const QString path = QDir::temp().filePath(QStringLiteral("orvanta-print-test.pdf"));
  PdfPrinter printer(rig.gate, path);
  Ports ports{rig.device, rig.tray,      rig.clock, rig.dialogs, rig.files, rig.processes, rig.screen,
              rig.system, rig.auxVolume, rig.mixer, rig.sounds,  printer,   rig.qtDesktop};
  RecordPrint(ports, rig.editor, rig.core.state).run();
  QProcess text;
  text.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
  if (!text.waitForStarted()) GTEST_SKIP() << "no pdftotext";
  ASSERT_TRUE(text.waitForFinished());
  const QString words = QString::fromUtf8(text.readAllStandardOutput());
  EXPECT_TRUE(words.contains(QStringLiteral("Orvanta Music Library [19443766.CD]")));
  EXPECT_TRUE(words.contains(QRegularExpression(QStringLiteral("ARTIST: +The Winterlight Quartet"))));
  EXPECT_TRUE(words.contains(QRegularExpression(QStringLiteral("3 +4:25"))));
  EXPECT_TRUE(words.contains(QStringLiteral("Words of the second")));
  EXPECT_GT(words.count(QLatin1Char('\f')), 1) << "long notes run on to another page";
  QFile::remove(path);
}

}  // namespace
}  // namespace orvanta::test
