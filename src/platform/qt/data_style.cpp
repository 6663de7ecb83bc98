// One style sheet for all data windows; sizes grow with the deck's scale.
#include "platform/qt/data_style.h"

#include <QFontDatabase>
#include <QWidget>
#include <cmath>

#include "platform/qt/fonts.h"

namespace orvanta {

namespace {

constexpr int kTextPixels = 14;

/// "12p" is twelve pixels at the scale of 1.
constexpr const char* kSheet = R"(
QWidget { background: #2B2E33; color: #D8DCE0; font-family: "Roboto Condensed"; font-size: 14p; }
QLabel { background: transparent; }
QLabel[art^="heading"] { color: #8FA6B2; font-size: 12p; }
QLabel[art^="value"] { color: #FFC850; }
QLineEdit, QPlainTextEdit, QComboBox, QTreeWidget {
  background: #101315; color: #E6E9EC; border: 1p solid #15171A; border-bottom-color: #4A5057; border-right-color: #4A5057;
  border-radius: 3p; padding: 2p 5p; selection-background-color: #1F6B3A; selection-color: #FFFFFF;
}
QLineEdit:focus, QPlainTextEdit:focus, QComboBox:focus, QTreeWidget:focus { border: 1p solid #FFC247; }
QTreeWidget { padding: 2p; outline: 0; alternate-background-color: #15191B; }
QTreeWidget::item { padding: 2p 4p; border: 0; }
QTreeWidget::item:selected { background: #1F6B3A; color: #FFFFFF; }
QComboBox::drop-down { border: 0; width: 20p; }
QComboBox::down-arrow { width: 0; height: 0; border-left: 4p solid #101315; border-right: 4p solid #101315; border-top: 5p solid #9BA1A8; margin-right: 6p; }
QComboBox QAbstractItemView { background: #1C1F23; color: #E6E9EC; border: 1p solid #4A5057; selection-background-color: #1F6B3A; outline: 0; }
QPushButton {
  background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #F4F5F6, stop:.12 #DADDE0, stop:.55 #BEC3C8, stop:.9 #9BA1A8, stop:1 #868C94);
  color: #101214; border: 1p solid #0C0D0E; border-radius: 3p; padding: 4p 10p; font-weight: bold; font-size: 13p;
}
QPushButton:hover { border-color: #FFC247; }
QPushButton:focus { border: 2p solid #FFC247; padding: 3p 9p; }
QPushButton:pressed { background: #A9AEB4; padding: 5p 9p 3p 11p; }
QPushButton:disabled { color: #808080; }
QPushButton[tab="true"] {
  background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #444950, stop:1 #24272B); color: #B9BEC4; border: 1p solid #121417;
  border-bottom: 0; border-radius: 0; border-top-left-radius: 4p; border-top-right-radius: 4p; padding: 5p 16p;
}
QPushButton[tab="true"]:checked { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #5A6067, stop:1 #33373D); color: #FFFFFF; border-top: 2p solid #50E678; }
QGroupBox { border: 1p solid #4A5057; border-radius: 4p; margin-top: 10p; padding-top: 8p; }
QGroupBox::title { subcontrol-origin: margin; left: 10p; color: #8FA6B2; }
QCheckBox, QRadioButton { background: transparent; }
QCheckBox::indicator, QRadioButton::indicator { width: 13p; height: 13p; background: #101315; border: 1p solid #4A5057; border-radius: 3p; }
QRadioButton::indicator { border-radius: 7p; }
QCheckBox::indicator:checked, QRadioButton::indicator:checked { width: 9p; height: 9p; background: #50E678; border: 3p solid #101315; }
QCheckBox:focus, QRadioButton:focus { color: #FFC247; }
QProgressBar { background: #101315; border: 1p solid #15171A; border-bottom-color: #4A5057; border-radius: 3p; text-align: center; }
QProgressBar::chunk { background: #1F6B3A; border-radius: 2p; }
QCheckBox:disabled, QRadioButton:disabled, QLabel:disabled { color: #6A7078; }
QLineEdit:disabled, QPlainTextEdit:disabled, QComboBox:disabled, QTreeWidget:disabled { background: #24272B; color: #6A7078; }
QScrollBar:vertical { background: #15181B; width: 12p; margin: 0; }
QScrollBar::handle:vertical { background: #565B62; border-radius: 4p; min-height: 24p; margin: 2p; }
QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }
QToolTip { background: #101315; color: #E6E9EC; border: 1p solid #4A5057; }
)";

QString scaled(double factor) {
  QString sheet;
  QString number;
  // Digits before a lone "p" are lengths.
  const QString source = QString::fromLatin1(kSheet);
  for (qsizetype i = 0; i < source.size(); ++i) {
    const QChar c = source[i];
    if (c.isDigit()) {
      number += c;
      continue;
    }
    const bool length = c == QLatin1Char('p') && !number.isEmpty() && (i + 1 == source.size() || !source[i + 1].isLetter());
    if (length) {
      sheet += QString::number(std::max(1L, std::lround(number.toInt() * factor))) + QStringLiteral("px");
    } else {
      sheet += number + c;
    }
    number.clear();
  }
  return sheet + number;
}

void loadFonts() {
  static const bool kLoaded = [] {
    for (const bool bold : {false, true}) QFontDatabase::addApplicationFont(Fonts::embedded("Roboto Condensed", bold));
    return true;
  }();
  Q_UNUSED(kLoaded);
}

}  // namespace

void dress(QWidget& window, double factor) {
  loadFonts();
  QFont font(QStringLiteral("Roboto Condensed"));
  font.setPixelSize(static_cast<int>(kTextPixels * factor));
  window.setFont(font);
  window.setStyleSheet(scaled(factor));
}

}  // namespace orvanta
