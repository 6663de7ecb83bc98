// The controls of a data window in the grids that their cells tell of.
#include <QGridLayout>
#include <algorithm>
#include <vector>

#include "platform/qt/data_bindings.h"
#include "platform/qt/data_window.h"

namespace orvanta {

std::unique_ptr<Binding> bind(FormRoad& road, forms::Control& control, QWidget& parent, double factor) {
  for (const auto rows : {fieldBindings(), keyBindings()}) {
    for (const BindingRow& row : rows) {
      if (row.kind == control.kind() && hinted(control, row.hint)) return row.make(road, control, parent, factor);
    }
  }
  return nullptr;
}

QGridLayout* DataWindow::gridOf(QWidget* owner, const forms::Control* panel) {
  auto* grid = static_cast<QGridLayout*>(owner->layout());
  if (grid == nullptr) {
    grid = new QGridLayout(owner);
    const int gap = static_cast<int>(6 * scale_.factor);
    grid->setSpacing(gap);
    if (panel != nullptr && !hinted(*panel, "frame")) grid->setContentsMargins(0, 0, 0, 0);
  }
  return grid;
}

void DataWindow::build() {
  // Panels first: what lies on them needs them.
  std::vector<forms::Control*> order(road_.form()->controls());
  std::stable_partition(order.begin(), order.end(), [](const forms::Control* control) { return control->kind() == forms::Kind::Panel; });
  for (forms::Control* control : order) {
    QWidget* owner = control->parent == nullptr ? this : widgetOf(*control->parent);
    auto binding = bind(road_, *control, *owner, scale_.factor);
    if (binding == nullptr) continue;
    lay(*binding);
    binding->showVisibility();
    bindings_[control] = std::move(binding);
  }
  leadCaptions();
  leaveRoom();
}

void DataWindow::lay(const Binding& binding) {
  const forms::Control& control = binding.control();
  const forms::Cell& cell = control.cell;
  QGridLayout* grid = gridOf(binding.widget().parentWidget(), control.parent);
  const bool small = hinted(control, "narrow") || hinted(control, "small");
  grid->addWidget(&binding.widget(), cell.row, cell.column, cell.rows, cell.columns, small ? Qt::AlignLeft : Qt::Alignment());
  const bool frame = control.parent == nullptr && hinted(control, "frame");
  if (frame || hinted(control, "stretch")) grid->setRowStretch(cell.row, hinted(control, "tall") ? 3 : 1);
  // Fields take the room, captions what they need.
  const bool field = binding.fills() && cell.columns == 1 && !small;
  if (field || hinted(control, "wide")) grid->setColumnStretch(cell.column, 1);
}

void DataWindow::leadCaptions() {
  const auto& controls = road_.form()->controls();
  for (size_t i = 0; i + 1 < controls.size(); ++i) {
    if (hinted(*controls[i], "buddy")) bindings_.at(controls[i])->leadTo(*widgetOf(*controls[i + 1]));
  }
}

/// Panels whose children keep to the left or the top have an empty last column or row that takes the rest.
void DataWindow::leaveRoom() {
  constexpr int kLast = 9;
  for (const auto& [control, binding] : bindings_) {
    if (control->kind() != forms::Kind::Panel) continue;
    if (hinted(*control, "left")) gridOf(&binding->widget(), control)->setColumnStretch(kLast, 1);
    if (hinted(*control, "top")) gridOf(&binding->widget(), control)->setRowStretch(kLast, 1);
  }
}

}  // namespace orvanta
