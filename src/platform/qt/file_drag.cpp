// The one reading of a drag, and what is answered to it.
#include "platform/qt/file_drag.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace orvanta {

namespace {

/// Of several files that are dragged at once the sheet, else the first; "" for none of this machine.
std::string fileOf(const QMimeData& data) {
  if (!data.hasUrls()) return {};
  const auto urls = data.urls();
  const auto sheet = std::find_if(urls.begin(), urls.end(),
                                  [](const QUrl& url) { return url.path().endsWith(QLatin1String(".cue"), Qt::CaseInsensitive); });
  const auto chosen = sheet != urls.end() ? sheet : urls.begin();
  return chosen == urls.end() ? std::string() : chosen->toLocalFile().toStdString();
}

}  // namespace

FileDrag::FileDrag(QWidget& window, double factor, std::function<bool(const std::string&)> used)
    : QObject(&window), window_(window), used_(std::move(used)), rim_(new Rim(window, factor)) {
  window.setAcceptDrops(true);
  window.installEventFilter(this);
}

void FileDrag::enters(QDropEvent& event) {
  file_ = fileOf(*event.mimeData());
  known_ = true;
  answer(event);
  rim_->setGeometry(window_.rect());
  rim_->raise();
  rim_->setVisible(event.isAccepted() && used_(file_));
}

/// The first drag after one whose program has died comes without entering: to Qt that one has never left.
void FileDrag::moves(QDropEvent& event) { known_ ? answer(event) : enters(event); }

/// The file stays its owner's: a drop is never taken as a move, which would let the source delete it.
void FileDrag::answer(QDropEvent& event) const {
  const bool taken = !file_.empty() && event.possibleActions().testFlag(Qt::CopyAction);
  event.setDropAction(taken ? Qt::CopyAction : Qt::IgnoreAction);
  event.setAccepted(taken);
}

void FileDrag::leaves() {
  rim_->hide();
  file_.clear();
  known_ = false;
}

/// A program that ends or hangs with its drop has said before what it is. Only where the mouse's coming was told before
/// the drop that let it go is it asked again.
std::string FileDrag::falls(QDropEvent& event) {
  moves(event);
  std::string file = event.isAccepted() ? std::exchange(file_, {}) : std::string();
  leaves();
  return file;
}

bool FileDrag::eventFilter(QObject* /*window*/, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::Enter || type == QEvent::MouseButtonPress || type == QEvent::KeyPress) leaves();
  return false;
}

}  // namespace orvanta
