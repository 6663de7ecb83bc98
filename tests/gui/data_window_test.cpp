// The data windows by real events: typing, ENTER, lists, closing, names; and a print into a PDF.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QTreeWidget>
#include <QWheelEvent>
#include <algorithm>

#include "platform/forms/design.h"
#include "platform/qt/data_window.h"
#include "platform/qt/late_printer.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_menus.h"
#include "platform/qt/qt_printer.h"
#include "platform/qt/row_list.h"
#include "tests/gui/deck.h"
#include "windows/cddbmain.h"

namespace orvanta::test {
namespace {

struct Windows : Deck {
  explicit Windows(double factor = 1, const std::function<void(Deck&)>& prepare = {}) : Deck(factor, 15, prepare) { clock.advance(2000); }
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
  EXPECT_TRUE(rig.window->isVisible()) << "the deck stays beside it";
  const QPoint place = Windows::of(rig.editor).pos();
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
  // The field's own menu takes the release: the keys must not wait for it.
  QTest::mousePress(&artist, Qt::RightButton);
  QTest::keyClick(Windows::of(rig.editor).widgetOf(rig.editor.Command1), Qt::Key_Space);
  EXPECT_FALSE(rig.editor.loaded());
  EXPECT_TRUE(rig.window->isVisible());
  EXPECT_EQ(rig.core.state.disc.discArtist, "Artist");
  EXPECT_EQ(rig.core.state.disc.discInfo[5], "My own");
  EXPECT_EQ(rig.core.state.disc.trackTitles[3], "Third");
  EXPECT_EQ(rig.core.state.disc.linerNotes.substr(0, 10), "eins\r\nzwei");
  EXPECT_NE(place, QPoint());
  rig.press(rig.core.form.Image10[1]);
  EXPECT_EQ(Windows::of(rig.editor).pos(), place) << "beside the deck each time";
}

TEST(DataWindow, TakesWhatIsTypedAsItIs) {
  Windows rig(1, [](Deck& deck) {
    deck.files.files["/DATA/DATACD/19443766.CD"] = "\"Old title\"\r\n\"Old artist\"\r\n\"\"\r\n\"one\"\r\n\"two\"\r\n\"three\"\r\n";
  });
  rig.press(rig.core.form.Image10[1]);
  auto& artist = rig.widget<QLineEdit>(rig.editor.Text2);
  auto& genre = rig.widget<QComboBox>(rig.editor.cat);
  auto& medium = rig.widget<QComboBox>(rig.editor.mediatype);
  auto& title = rig.widget<QLineEdit>(rig.editor.Text4);
  artist.selectAll();
  QTest::keyClicks(&artist, "AC/DC (live) & 'more' {x}%");
  EXPECT_EQ(rig.editor.Text2.caption.get(), "AC/DC (live) & 'more' {x}%");
  QTest::keyClick(&artist, Qt::Key_Return);
  QTest::keyClick(genre.lineEdit(), Qt::Key_Return);
  QTest::keyClicks(&title, "New title");
  EXPECT_EQ(rig.editor.Text4.caption.get(), "New title") << "the next field's text is selected";
  // No item that starts alike puts itself in the place of what was typed.
  medium.lineEdit()->selectAll();
  QTest::keyClicks(medium.lineEdit(), "CD");
  QTest::keyClick(medium.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(rig.editor.mediatype.caption.get(), "CD");
  // Rows: each one's old title is replaced, not added to.
  auto& rows = rig.widget<QTreeWidget>(rig.editor.List1);
  rows.setCurrentItem(rows.topLevelItem(0));
  rows.topLevelItem(0)->setSelected(true);
  QTest::keyClick(&rows, Qt::Key_Return);
  auto& row = rig.widget<QLineEdit>(rig.editor.Text1);
  for (const char* text : {"eins", "zwei"}) {
    QTest::keyClicks(&row, text);
    QTest::keyClick(&row, Qt::Key_Return);
  }
  EXPECT_EQ(rig.editor.List1.row(1), "2:\tzwei\t4:58");
  // From an input method, and from a screen reader.
  QInputMethodEvent committed;
  committed.setCommitString(QString::fromUtf8("\xE6\x97\xA5"));
  QCoreApplication::sendEvent(&row, &committed);
  EXPECT_EQ(rig.editor.Text1.caption.get(), "\xE6\x97\xA5");
  QAccessible::queryAccessibleInterface(&title)->setText(QAccessible::Value, QStringLiteral("spoken"));
  EXPECT_EQ(rig.editor.Text4.caption.get(), "spoken");
  EXPECT_EQ(QTextDocumentFragment::fromHtml(row.toolTip()).toPlainText(),
            QStringLiteral("Press the \"ENTER\" key after typing the description..."));
}

/// Its window may go while a box stands over it, and in the midst of one of its own events.
TEST(DataWindow, GoesWhileABoxStandsOverIt) {
  for (const bool byKey : {true, false}) {
    Windows rig;
    QtDialogs boxes(rig.gate, rig.screen);
    Ports ports{rig.device,    rig.tray,  rig.discData, rig.clock,   boxes,   rig.files, rig.processes,  rig.screen, rig.system,
                rig.auxVolume, rig.mixer, rig.sounds,   rig.printer, rig.net, rig.menus, rig.systemTray, rig.facts,  rig.qtDesktop};
    Orvanta core(ports);
    rig.gate.enter([&] {
      core.startUp({});
      core.showFaceplate();
    });
    rig.clock.advance(2100);
    rig.gate.enter([&] { core.form.press(core.form.Image10[1]); });
    ASSERT_TRUE(core.editor.loaded());
    QPointer<DataWindow> view(&Windows::of(core.editor));
    auto* artist = dynamic_cast<QLineEdit*>(view->widgetOf(core.editor.Text2));
    QTest::keyClicks(artist, "typed");
    bool stood = false;
    QTimer::singleShot(0, [&] {
      stood = boxes.open();
      rig.gate.enter([&] { core.editor.unload(); });
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr) << "the box does not go with its window";
      EXPECT_EQ(box->icon(), QMessageBox::Warning);
      box->button(QMessageBox::No)->click();
    });
    if (byKey) {
      QTest::keyClick(artist, Qt::Key_Escape);
    } else {
      QTest::mouseClick(view->widgetOf(core.editor.Command2), Qt::LeftButton);
    }
    EXPECT_TRUE(stood);
    EXPECT_FALSE(boxes.open());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(view.isNull());
  }
}

TEST(Boxes, StandOverTheMiddleOfTheWindowHoweverLongTheirText) {
  Windows rig;
  QtDialogs boxes(rig.gate, rig.screen);
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  for (const QPoint at : {screen.center(), screen.bottomRight()}) {
    QWidget over;
    over.setGeometry(at.x() - 100, at.y() - 60, 100, 60);
    over.show();
    over.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&over));
    QRect place;
    // The second of two turns of the box's loop: it is where it stays.
    const auto look = [&] {
      place = QApplication::activeModalWidget()->frameGeometry();
      QApplication::activeModalWidget()->close();
    };
    QTimer::singleShot(0, [&] { QTimer::singleShot(0, look); });
    boxes.message(BoxStyle::Information, "Orvanta", QStringLiteral("many words ").repeated(60).toStdString());
    EXPECT_TRUE(screen.contains(place)) << place.x() << ',' << place.y() << ' ' << place.width() << 'x' << place.height();
    const int middle = std::min(over.frameGeometry().center().x(), screen.right() - place.width() / 2);
    EXPECT_NEAR(place.center().x(), middle, 2);
  }
}

