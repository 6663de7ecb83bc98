// Each box runs a loop of its own; when the process ended in it, control does not come back. No box has a parent: its
// window may go while it stands.
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/icons.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "platform/ports/screen.h"
#include "platform/qt/keyboard_holder.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

namespace {

QMessageBox::Icon iconOf(BoxStyle style) {
  switch (style) {
    case BoxStyle::Critical: return QMessageBox::Critical;
    case BoxStyle::Warning: return QMessageBox::Warning;
    case BoxStyle::Question: return QMessageBox::Question;
    default: return QMessageBox::Information;
  }
}

/// "Words|*.a;*.b|More|*.c" as Qt's "Words (*.a *.b);;More (*.c)".
QString filterOf(const std::string& filter) {
  const QStringList parts = toQt(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString words = parts[i];
    const qsizetype bracket = words.indexOf(QStringLiteral(" ("));
    if (bracket > 0) words.truncate(bracket);
    filters.append(words + QStringLiteral(" (") + QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' ')) + QLatin1Char(')'));
  }
  return filters.join(QStringLiteral(";;"));
}

/// As near as the screen lets it.
void centre(QDialog& box, QPoint middle, const QRect& screen) {
  QRect place = box.frameGeometry();
  place.moveCenter(middle);
  box.move(std::max(screen.left(), std::min(place.left(), screen.right() + 1 - place.width())),
           std::max(screen.top(), std::min(place.top(), screen.bottom() + 1 - place.height())));
}

/// Over the middle of the window in use, and kept above it by the window manager, which forgets a window that goes.
void putOver(QDialog& box, const QWidget* window) {
  if (window == nullptr || !window->isVisible()) return;
  box.adjustSize();
  box.winId();
  if (box.windowHandle() != nullptr) box.windowHandle()->setTransientParent(window->windowHandle());
  const QPoint middle = window->frameGeometry().center();
  const QRect screen = window->screen()->availableGeometry();
  centre(box, middle, screen);
  // A message breaks its lines when it is shown, and is as wide as a long text until then.
  QTimer::singleShot(0, &box, [&box, middle, screen] { centre(box, middle, screen); });
}

}  // namespace

int QtDialogs::run(QDialog& box) {
  giveWindowIcon();
  screen_.setPointer(Pointer::Normal);
  box.setWindowModality(Qt::ApplicationModal);
  putOver(box, QApplication::activeWindow());
  const bool ours = keyboardIsOurs();
  ++open_;
  const int answer = box.exec();
  --open_;
  gate_.leaveIfEnded();
  if (ours) giveKeyboardBack();
  return answer;
}

void QtDialogs::message(BoxStyle style, const std::string& title, const std::string& text) {
  QMessageBox box(iconOf(style), toQt(title), toQt(text), QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  run(box);
}

bool QtDialogs::askYesNo(BoxStyle style, const std::string& title, const std::string& text) {
  QMessageBox box(iconOf(style), toQt(title), toQt(text), QMessageBox::Yes | QMessageBox::No);
  box.setTextFormat(Qt::PlainText);
  return run(box) == QMessageBox::Yes;
}

bool QtDialogs::confirm(const std::string& title, const std::string& text) {
  QMessageBox box(QMessageBox::Warning, toQt(title), toQt(text), QMessageBox::Yes | QMessageBox::No);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::No);
  return run(box) == QMessageBox::Yes;
}

std::optional<std::string> QtDialogs::askText(const std::string& title, const std::string& prompt, const std::string& proposed) {
  QInputDialog box;
  box.setWindowTitle(toQt(title));
  box.setLabelText(toQt(prompt));
  box.setTextValue(toQt(proposed));
  return run(box) == QDialog::Accepted ? std::optional(box.textValue().toStdString()) : std::nullopt;
}

std::optional<std::string> QtDialogs::askFile(const FileQuestion& question, bool save) {
  QFileDialog dialog(nullptr, toQt(question.title), toQt(question.folder), filterOf(question.filter));
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // The dialog takes names in double quotes for a list of them.
  if (!question.name.empty()) dialog.selectFile(toQt(question.name).replace(QLatin1Char('"'), QLatin1Char('\'')));
  const bool chosen = run(dialog) == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
  return chosen ? std::optional(dialog.selectedFiles().front().toStdString()) : std::nullopt;
}

void QtDialogs::raiseOpen() {
  QWidget* box = QApplication::activeModalWidget();
  if (box == nullptr) return;
  box->raise();
  box->activateWindow();
}

std::optional<std::string> QtDialogs::askOpenFile(const FileQuestion& question) { return askFile(question, false); }
std::optional<std::string> QtDialogs::askSaveFile(const FileQuestion& question) { return askFile(question, true); }

}  // namespace orvanta
