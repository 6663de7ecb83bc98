// The fields of a data window: lines, notes, combos and lists.
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>

#include "platform/qt/data_bindings.h"
#include "platform/qt/row_list.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

using forms::Form;
using forms::Kind;

namespace {

constexpr int kNotesHeight = 74;  ///< design pixels: three lines and a half
constexpr int kNarrow = 60;

class LineBinding : public Binding {
 public:
  LineBinding(FormRoad& road, forms::TextBox& box, QWidget& parent, double factor)
      : LineBinding(road, box, new QLineEdit(toQt(box.caption), &parent), factor) {}
  void focusGiven() override { view_->selectAll(); }
  bool fills() const override { return true; }

 protected:
  LineBinding(FormRoad& road, forms::TextBox& box, QLineEdit* view, double factor) : Binding(road, box, view), box_(box), view_(view) {
    if (hinted(box, "narrow")) view->setFixedWidth(sized(kNarrow, factor));
    watch(*view);
    QObject::connect(view, &QLineEdit::textChanged, this, [this](const QString& text) { typed(text); });
  }

 private:
  void showText() override {
    const QString text = toQt(box_.caption);
    if (view_->text() != text) view_->setText(text);
  }
  void showSelection() override {
    if (box_.allSelected) view_->selectAll();
  }
  bool hasOwnMenu() const override { return true; }

  forms::TextBox& box_;
  QLineEdit* view_;
};

class PasswordBinding : public LineBinding {
 public:
  PasswordBinding(FormRoad& road, forms::TextBox& box, QWidget& parent, double factor)
      : LineBinding(road, box, hiding(new QLineEdit(toQt(box.caption), &parent)), factor) {}

 private:
  static QLineEdit* hiding(QLineEdit* line) {
    line->setEchoMode(QLineEdit::Password);
    return line;
  }
};

class NotesBinding : public Binding {
 public:
  NotesBinding(FormRoad& road, forms::TextBox& box, QWidget& parent, double factor)
      : NotesBinding(road, box, new QPlainTextEdit(toQt(box.caption), &parent), factor) {}
  bool fills() const override { return true; }

 private:
  NotesBinding(FormRoad& road, forms::TextBox& box, QPlainTextEdit* view, double factor)
      : Binding(road, box, view), box_(box), view_(view) {
    view->setTabChangesFocus(true);
    view->setReadOnly(hinted(box, "fixed"));
    view->setFixedHeight(sized(kNotesHeight, factor));
    watch(*view);
    QObject::connect(view, &QPlainTextEdit::textChanged, this, [this] { typed(view_->toPlainText()); });
  }
  void showText() override {
    const QString text = toQt(box_.caption);
    if (view_->toPlainText() != text) view_->setPlainText(text);
  }
  void showSelection() override {
    if (box_.allSelected) view_->selectAll();
  }
  bool hasOwnMenu() const override { return true; }

  forms::TextBox& box_;
  QPlainTextEdit* view_;
};

class ComboBinding : public Binding {
 public:
  ComboBinding(FormRoad& road, forms::Combo& combo, QWidget& parent, double /*factor*/)
      : ComboBinding(road, combo, new QComboBox(&parent)) {}
  void focusGiven() override { view_->lineEdit()->selectAll(); }
  bool fills() const override { return true; }

 private:
  ComboBinding(FormRoad& road, forms::Combo& combo, QComboBox* view) : Binding(road, combo, view), combo_(combo), view_(view) {
    view->setEditable(true);
    view->setInsertPolicy(QComboBox::NoInsert);
    // What is typed is what is meant, not an item that starts like it.
    view->setCompleter(nullptr);
    view->setMinimumContentsLength(6);
    view->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    watch(*view);
    watch(*view->lineEdit());
    view->lineEdit()->setAccessibleName(toQt(combo.says));
    QObject::connect(view, &QComboBox::editTextChanged, this, [this](const QString& text) { typed(text); });
  }
  void showText() override {
    const QString text = toQt(combo_.caption);
    if (view_->currentText() != text) view_->setEditText(text);
  }
  void showRows() override {
    road_.tell([this] {
      view_->clear();
      for (const std::string& item : combo_.items()) view_->addItem(toQt(item));
      view_->setEditText(toQt(combo_.caption));
    });
  }
  bool hasOwnMenu() const override { return true; }
  /// One that the wheel happens to pass over keeps its value.
  bool eventFilter(QObject* watched, QEvent* event) override {
    return (event->type() == QEvent::Wheel && road_.form() != nullptr) || Binding::eventFilter(watched, event);
  }