/// A desktop that shows a menu itself names the chosen item by a number that goes with its action.
TEST(Menus, KeepTheirActionsWhileTheirLooksChange) {
  const auto item = [](const char* name, const std::vector<MenuItem>& items = {}) {
    return MenuItem{name, name, true, false, true, items, false};
  };
  MenuItem tree = item("", {item("play"), item(""), item("more", {item("stop")})});
  QMenu menu;
  updateMenu(menu, tree);
  const auto actions = menu.actions();
  const QAction* stop = actions[2]->menu()->actions()[0];
  tree.items[0].caption = "Play on";
  tree.items[0].checked = tree.items[2].items[0].checked = true;
  updateMenu(menu, tree);
  EXPECT_EQ(menu.actions(), actions);
  EXPECT_TRUE(actions[0]->isChecked() && actions[0]->text() == QStringLiteral("Play on"));
  EXPECT_TRUE(actions[2]->menu()->actions()[0] == stop && stop->isChecked());
  tree.items[0].name = "pause";
  updateMenu(menu, tree);
  EXPECT_EQ(menu.actions()[0]->data().toString(), QStringLiteral("pause"));
}

TEST(DataWindow, FitsTheScreenAtAnyScale) {
  for (const double factor : {1.0, 2.0, 4.0}) {
    Windows rig(factor);
    rig.press(rig.core.form.Image10[1]);
    const QRect free = QGuiApplication::primaryScreen()->availableGeometry();
    const DataWindow& window = Windows::of(rig.editor);
    EXPECT_TRUE(free.contains(window.frameGeometry())) << factor << ": " << window.width() << "x" << window.height();
    const QWidget* ok = window.widgetOf(rig.editor.Command1);
    EXPECT_TRUE(free.contains(QRect(ok->mapToGlobal(QPoint()), ok->size()))) << factor;
  }
}

