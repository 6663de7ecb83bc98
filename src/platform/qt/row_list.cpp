// A row without a TAB lies across all columns.
#include "platform/qt/row_list.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QMouseEvent>
#include <algorithm>

#include "platform/qt/to_qt.h"

namespace orvanta {

namespace {

constexpr int kColumns = 3;

QString colourName(Colour colour) {
  return QStringLiteral("#%1%2%3")
      .arg(colour & 0xFFU, 2, 16, QLatin1Char('0'))
      .arg(colour >> 8U & 0xFFU, 2, 16, QLatin1Char('0'))
      .arg(colour >> 16U & 0xFFU, 2, 16, QLatin1Char('0'));
}

}  // namespace

RowList::RowList(QWidget* parent, bool draggable) : QTreeWidget(parent) {
  setHeaderHidden(true);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setColumnCount(kColumns);
  header()->setStretchLastSection(false);
  header()->setMinimumSectionSize(0);
  header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  header()->setSectionResizeMode(1, QHeaderView::Stretch);
  header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
  if (!draggable) return;
  setDragDropMode(QAbstractItemView::InternalMove);
  setDefaultDropAction(Qt::MoveAction);
}

void RowList::mouseReleaseEvent(QMouseEvent* event) {
  QTreeWidget::mouseReleaseEvent(event);
  if (onRelease) onRelease();
}

void RowList::startDrag(Qt::DropActions actions) {
  if (onDrag) onDrag();
  QTreeWidget::startDrag(actions);
}

void RowList::dropEvent(QDropEvent* event) {
  const int from = indexOfTopLevelItem(currentItem());
  const QModelIndex over = indexAt(event->position().toPoint());
  int to = over.isValid() ? over.row() : topLevelItemCount();
  if (dropIndicatorPosition() == QAbstractItemView::BelowItem) ++to;
  // Taken out of its place first, so what lies behind moves up by one.
  if (to > from) --to;
  event->setDropAction(Qt::IgnoreAction);
  event->accept();
  if (from >= 0 && to != from && onMove) onMove(from, std::min(to, topLevelItemCount() - 1));
}

void fillRows(QTreeWidget& view, const std::vector<std::string>& rows) {
  const int count = static_cast<int>(rows.size());
  while (view.topLevelItemCount() > count) delete view.takeTopLevelItem(count);
  while (view.topLevelItemCount() < count) {
    auto* item = new QTreeWidgetItem;
    item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);
    view.addTopLevelItem(item);
  }
  for (int row = 0; row < count; ++row) {
    QTreeWidgetItem& item = *view.topLevelItem(row);
    QString shown = toQt(rows[static_cast<size_t>(row)]);
    // What stands behind a long gap is for the program.
    static const QString kGap(40, QLatin1Char(' '));
    if (const auto gap = shown.indexOf(kGap); gap > 0) shown.truncate(gap);
    const QStringList parts = shown.split(QLatin1Char('\t'));
    item.setFirstColumnSpanned(parts.size() == 1);
    for (int column = 0; column < kColumns; ++column) {
      const QString text = column < parts.size() ? parts[column] : QString();
      if (item.text(column) != text) item.setText(column, text);
      item.setTextAlignment(column, column == 2 ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
    }
  }
}

void markRow(QTreeWidget& view, int row) {
  const QColor amber(0xFF, 0xC8, 0x50);
  for (int i = 0; i < view.topLevelItemCount(); ++i) {
    QTreeWidgetItem& item = *view.topLevelItem(i);
    for (int column = 0; column < kColumns; ++column) {
      item.setData(column, Qt::ForegroundRole, i == row ? QVariant(QBrush(amber)) : QVariant());
      QFont font = view.font();
      font.setBold(true);
      item.setData(column, Qt::FontRole, i == row ? QVariant(font) : QVariant());
    }
    item.setData(0, Qt::AccessibleDescriptionRole, i == row ? QVariant(QStringLiteral("plays")) : QVariant());
  }
}

void dressRows(QTreeWidget& view, const forms::ListBox& list, double factor) {
  view.setSelectionMode(list.multiSelect ? QAbstractItemView::ExtendedSelection : QAbstractItemView::SingleSelection);
  const forms::Font& font = list.font;
  QString style;
  if (!font.family.empty()) {
    style += QStringLiteral("font-family: \"%1\"; font-size: %2px; font-weight: %3; font-style: %4; text-decoration: %5;")
                 .arg(toQt(font.family).remove(QLatin1Char('"')))
                 .arg(static_cast<int>(font.points * 96 / 72 * factor))
                 .arg(font.bold ? QStringLiteral("bold") : QStringLiteral("normal"),
                      font.italic ? QStringLiteral("italic") : QStringLiteral("normal"),
                      font.underline ? QStringLiteral("underline") : QStringLiteral("none"));
    style += QStringLiteral("color: %1;").arg(colourName(list.foreColor));
  }
  if (list.backColor != colours::kBlack) style += QStringLiteral("background: %1;").arg(colourName(list.backColor));
  view.setStyleSheet(style.isEmpty() ? QString() : QStringLiteral("QTreeWidget { %1 }").arg(style));
}

}  // namespace orvanta
