// The setup program's window: every setting that the deck reads, on a few pages.
#pragma once

#include <QDialog>
#include <functional>
#include <vector>

#include "state/settings.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QWidget;

namespace orvanta {

class SettingsWindow : public QDialog {
 public:
  /// Shows `settings`; they take what the user chose when the window was accepted. The drive is shown where it is theirs.
  SettingsWindow(Settings& settings, bool withDrive);

 private:
  QWidget* drivePage(bool withDrive);
  QWidget* playPage();
  QWidget* looksPage();
  QWidget* displayPage();
  QWidget* fontsPage();
  QWidget* coloursPage();
  QWidget* programsPage();

  enum class Pick { Folder, File };
  /// What is done when the user has chosen something in a row: without its tick it would do nothing.
  using Chosen = std::function<void()>;
  void text(QFormLayout* page, const QString& label, std::string& value, const QString& tip = {});
  void path(QFormLayout* page, const QString& label, std::string& value, Pick pick, const QString& tip = {}, const Chosen& then = {});
  QCheckBox* check(QFormLayout* page, const QString& label, int16_t& value, bool inverted = false);
  void number(QFormLayout* page, const QString& label, int16_t& value, int least, int most, int usual, const QString& unit);
  QComboBox* choice(QFormLayout* page, const QString& label, int16_t& value, const std::vector<std::pair<int, QString>>& choices);
  void colour(QFormLayout* page, const QString& label, Colour& value, const Chosen& then = {});
  /// A colour that the deck has one of its own for; `zeroIsDesigned` when 0 leaves it at that.
  void ownColour(QFormLayout* page, const QString& label, Colour& value, Colour designed, bool zeroIsDesigned);
  /// The box that says whether the font is the user's own; `needs` is one that has to be ticked with it.
  QCheckBox* font(QFormLayout* page, const QString& label, FontGroup& value, QCheckBox* needs = nullptr);
  void tellOfPictures();

  Settings& settings_;
  std::vector<std::function<void()>> takers_;  ///< each writes one field back
};

}  // namespace orvanta
