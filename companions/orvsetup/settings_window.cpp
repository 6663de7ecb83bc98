// One row a setting: a label, the control for its kind, and how its value comes back.
#include "settings_window.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFontComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <memory>

namespace orvanta {

namespace {

std::pair<QWidget*, QFormLayout*> newPage() {
  auto* page = new QWidget;
  auto* rows = new QFormLayout(page);
  rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
  return {page, rows};
}

QColor toColour(Colour colour) {
  return {static_cast<int>(colour & 0xFFU), static_cast<int>(colour >> 8U & 0xFFU), static_cast<int>(colour >> 16U & 0xFFU)};
}

Colour fromColour(const QColor& colour) {
  return static_cast<Colour>(colour.red()) | static_cast<Colour>(colour.green()) << 8U | static_cast<Colour>(colour.blue()) << 16U;
}

/// A button that shows a colour and lets another be chosen.
QPushButton* colourButton(Colour start, const std::shared_ptr<Colour>& chosen) {
  auto* button = new QPushButton;
  const auto show = [button, chosen] {
    QPixmap patch(48, 14);
    patch.fill(toColour(*chosen));
    button->setIcon(patch);
    button->setIconSize(patch.size());
    button->setText(toColour(*chosen).name());
  };
  *chosen = start;
  show();
  QObject::connect(button, &QPushButton::clicked, button, [button, chosen, show] {
    const QColor picked = QColorDialog::getColor(toColour(*chosen), button);
    if (picked.isValid()) *chosen = fromColour(picked);
    show();
  });
  return button;
}

}  // namespace

SettingsWindow::SettingsWindow(Settings& settings, bool withDrive) : settings_(settings) {
  setWindowTitle(tr("Orvanta LX Setup"));
  auto* tabs = new QTabWidget;
  tabs->addTab(drivePage(withDrive), tr("Drive"));
  tabs->addTab(playPage(), tr("Playing"));
  tabs->addTab(looksPage(), tr("Faceplate"));
  tabs->addTab(displayPage(), tr("Display"));
  tabs->addTab(fontsPage(), tr("Fonts"));
  tabs->addTab(coloursPage(), tr("Colours"));
  tabs->addTab(programsPage(), tr("Programs"));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs);
  layout->addWidget(buttons);
  QObject::connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  QObject::connect(buttons, &QDialogButtonBox::accepted, this, [this] {
    for (const auto& take : takers_) take();
    accept();
  });
  resize(560, 460);
}

QWidget* SettingsWindow::drivePage(bool withDrive) {
  const auto [page, rows] = newPage();
  if (withDrive) {
    path(rows, tr("CD drive"), settings_.cdProbePath, Pick::Folder, tr("A folder with a disc image, or a device such as /dev/sr0"));
    rows->addRow(QString(), new QLabel(tr("Another drive is used from the deck's next start on.")));
  }
  choice(rows, tr("Volume sliders"), settings_.soundMode,
         {{0, tr("none: a button for the mixer")}, {3, tr("the deck's own volume")}, {4, tr("the system's mixer")}});
  check(rows, tr("Sounds of keys and door"), settings_.soundsOff, true);
  return page;
}

QWidget* SettingsWindow::playPage() {
  const auto [page, rows] = newPage();
  check(rows, tr("Eject at the end of a disc"), settings_.appOptions[kEjectAtEnd]);
  check(rows, tr("Quit after the drawer has opened"), settings_.appOptions[kExitOnEject]);
  check(rows, tr("Start the mixer with the deck"), settings_.appOptions[kMixerAtStart]);
  number(rows, tr("Length of an intro"), settings_.appOptions[kIntroLength], 2, 30, 7, tr(" s"));
  check(rows, tr("Play on after the deck was switched off"), settings_.appOptions[kPlayOn]);
  check(rows, tr("Small window always goes to the tray"), settings_.minToTray);
  check(rows, tr("Open CD Data beside the deck"), settings_.editorFromFaceplate, true);
  return page;
}