TEST(DataWindow, TheTrackThatPlaysStandsOut) {
  Windows rig;
  rig.press(rig.core.form.Image10[1]);
  auto& rows = rig.widget<QTreeWidget>(rig.editor.List1);
  const auto marked = [&] {
    std::string all;
    for (int row = 0; row < rows.topLevelItemCount(); ++row) all += rows.topLevelItem(row)->font(1).bold() ? "x" : ".";
    return all;
  };
  EXPECT_EQ(marked(), "...");
  rig.press(rig.core.form.Image17[1]);
  rig.clock.advance(1500);
  EXPECT_EQ(marked(), ".x.");
  rig.gate.enter([&] { rig.editor.List1.set(1, "2:\tnew\t4:58"); });
  rig.widget<QTreeWidget>(rig.editor.List1);
  EXPECT_EQ(marked(), ".x.") << "also after a change of its title";
}

TEST(DataWindow, ARightClickBesideItsRowsClosesCdInfo) {
  Windows rig;
  rig.press(rig.core.form.Image16[4]);
  ASSERT_TRUE(rig.core.infoForm.loaded());
  QTest::mouseClick(&Windows::of(rig.core.infoForm), Qt::RightButton, {}, QPoint(2, 2));
  EXPECT_FALSE(rig.core.infoForm.loaded());
}

