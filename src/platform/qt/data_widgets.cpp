// The widgets of a data window, one for each control, in the grids that their cells tell of.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

#include "platform/qt/accessible.h"
#include "platform/qt/data_window.h"
#include "platform/qt/row_list.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

namespace {

constexpr int kNotesHeight = 74;  ///< design pixels: three lines and a half

void name(QWidget& widget, const forms::Control& control) {
  if (!control.says.empty()) widget.setAccessibleName(toQt(control.says));
  widget.setAccessibleDescription(toQt(testNames() ? control.fullName() : control.toolTip.get()));
  widget.setObjectName(toQt(control.fullName()));
  widget.setToolTip(plainTip(control.toolTip));
}

}  // namespace

QGridLayout* DataWindow::gridOf(QWidget* owner, const forms::Control* panel) {
  auto* grid = static_cast<QGridLayout*>(owner->layout());
  if (grid == nullptr) {
    grid = new QGridLayout(owner);
    const int gap = static_cast<int>(6 * scale_.factor);
    grid->setSpacing(gap);
    if (panel != nullptr && !has(*panel, "frame")) grid->setContentsMargins(0, 0, 0, 0);
  }
  return grid;
}

void DataWindow::build() {
  // Panels first: what lies on them needs them.
  std::vector<forms::Control*> order(form_->controls());
  std::stable_partition(order.begin(), order.end(), [](const forms::Control* control) { return control->kind() == forms::Kind::Panel; });
  for (forms::Control* control : order) {
    QWidget* owner = control->parent == nullptr ? this : widgets_.at(control->parent);
    QWidget* widget = make(*control, owner);
    widgets_[control] = widget;
    name(*widget, *control);
    QGridLayout* grid = gridOf(owner, control->parent);
    const forms::Cell& cell = control->cell;
    const bool small = has(*control, "narrow") || has(*control, "small");
    grid->addWidget(widget, cell.row, cell.column, cell.rows, cell.columns, small ? Qt::AlignLeft : Qt::Alignment());
    if (has(*control, "stretch")) grid->setRowStretch(cell.row, 1);
    // Fields take the room, captions what they need.
    const bool field =
        control->kind() == forms::Kind::TextBox || control->kind() == forms::Kind::Combo || control->kind() == forms::Kind::List;
    if (field && cell.columns == 1 && !small) grid->setColumnStretch(cell.column, 1);
    if (has(*control, "wide")) grid->setColumnStretch(cell.column, 1);
    if (control->parent == nullptr && has(*control, "frame")) grid->setRowStretch(cell.row, 1);
    showVisibility(*control);
  }
  // A caption with a letter of its own leads to the field behind it.
  for (size_t i = 0; i + 1 < form_->controls().size(); ++i) {
    const forms::Control& caption = *form_->controls()[i];
    if (has(caption, "buddy")) static_cast<QLabel*>(widgets_.at(&caption))->setBuddy(widgets_.at(form_->controls()[i + 1]));
  }
  // Panels whose children keep to the left or the top have an empty last column or row that takes the rest.
  constexpr int kLast = 9;
  for (const auto& [control, widget] : widgets_) {
    if (control->kind() != forms::Kind::Panel) continue;
    if (has(*control, "left")) gridOf(widget, control)->setColumnStretch(kLast, 1);
    if (has(*control, "top")) gridOf(widget, control)->setRowStretch(kLast, 1);
  }
}

QWidget* DataWindow::make(forms::Control& control, QWidget* parent) {
  switch (control.kind()) {
    case forms::Kind::TextBox: return makeText(static_cast<forms::TextBox&>(control), parent);
    case forms::Kind::Combo: return makeCombo(static_cast<forms::Combo&>(control), parent);
    case forms::Kind::List: return makeList(static_cast<forms::ListBox&>(control), parent);
    case forms::Kind::Check: return makeCheck(static_cast<forms::CheckBox&>(control), parent);
    case forms::Kind::Button: return makeButton(static_cast<forms::Button&>(control), parent);
    case forms::Kind::Label: return makeLabel(static_cast<forms::Label&>(control), parent);
    default: {
      if (control.caption.get().empty()) return new QWidget(parent);
      return new QGroupBox(toQt(control.caption), parent);
    }
  }
}

void DataWindow::watch(QWidget* widget, forms::Control& control) {
  controls_[widget] = &control;
  widget->installEventFilter(this);
}