QWidget* SettingsWindow::looksPage() {
  const auto [page, rows] = newPage();
  check(rows, tr("Border"), settings_.faceplateBorder);
  check(rows, tr("Picture on the faceplate"), settings_.faceplateBitmapOn);
  path(rows, tr("Picture"), settings_.faceplateBitmap, Pick::File);
  check(rows, tr("Level lamps beside the sliders"), settings_.showLights);
  choice(rows, tr("Wallpaper"), settings_.wallpaperOption,
         {{0, tr("off")}, {1, tr("with the deck")}, {2, tr("on demand")}, {3, tr("before the deck")}});
  choice(rows, tr("Wallpaper's filling"), settings_.wallpaperMode,
         {{0, tr("none")},
          {1, tr("dark blue")},
          {2, tr("the colour below")},
          {3, tr("the picture, tiled")},
          {4, tr("the picture, stretched")}});
  colour(rows, tr("Wallpaper's colour"), settings_.wallpaperColor);
  path(rows, tr("Wallpaper's picture"), settings_.wallpaperFile, Pick::File);
  return page;
}

QWidget* SettingsWindow::displayPage() {
  const auto [page, rows] = newPage();
  check(rows, tr("Display in own colours"), settings_.lcdCustom);
  colour(rows, tr("Foreground"), settings_.lcdFore);
  colour(rows, tr("Background"), settings_.lcdBack);
  check(rows, tr("Plain letters instead of segments"), settings_.noLcdFont);
  return page;
}

QWidget* SettingsWindow::fontsPage() {
  const auto [page, rows] = newPage();
  font(rows, tr("Disc line"), settings_.fonts[kDiscFont]);
  font(rows, tr("Track line"), settings_.fonts[kTrackFont]);
  font(rows, tr("Lists"), settings_.fonts[kListFont]);
  return page;
}

QWidget* SettingsWindow::coloursPage() {
  const auto [page, rows] = newPage();
  const QString names[] = {tr("Border"),
                           tr("Faceplate"),
                           tr("Door"),
                           tr("Keypad and volume panel"),
                           tr("Progress bar and sliders"),
                           tr("Reserved (5)"),
                           tr("Reserved (6)"),
                           tr("Lists"),
                           tr("Reserved (8)"),
                           tr("Legends of the display"),
                           tr("Track and time"),
                           tr("Reserved (11)"),
                           tr("Reserved (12)")};
  for (size_t i = 0; i < settings_.customColor.size(); ++i) colour(rows, names[i], settings_.customColor[i]);
  auto* scroll = new QScrollArea;
  scroll->setWidget(page);
  scroll->setWidgetResizable(true);
  return scroll;
}

QWidget* SettingsWindow::programsPage() {
  const auto [page, rows] = newPage();
  path(rows, tr("Mixer"), settings_.mixerPath, Pick::File);
  path(rows, tr("Recorder"), settings_.recordCommand, Pick::File, tr("Run by the record key; blank for the deck's own"));
  path(rows, tr("Web browser"), settings_.browserPath, Pick::File);
  text(rows, tr("Search engine"), settings_.searchEngine);
  text(rows, tr("Lyrics site"), settings_.lyricsSite);
  return page;
}

// ---- rows

void SettingsWindow::text(QFormLayout* page, const QString& label, std::string& value, const QString& tip) {
  auto* edit = new QLineEdit(QString::fromStdString(value));
  edit->setToolTip(tip);
  page->addRow(label, edit);
  takers_.emplace_back([edit, &value] { value = edit->text().toStdString(); });
}

void SettingsWindow::path(QFormLayout* page, const QString& label, std::string& value, Pick pick, const QString& tip) {
  auto* edit = new QLineEdit(QString::fromStdString(value));
  edit->setToolTip(tip);
  auto* browse = new QToolButton;
  browse->setText(QStringLiteral("…"));
  browse->setAccessibleName(tr("Choose: %1").arg(label));
  auto* row = new QHBoxLayout;
  row->addWidget(edit);
  row->addWidget(browse);
  page->addRow(label, row);
  QObject::connect(browse, &QToolButton::clicked, this, [this, edit, pick] {
    const QString chosen = pick == Pick::Folder ? QFileDialog::getExistingDirectory(this, {}, edit->text())
                                                : QFileDialog::getOpenFileName(this, {}, edit->text());
    if (!chosen.isEmpty()) edit->setText(chosen);
  });
  takers_.emplace_back([edit, &value] { value = edit->text().toStdString(); });
}