  forms::Combo& combo_;
  QComboBox* view_;
};

/// Rows come many at a time, so they are shown when the program is next idle.
class ListBinding : public Binding {
 public:
  ListBinding(FormRoad& road, forms::ListBox& list, QWidget& parent, double factor)
      : ListBinding(road, list, new RowList(&parent, hinted(list, "drag")), factor) {}
  bool fills() const override { return true; }

  void flush() override {
    if (!std::exchange(waits_, false) || road_.form() == nullptr) return;
    road_.tell([this] {
      if (std::exchange(rowsWait_, false)) fill();
      select();
    });
  }

 private:
  ListBinding(FormRoad& road, forms::ListBox& list, RowList* view, double factor)
      : Binding(road, list, view), list_(list), view_(view), factor_(factor) {
    dressRows(*view, list, factor);
    watch(*view);
    watch(*view->viewport());
    QObject::connect(view, &QTreeWidget::itemClicked, this, [this] { chosen(); });
    // The keyboard's ways; those of the mouse end with a click, or with a release on another row or none.
    QObject::connect(view, &QTreeWidget::itemSelectionChanged, this, [this] {
      if (QApplication::mouseButtons() == Qt::NoButton) chosen();
    });
    QObject::connect(view, &QTreeWidget::itemDoubleClicked, this,
                     [this] { road_.enter([this](Form& form) { form.doubleClick(&list_); }); });
    view->onRelease = [this] { settle(); };
    view->onDrag = [this] {
      settle();
      road_.enter([](Form& form) { form.mouseUp({forms::MouseButton::Left, -1, -1}); });
    };
    view->onMove = [this](int from, int to) { road_.enter([&](Form& form) { form.userMovedRow(list_, from, to); }); };
  }

  /// What is highlighted is what the form knows; while it has changes of its own to show, those count.
  void settle() {
    if (waits_ || road_.form() == nullptr) return;
    const QTreeWidgetItem* current = view_->currentItem();
    bool differs = current != nullptr && current->isSelected() && view_->currentIndex().row() != list_.listIndex();
    for (int row = 0; row < view_->topLevelItemCount(); ++row) differs |= view_->topLevelItem(row)->isSelected() != list_.selected(row);
    if (differs) chosen();
  }

  void chosen() {
    if (road_.telling()) return;
    std::vector<int> selection;
    for (QTreeWidgetItem* item : view_->selectedItems()) selection.push_back(view_->indexOfTopLevelItem(item));
    road_.enter([&](Form& form) { form.userRow(list_, view_->indexOfTopLevelItem(view_->currentItem()), selection); });
  }

  void wait() {
    if (!std::exchange(waits_, true)) QTimer::singleShot(0, this, [this] { flush(); });
  }
  void showRows() override {
    rowsWait_ = true;
    wait();
  }
  void showSelection() override { wait(); }
  void showLook() override {
    dressRows(*view_, list_, factor_);
    markRow(*view_, list_.markedRow);
  }
  bool tellsPresses() const override { return true; }

  void fill() {
    std::vector<std::string> rows;
    rows.reserve(static_cast<size_t>(list_.count()));
    for (int row = 0; row < list_.count(); ++row) rows.push_back(list_.row(row));
    fillRows(*view_, rows);
    markRow(*view_, list_.markedRow);
  }
  void select() {
    view_->setCurrentItem(view_->topLevelItem(list_.listIndex()), 0, QItemSelectionModel::NoUpdate);
    for (int row = 0; row < list_.count(); ++row) {
      if (QTreeWidgetItem* item = view_->topLevelItem(row)) item->setSelected(list_.selected(row));
    }
    if (list_.listIndex() >= 0) view_->scrollToItem(view_->topLevelItem(list_.listIndex()));
  }

  forms::ListBox& list_;
  RowList* view_;
  double factor_;
  bool waits_ = false;
  bool rowsWait_ = false;
};

constexpr BindingRow kFields[] = {
    {Kind::TextBox, "password", &made<PasswordBinding, forms::TextBox>},
    {Kind::TextBox, "notes", &made<NotesBinding, forms::TextBox>},
    {Kind::TextBox, "", &made<LineBinding, forms::TextBox>},
    {Kind::Combo, "", &made<ComboBinding, forms::Combo>},
    {Kind::List, "", &made<ListBinding, forms::ListBox>},
};

}  // namespace

std::span<const BindingRow> fieldBindings() { return kFields; }

}  // namespace orvanta
