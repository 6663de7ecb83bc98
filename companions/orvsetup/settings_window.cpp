// One row a setting: a label, the control for its kind, and how its value comes back.
#include "settings_window.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

#include "state/settings_files.h"

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

void showColour(QPushButton& button, Colour colour) {
  QPixmap patch(48, 14);
  patch.fill(toColour(colour));
  button.setIcon(patch);
  button.setIconSize(patch.size());
  button.setText(toColour(colour).name());
}

/// A button that shows a colour and lets another be chosen.
QPushButton* colourButton(Colour start, const std::shared_ptr<Colour>& chosen, const std::function<void()>& then) {
  auto* button = new QPushButton;
  *chosen = start;
  showColour(*button, start);
  QObject::connect(button, &QPushButton::clicked, button, [button, chosen, then] {
    const QColor picked = QColorDialog::getColor(toColour(*chosen), button);
    if (!picked.isValid()) return;
    *chosen = fromColour(picked);
    showColour(*button, *chosen);
    if (then) then();
  });
  return button;
}

std::function<void()> ticking(QCheckBox* box) {
  return [box] { box->setChecked(true); };
}

void select(QComboBox& box, int value) { box.setCurrentIndex(box.findData(value)); }

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
    tellOfPictures();
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
  auto* picture = check(rows, tr("Picture on the faceplate"), settings_.faceplateBitmapOn);
  path(rows, tr("Picture"), settings_.faceplateBitmap, Pick::File, {}, ticking(picture));
  check(rows, tr("Level lamps beside the sliders"), settings_.showLights);
  auto* when = choice(rows, tr("Wallpaper"), settings_.wallpaperOption,
                      {{0, tr("off")}, {1, tr("with the deck")}, {2, tr("on demand")}, {3, tr("before the deck")}});
  auto* filling = choice(rows, tr("Wallpaper's filling"), settings_.wallpaperMode,
                         {{0, tr("none")},
                          {1, tr("dark blue")},
                          {2, tr("the colour below")},
                          {3, tr("the picture, tiled")},
                          {4, tr("the picture, stretched")}});
  const auto fill = [when, filling](int with) {
    if (when->currentData().toInt() == 0) select(*when, 1);
    select(*filling, with);
  };
  colour(rows, tr("Wallpaper's colour"), settings_.wallpaperColor, [fill] { fill(2); });
  path(rows, tr("Wallpaper's picture"), settings_.wallpaperFile, Pick::File, {},
       [fill, filling] { fill(std::max(filling->currentData().toInt(), 3)); });
  return page;
}

QWidget* SettingsWindow::displayPage() {
  const auto [page, rows] = newPage();
  auto* own = check(rows, tr("Display in own colours"), settings_.lcdCustom);
  colour(rows, tr("Foreground"), settings_.lcdFore, ticking(own));
  colour(rows, tr("Background"), settings_.lcdBack, ticking(own));
  check(rows, tr("Plain letters instead of segments"), settings_.noLcdFont);
  return page;
}

QWidget* SettingsWindow::fontsPage() {
  const auto [page, rows] = newPage();
  auto* disc = font(rows, tr("Disc line"), settings_.fonts[kDiscFont]);
  font(rows, tr("Track line"), settings_.fonts[kTrackFont], disc);
  font(rows, tr("Lists"), settings_.fonts[kListFont]);
  return page;
}

