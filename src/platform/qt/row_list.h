// Rows of text with columns parted by TABs.
#pragma once

#include <QTreeWidget>
#include <functional>
#include <string>
#include <vector>

#include "platform/forms/control.h"

namespace orvanta {

class RowList : public QTreeWidget {
 public:
  RowList(QWidget* parent, bool draggable);
  /// A row was dragged to another place; the list itself leaves it where it was.
  std::function<void(int from, int to)> onMove;
  /// A drag begins: the system keeps the release of the mouse to itself.
  std::function<void()> onDrag;
  /// A press has ended, wherever that was, and the selection stands.
  std::function<void()> onRelease;

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void startDrag(Qt::DropActions actions) override;
  void dropEvent(QDropEvent* event) override;
};

void fillRows(QTreeWidget& view, const std::vector<std::string>& rows);

/// One row stands out; -1 for none.
void markRow(QTreeWidget& view, int row);

/// Selection mode, font and colours of the control's.
void dressRows(QTreeWidget& view, const forms::ListBox& list, double factor);

}  // namespace orvanta