void SettingsWindow::check(QFormLayout* page, const QString& label, int16_t& value, bool inverted) {
  auto* box = new QCheckBox(label);
  const bool before = (value > 0) != inverted;
  box->setChecked(before);
  page->addRow(box);
  // A value of another kind stays while the user leaves its box alone.
  takers_.emplace_back([box, &value, before, inverted] {
    if (box->isChecked() != before) value = static_cast<int16_t>(box->isChecked() != inverted ? 1 : 0);
  });
}

void SettingsWindow::number(QFormLayout* page, const QString& label, int16_t& value, int least, int most, int usual, const QString& unit) {
  auto* box = new QSpinBox;
  box->setRange(least, most);
  box->setSuffix(unit);
  box->setValue(value >= least && value <= most ? value : usual);
  page->addRow(label, box);
  // A number that the deck does not know stays while the user leaves its box alone.
  takers_.emplace_back([box, &value, before = box->value()] {
    if (box->value() != before) value = static_cast<int16_t>(box->value());
  });
}

void SettingsWindow::choice(QFormLayout* page, const QString& label, int16_t& value, const std::vector<std::pair<int, QString>>& choices) {
  auto* box = new QComboBox;
  for (const auto& [number, words] : choices) box->addItem(words, number);
  int at = box->findData(static_cast<int>(value));
  if (at < 0) {
    box->addItem(tr("as set (%1)").arg(value), static_cast<int>(value));
    at = box->count() - 1;
  }
  box->setCurrentIndex(at);
  page->addRow(label, box);
  takers_.emplace_back([box, &value] { value = static_cast<int16_t>(box->currentData().toInt()); });
}

void SettingsWindow::colour(QFormLayout* page, const QString& label, Colour& value) {
  const auto chosen = std::make_shared<Colour>();
  page->addRow(label, colourButton(value, chosen));
  takers_.emplace_back([chosen, &value] { value = *chosen; });
}

void SettingsWindow::font(QFormLayout* page, const QString& label, FontGroup& value) {
  auto* own = new QCheckBox(tr("own font"));
  own->setChecked(!value.fontName.empty());
  auto* family = new QFontComboBox;
  if (!value.fontName.empty()) family->setCurrentFont(QFont(QString::fromStdString(value.fontName)));
  auto* size = new QSpinBox;
  size->setRange(4, 40);
  size->setSuffix(tr(" pt"));
  size->setValue(value.fontSize > 0 ? value.fontSize : 8);
  auto* bold = new QCheckBox(tr("bold"));
  bold->setChecked(value.fontBold != 0);
  auto* italic = new QCheckBox(tr("italic"));
  italic->setChecked(value.fontItalic != 0);
  auto* underline = new QCheckBox(tr("underlined"));
  underline->setChecked(value.fontUnderline != 0);
  const auto chosen = std::make_shared<Colour>();
  auto* first = new QHBoxLayout;
  for (QWidget* widget : std::initializer_list<QWidget*>{own, family, size}) first->addWidget(widget);
  auto* second = new QHBoxLayout;
  for (QWidget* widget : std::initializer_list<QWidget*>{bold, italic, underline, colourButton(value.fontColor, chosen)})
    second->addWidget(widget);
  auto* both = new QVBoxLayout;
  both->addLayout(first);
  both->addLayout(second);
  page->addRow(label, both);
  takers_.emplace_back([=, &value, hadOwn = own->isChecked()] {
    value.fontName = own->isChecked() ? family->currentFont().family().toStdString() : "";
    if (own->isChecked() || hadOwn) value.fontSize = own->isChecked() ? size->value() : 0;
    value.fontBold = static_cast<int16_t>(bold->isChecked());
    value.fontItalic = static_cast<int16_t>(italic->isChecked());
    value.fontUnderline = static_cast<int16_t>(underline->isChecked());
    value.fontColor = *chosen;
  });
}

}  // namespace orvanta