QWidget* DataWindow::makeText(forms::TextBox& box, QWidget* parent) {
  if (!has(box, "notes")) {
    auto* line = new QLineEdit(toQt(box.caption), parent);
    watch(line, box);
    if (has(box, "password")) line->setEchoMode(QLineEdit::Password);
    if (has(box, "narrow")) line->setFixedWidth(static_cast<int>(60 * scale_.factor));
    QObject::connect(line, &QLineEdit::textChanged, this, [this, &box](const QString& text) { userTyped(box, text); });
    return line;
  }
  auto* notes = new QPlainTextEdit(toQt(box.caption), parent);
  notes->setTabChangesFocus(true);
  notes->setReadOnly(has(box, "fixed"));
  notes->setFixedHeight(static_cast<int>(kNotesHeight * scale_.factor));
  watch(notes, box);
  QObject::connect(notes, &QPlainTextEdit::textChanged, this, [this, &box, notes] { userTyped(box, notes->toPlainText()); });
  return notes;
}

QWidget* DataWindow::makeCombo(forms::Combo& combo, QWidget* parent) {
  auto* view = new QComboBox(parent);
  view->setEditable(true);
  view->setInsertPolicy(QComboBox::NoInsert);
  // What is typed is what is meant, not an item that starts like it.
  view->setCompleter(nullptr);
  view->setMinimumContentsLength(6);
  view->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  watch(view, combo);
  watch(view->lineEdit(), combo);
  view->lineEdit()->setAccessibleName(toQt(combo.says));
  QObject::connect(view, &QComboBox::editTextChanged, this, [this, &combo](const QString& text) { userTyped(combo, text); });
  return view;
}

QWidget* DataWindow::makeList(forms::ListBox& list, QWidget* parent) {
  auto* view = new RowList(parent, has(list, "drag"));
  dressRows(*view, list, scale_.factor);
  watch(view, list);
  controls_[view->viewport()] = &list;
  view->viewport()->installEventFilter(this);
  const auto selected = [this, &list] { userSelected(list); };
  QObject::connect(view, &QTreeWidget::itemClicked, this, selected);
  // The keyboard's ways; those of the mouse end with a click.
  QObject::connect(view, &QTreeWidget::itemSelectionChanged, this, [this, selected] {
    if (!telling_ && QApplication::mouseButtons() == Qt::NoButton) selected();
  });
  QObject::connect(view, &QTreeWidget::itemDoubleClicked, this, [this, &list] { enter([&] { form_->doubleClick(&list); }); });
  view->onDrag = [this] { enter([&] { form_->mouseUp({forms::MouseButton::Left, -1, -1, false}); }); };
  view->onMove = [this, &list](int from, int to) { enter([&] { form_->userMovedRow(list, from, to); }); };
  return view;
}

QWidget* DataWindow::makeButton(forms::Button& button, QWidget* parent) {
  auto* key = new QPushButton(toQt(button.caption), parent);
  key->setAutoDefault(false);
  if (has(button, "tab")) {
    key->setCheckable(true);
    key->setProperty("tab", true);
  }
  if (has(button, "small")) key->setFixedWidth(static_cast<int>(30 * scale_.factor));
  watch(key, button);
  QObject::connect(key, &QPushButton::clicked, this, [this, &button, key] {
    // A tab's key shows its state, whatever the press would make of it.
    if (key->isCheckable()) key->setChecked(!button.visible);
    enter([&] { form_->press(button); });
  });
  return key;
}

QWidget* DataWindow::makeCheck(forms::CheckBox& check, QWidget* parent) {
  QAbstractButton* view = nullptr;
  if (has(check, "choice")) {
    view = new QRadioButton(toQt(check.caption), parent);
    view->setAutoExclusive(false);
  } else {
    view = new QCheckBox(toQt(check.caption), parent);
  }
  view->setChecked(check.value);
  watch(view, check);
  QObject::connect(view, &QAbstractButton::clicked, this, [this, &check, view] {
    // It shows the control's value, whatever the press would make of it.
    view->setChecked(check.value);
    enter([&] { form_->press(check); });
  });
  return view;
}

QWidget* DataWindow::makeLabel(forms::Label& label, QWidget* parent) {
  auto* view = new QLabel(parent);
  view->setTextFormat(Qt::PlainText);
  view->setText(toQt(label.caption));
  view->setWordWrap(has(label, "text"));
  view->setProperty("art", toQt(label.art));
  if (has(label, "number")) view->setFixedWidth(static_cast<int>(34 * scale_.factor));
  if (has(label, "right")) view->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  watch(view, label);
  return view;
}

}  // namespace orvanta
