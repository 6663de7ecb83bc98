// drag_source X Y FILE: a small window at X, Y from which the mouse drags a file, as out of a file manager. After the
// drop it prints what the other side made of it (copy, move, none), and ends when that side has all that it wants.
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <cstdio>

namespace {

class Source : public QWidget {
 public:
  explicit Source(const QString& file) : file_(file) {}

 protected:
  void mousePressEvent(QMouseEvent* /*event*/) override {
    auto* drag = new QDrag(this);
    auto* files = new QMimeData;
    files->setUrls({QUrl::fromLocalFile(file_)});
    drag->setMimeData(files);
    // It goes when the other side has all that it wants: the file's name is asked for after the drop too.
    QObject::connect(drag, &QObject::destroyed, qApp, &QApplication::quit);
    // A move is proposed, the file manager's habit within one disk: who takes it has the file deleted.
    const Qt::DropAction taken = drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    std::puts(taken == Qt::CopyAction ? "copy" : taken == Qt::MoveAction ? "move" : "none");
    constexpr int kPatience = 2000;  // milliseconds, for a side that never says that it is done
    QTimer::singleShot(taken == Qt::IgnoreAction ? 0 : kPatience, qApp, &QApplication::quit);
  }

 private:
  QString file_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList words = QApplication::arguments();
  if (words.size() != 4) return 2;
  Source source(words[3]);
  constexpr int kSide = 40;
  source.setGeometry(words[1].toInt(), words[2].toInt(), kSide, kSide);
  source.setWindowFlag(Qt::FramelessWindowHint);
  source.setWindowTitle(QStringLiteral("drag source"));
  source.show();
  return QApplication::exec();
}