TEST(DataWindow, OpensUnseenAndClosesOnRequest) {
  Windows rig;
  rig.core.state.library.cddbMode = kAutomatic;
  rig.gate.enter([&] { rig.editor.show(rig.qtDesktop); });
  EXPECT_FALSE(Windows::of(rig.editor).isVisible());
  rig.core.state.library.cddbMode = kFromFaceplate;
  rig.gate.enter([&] { rig.editor.unload(); });
  rig.core.state.settings.editorFromFaceplate = kOn;
  rig.press(rig.core.form.Image10[1]);
  EXPECT_FALSE(rig.window->isVisible()) << "where the user wants it in the deck's place";
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
  EXPECT_EQ(tracks.selectionMode(), QAbstractItemView::ExtendedSelection);
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

TEST(DataWindow, WhatIsHighlightedIsWhatTheFormKnows) {
  Windows rig;
  rig.press(rig.core.form.Image10[1]);
  rig.press(rig.core.form.Image10[2]);
  rig.press(rig.playlist.Command11);
  // By way of the window system, which knows that a button is held.
  const auto mouse = [](QTreeWidget& view, auto act, Qt::MouseButton button, int row) {
    act(view.window()->windowHandle(), button, view.viewport()->mapTo(view.window(), view.visualItemRect(view.topLevelItem(row)).center()));
  };
  const auto press = [](QWindow* to, Qt::MouseButton button, QPoint at) { QTest::mousePress(to, button, {}, at); };
  const auto release = [](QWindow* to, Qt::MouseButton button, QPoint at) { QTest::mouseRelease(to, button, {}, at); };
  for (forms::ListBox* list : {&rig.editor.List1, &rig.playlist.List1, &rig.playlist.List2}) {
    auto& view = dynamic_cast<RowList&>(rig.widget<QTreeWidget>(*list));
    const auto rows = [&](bool ofForm) {
      std::string all;
      for (int row = 0; row < list->count(); ++row)
        all += (ofForm ? list->selected(row) : view.topLevelItem(row)->isSelected()) ? "x" : ".";
      return all;
    };
    mouse(view, press, Qt::LeftButton, 0);
    mouse(view, release, Qt::LeftButton, 2);
    const std::string slid = rows(true);
    EXPECT_NE(slid.find('x'), std::string::npos) << list->fullName() << ": let go on another row";
    EXPECT_EQ(rows(false), slid) << list->fullName();
    mouse(view, press, Qt::MiddleButton, 1);
    mouse(view, release, Qt::MiddleButton, 1);
    EXPECT_EQ(rows(true) + rows(false), slid + slid) << list->fullName() << ": no other button chooses";
    mouse(view, press, Qt::LeftButton, 2);
    view.onDrag();
    EXPECT_EQ(rows(true), rows(false)) << list->fullName() << ": a drag that goes nowhere";
    EXPECT_EQ(list->listIndex(), 2) << list->fullName();
    mouse(view, release, Qt::LeftButton, 2);
  }
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
  rig.editor.List2.set(2, "3:\t" + std::string(48, 'W') + " " + std::string(47, 'M') + " end");
  const QString path = QDir::temp().filePath(QStringLiteral("orvanta-print-test.pdf"));
  PdfPrinter printer(rig.gate, path);
  DiscPrint(printer, rig.editor).run(rig.core.state.disc);
  QProcess text;
  text.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
  if (!text.waitForStarted()) GTEST_SKIP() << "no pdftotext";
  ASSERT_TRUE(text.waitForFinished());
  const QString words = QString::fromUtf8(text.readAllStandardOutput());
  EXPECT_TRUE(words.contains(QStringLiteral("Orvanta Music Library [19443766.CD]")));
  EXPECT_TRUE(words.contains(QRegularExpression(QStringLiteral("ARTIST: +The Winterlight Quartet"))));
  EXPECT_TRUE(words.contains(QRegularExpression(QStringLiteral("3 +4:25"))));
  EXPECT_TRUE(words.contains(QStringLiteral("Words of the second")));
  EXPECT_TRUE(words.contains(QRegularExpression(QStringLiteral("W{48}\n +M{47}")))) << "below, not past the paper's edge";
  EXPECT_GT(words.count(QLatin1Char('\f')), 1) << "long notes run on to another page";
  QFile::remove(path);
}

TEST(DataWindow, TicksAndSecretsAreTheFormsToShow) {
  struct Ticker : forms::FormEvents {
    void mouseUp(forms::Control* control, const forms::Mouse& /*mouse*/) override {
      auto& check = dynamic_cast<forms::CheckBox&>(*control);
      if (takes) check.value = !check.value;
      ++presses;
    }
    bool takes = false;
    int presses = 0;
  } ticker;
  Windows rig;
  cddbmain form;
  form.setEvents(&ticker);
  form.show(rig.qtDesktop);
  auto& tick = rig.widget<QCheckBox>(form.Check1);
  QTest::mouseClick(&tick, Qt::LeftButton);
  EXPECT_EQ(ticker.presses, 1);
  EXPECT_FALSE(tick.isChecked()) << "the form did not take it";
  ticker.takes = true;
  QTest::keyClick(&tick, Qt::Key_Space);
  EXPECT_EQ(ticker.presses, 2);
  EXPECT_TRUE(tick.isChecked() && form.Check1.value);
  form.Option2[1].value = true;
  EXPECT_TRUE(rig.widget<QRadioButton>(form.Option2[1]).isChecked());
  EXPECT_EQ(rig.widget<QLineEdit>(form.Text8).echoMode(), QLineEdit::Password);
  EXPECT_TRUE(rig.widget<QPlainTextEdit>(form.linernote2).isReadOnly());
}

/// A window of other names: a page with a tab of its own, a field that the form has the last word in, one of each other kind.
struct Sheet : forms::Form, forms::FormEvents {
  Sheet() : Form("Sheet") { setEvents(this); }
  forms::Panel page{*this, "page"};
  forms::Button tab{*this, "tab"};
  forms::Bar progress{*this, "progress"};
  forms::Label letter{*this, "letter"};
  forms::TextBox word{*this, "word"};
  forms::Combo choice{*this, "choice"};
  forms::ListBox lines{*this, "lines"};
  std::string pressed;

  void mouseDown(forms::Control* control, const forms::Mouse& /*mouse*/) override { pressed = control->name(); }
  void edited(forms::Control& control) override {
    if (&control == &word) word.caption = "kept";
  }

 protected:
  std::span<const forms::GridRow> grid() const override {
    static constexpr forms::GridRow kRows[] = {{"Sheet", forms::kNoIndex, "", {0, 0, 3000, 4500}, "Sheet", ""},
                                               {"page", forms::kNoIndex, "Sheet", {1, 0, 1, 2}, "", ""},
                                               {"tab", forms::kNoIndex, "Sheet", {0, 0, 1, 1}, "Page", "", true, true, "", "tab"},
                                               {"progress", forms::kNoIndex, "page", {0, 0, 1, 1}, "", "Progress"},
                                               {"letter", forms::kNoIndex, "Sheet", {2, 0, 1, 1}, "&Word:", "", false, true, "", "buddy"},
                                               {"word", forms::kNoIndex, "Sheet", {2, 1, 1, 1}, "", "Word", true},
                                               {"choice", forms::kNoIndex, "Sheet", {3, 0, 1, 2}, "", "Choice", true},
                                               {"lines", forms::kNoIndex, "Sheet", {4, 0, 1, 2}, "", "Lines", true}};
    return kRows;
  }
};

TEST(DataWindow, ServesAnyForm) {
  Windows rig;
  Sheet sheet;
  sheet.show(rig.qtDesktop);
  const QPointer<DataWindow> window = &Windows::of(sheet);
  auto& bar = rig.widget<QProgressBar>(sheet.progress);
  sheet.progress.floodPercent = 40;
  EXPECT_EQ(bar.value(), 40);
  EXPECT_FALSE(bar.isTextVisible());
  sheet.progress.caption = "Reading";
  EXPECT_EQ(bar.text(), "Reading");
  EXPECT_TRUE(bar.isVisible());
  sheet.page.left = sheet.width + 1;
  EXPECT_FALSE(bar.isVisible()) << "a page that lies beside the form";
  auto& tab = rig.widget<QPushButton>(sheet.tab);
  QTest::mouseClick(&tab, Qt::LeftButton);
  EXPECT_EQ(sheet.pressed, "tab");
  EXPECT_FALSE(tab.isChecked()) << "the form left it as it was";

  auto& word = rig.widget<QLineEdit>(sheet.word);
  EXPECT_EQ(rig.widget<QLabel>(sheet.letter).buddy(), &word);
  sheet.word.caption = "as it is";
  sheet.setFocus(sheet.lines);
  sheet.setFocus(sheet.word);
  EXPECT_EQ(word.selectedText(), "as it is");
  sheet.word.selectAll();
  QTest::keyClick(&word, Qt::Key_X);
  EXPECT_EQ(word.text(), "kept");
  EXPECT_FALSE(sheet.word.allSelected);

  auto& choice = rig.widget<QComboBox>(sheet.choice);
  sheet.choice.caption = "my own";
  sheet.choice.setItems({"one", "two"});
  QWheelEvent wheel(QPointF(5, 5), choice.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(&choice, &wheel);
  EXPECT_EQ(choice.currentText(), "my own") << "through new items, and under a wheel that passes";

  for (const char* line : {"1:\tone", "2:\ttwo"}) sheet.lines.add(line);
  sheet.lines.setListIndex(1);
  auto& lines = rig.widget<QTreeWidget>(sheet.lines);
  ASSERT_EQ(lines.topLevelItemCount(), 2);
  EXPECT_TRUE(lines.topLevelItem(1)->isSelected() && lines.topLevelItem(1)->text(1) == "two");
  QTest::mousePress(lines.viewport(), Qt::LeftButton, {}, lines.visualItemRect(lines.topLevelItem(0)).center());
  EXPECT_EQ(sheet.pressed, "lines");

  sheet.Form::unload();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(window.isNull());
  sheet.Form::load(rig.qtDesktop);
  EXPECT_EQ(formAsText(sheet).find("40%"), std::string::npos) << "a window that is loaded anew begins anew";
}

}  // namespace
}  // namespace orvanta::test
