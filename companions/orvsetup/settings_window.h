// The setup program's window: every setting that the deck reads, on a few pages.
#pragma once

#include <QDialog>
#include <functional>
#include <vector>

#include "state/settings.h"

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
  void text(QFormLayout* page, const QString& label, std::string& value, const QString& tip = {});
  void path(QFormLayout* page, const QString& label, std::string& value, Pick pick, const QString& tip = {});
  void check(QFormLayout* page, const QString& label, int16_t& value, bool inverted = false);
  void number(QFormLayout* page, const QString& label, int16_t& value, int least, int most, int usual, const QString& unit);
  void choice(QFormLayout* page, const QString& label, int16_t& value, const std::vector<std::pair<int, QString>>& choices);
  void colour(QFormLayout* page, const QString& label, Colour& value);
  void font(QFormLayout* page, const QString& label, FontGroup& value);

  Settings& settings_;
  std::vector<std::function<void()>> takers_;  ///< each writes one field back
};

}  // namespace orvanta
