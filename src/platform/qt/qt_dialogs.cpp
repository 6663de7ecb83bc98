// Each box runs a loop of its own; when the process ended in it, control does not come back.
#include "platform/qt/qt_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

#include "platform/ports/screen.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

namespace {

QMessageBox::Icon iconOf(BoxStyle style) {
  switch (style) {
    case BoxStyle::Critical: return QMessageBox::Critical;
    case BoxStyle::Warning: return QMessageBox::Warning;
    default: return QMessageBox::Information;
  }
}

/// A parent only where one shows: a box over a hidden window would be lost.
QWidget* owner() {
  QWidget* active = QApplication::activeWindow();
  return active != nullptr && active->isVisible() ? active : nullptr;
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

}  // namespace

void QtDialogs::message(BoxStyle style, const std::string& title, const std::string& text) {
  screen_.setPointer(Pointer::Normal);
  QMessageBox box(iconOf(style), toQt(title), toQt(text), QMessageBox::Ok, owner());
  box.setTextFormat(Qt::PlainText);
  box.exec();
  gate_.leaveIfEnded();
}

bool QtDialogs::askYesNo(const std::string& title, const std::string& text) {
  screen_.setPointer(Pointer::Normal);
  QMessageBox box(QMessageBox::Question, toQt(title), toQt(text), QMessageBox::Yes | QMessageBox::No, owner());
  box.setTextFormat(Qt::PlainText);
  const bool yes = box.exec() == QMessageBox::Yes;
  gate_.leaveIfEnded();
  return yes;
}

std::optional<std::string> QtDialogs::askText(const std::string& title, const std::string& prompt, const std::string& proposed) {
  screen_.setPointer(Pointer::Normal);
  bool ok = false;
  const QString text = QInputDialog::getText(owner(), toQt(title), toQt(prompt), QLineEdit::Normal, toQt(proposed), &ok);
  gate_.leaveIfEnded();
  return ok ? std::optional(text.toStdString()) : std::nullopt;
}

std::optional<std::string> QtDialogs::askFile(const FileQuestion& question, bool save) {
  screen_.setPointer(Pointer::Normal);
  QFileDialog dialog(owner(), toQt(question.title), toQt(question.folder), filterOf(question.filter));
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (!question.name.empty()) dialog.selectFile(toQt(question.name));
  const bool chosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
  gate_.leaveIfEnded();
  return chosen ? std::optional(dialog.selectedFiles().front().toStdString()) : std::nullopt;
}

std::optional<std::string> QtDialogs::askOpenFile(const FileQuestion& question) { return askFile(question, false); }
std::optional<std::string> QtDialogs::askSaveFile(const FileQuestion& question) { return askFile(question, true); }

}  // namespace orvanta