QWidget* SettingsWindow::coloursPage() {
  const auto [page, rows] = newPage();
  // The others are kept for the family's other programs.
  const std::pair<size_t, QString> named[] = {{kCustomBorderLines, tr("Border")},
                                              {kCustomMetal, tr("Faceplate")},
                                              {kCustomDoor, tr("Door")},
                                              {kCustomKeypad, tr("Keypad and volume panel")},
                                              {kCustomBars, tr("Progress bar and sliders")},
                                              {kCustomLists, tr("Lists")},
                                              {kCustomLegends, tr("Legends of the display")},
                                              {kCustomDigits, tr("Track and time")}};
  const Settings designed = defaultSettings({}, {});
  // The metal is one set: the deck's own while all of it is 0.
  auto& colours = settings_.customColor;
  const bool ownMetal = std::any_of(colours.begin(), colours.begin() + kCustomBars + 1, [](Colour colour) { return colour != 0; });
  for (const auto& [place, name] : named)
    ownColour(rows, name, colours[place], designed.customColor[place], !ownMetal || designed.customColor[place] == 0);
  takers_.emplace_back([&colours, designed, ownMetal] {
    if (ownMetal || std::all_of(colours.begin(), colours.begin() + kCustomBars + 1, [](Colour colour) { return colour == 0; })) return;
    for (size_t i = 0; i <= kCustomBars; ++i) {
      if (colours[i] == 0) colours[i] = designed.customColor[i];
    }
  });
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

/// They are taken all the same: a drive may only be away just now.
void SettingsWindow::tellOfPictures() {
  constexpr int kFirstWithPicture = 3;
  QString bad;
  const auto look = [&bad](bool used, const std::string& file) {
    const QString name = QString::fromStdString(file);
    if (used && !file.empty() && !(QFileInfo(name).isFile() && QImageReader(name).canRead())) bad += name + QLatin1Char('\n');
  };
  look(settings_.faceplateBitmapOn > 0, settings_.faceplateBitmap);
  look(settings_.wallpaperOption != 0 && settings_.wallpaperMode >= kFirstWithPicture, settings_.wallpaperFile);
  if (!bad.isEmpty())
    QMessageBox::warning(this, windowTitle(),
                         tr("This is no picture that can be read; the deck goes without it:\n\n%1").arg(bad.trimmed()));
}

// ---- rows

void SettingsWindow::text(QFormLayout* page, const QString& label, std::string& value, const QString& tip) {
  auto* edit = new QLineEdit(QString::fromStdString(value));
  edit->setToolTip(tip);
  page->addRow(label, edit);
  takers_.emplace_back([edit, &value] { value = edit->text().toStdString(); });
}

void SettingsWindow::path(QFormLayout* page, const QString& label, std::string& value, Pick pick, const QString& tip, const Chosen& then) {
  auto* edit = new QLineEdit(QString::fromStdString(value));
  edit->setToolTip(tip);
  auto* browse = new QToolButton;
  browse->setText(QStringLiteral("…"));
  browse->setAccessibleName(tr("Choose: %1").arg(label));
  auto* row = new QHBoxLayout;
  row->addWidget(edit);
  row->addWidget(browse);
  page->addRow(label, row);
  QObject::connect(edit, &QLineEdit::textEdited, this, [then](const QString& text) {
    if (then && !text.isEmpty()) then();
  });
  QObject::connect(browse, &QToolButton::clicked, this, [this, edit, pick, then] {
    const QString chosen = pick == Pick::Folder ? QFileDialog::getExistingDirectory(this, {}, edit->text())
                                                : QFileDialog::getOpenFileName(this, {}, edit->text());
    if (chosen.isEmpty()) return;
    edit->setText(chosen);
    if (then) then();
  });
  takers_.emplace_back([edit, &value] { value = edit->text().toStdString(); });
}

QCheckBox* SettingsWindow::check(QFormLayout* page, const QString& label, int16_t& value, bool inverted) {
  auto* box = new QCheckBox(label);
  const bool before = (value > 0) != inverted;
  box->setChecked(before);
  page->addRow(box);
  // A value of another kind stays while the user leaves its box alone.
  takers_.emplace_back([box, &value, before, inverted] {
    if (box->isChecked() != before) value = static_cast<int16_t>(box->isChecked() != inverted ? 1 : 0);
  });
  return box;
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

QComboBox* SettingsWindow::choice(QFormLayout* page, const QString& label, int16_t& value,
                                  const std::vector<std::pair<int, QString>>& choices) {
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
  return box;
}

void SettingsWindow::colour(QFormLayout* page, const QString& label, Colour& value, const Chosen& then) {
  const auto chosen = std::make_shared<Colour>();
  page->addRow(label, colourButton(value, chosen, then));
  takers_.emplace_back([chosen, &value] { value = *chosen; });
}

void SettingsWindow::ownColour(QFormLayout* page, const QString& label, Colour& value, Colour designed, bool zeroIsDesigned) {
  constexpr Colour kDarkest = 0x010101;  // black that is not 0
  const bool unset = value == 0 && zeroIsDesigned;
  const auto chosen = std::make_shared<Colour>();
  auto* back = new QPushButton(tr("Reset"));
  back->setAccessibleName(tr("As designed: %1").arg(label));
  auto* button = colourButton(unset ? designed : value, chosen, [back] { back->setEnabled(true); });
  const auto show = [=] {
    if (*chosen == designed) {
      button->setIcon({});
      button->setText(tr("as designed"));
    }
    back->setEnabled(*chosen != designed);
  };
  show();
  QObject::connect(back, &QPushButton::clicked, button, [=] {
    *chosen = designed;
    show();
  });
  auto* row = new QHBoxLayout;
  row->addWidget(button, 1);
  row->addWidget(back);
  page->addRow(label, row);
  takers_.emplace_back([=, &value] {
    const bool picked = back->isEnabled();
    if (picked && *chosen != value) value = *chosen == 0 ? kDarkest : *chosen;
    if (!picked && !unset) value = designed;
  });
}

QCheckBox* SettingsWindow::font(QFormLayout* page, const QString& label, FontGroup& value, QCheckBox* needs) {
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
  for (QWidget* widget : std::initializer_list<QWidget*>{bold, italic, underline, colourButton(value.fontColor, chosen, ticking(own))})
    second->addWidget(widget);
  QObject::connect(family, &QFontComboBox::currentFontChanged, own, ticking(own));
  QObject::connect(size, &QSpinBox::valueChanged, own, ticking(own));
  for (QCheckBox* style : {bold, italic, underline}) QObject::connect(style, &QCheckBox::clicked, own, ticking(own));
  if (needs != nullptr) {
    QObject::connect(own, &QCheckBox::toggled, needs, [needs](bool on) { needs->setChecked(needs->isChecked() || on); });
    QObject::connect(needs, &QCheckBox::toggled, own, [own](bool on) { own->setChecked(own->isChecked() && on); });
  }
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
  return own;
}

}  // namespace orvanta
