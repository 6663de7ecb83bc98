// What is pressed in a data window, and what only shows.
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

#include "platform/qt/data_bindings.h"
#include "platform/qt/to_qt.h"

namespace orvanta {

using forms::Form;
using forms::Kind;

namespace {

constexpr int kSmallKey = 30;  ///< design pixels
constexpr int kNumbers = 34;

class PanelBinding : public Binding {
 public:
  PanelBinding(FormRoad& road, forms::Panel& panel, QWidget& parent, double /*factor*/) : Binding(road, panel, widgetFor(panel, parent)) {}
  void panelMoved() override { showVisibility(); }

 private:
  static QWidget* widgetFor(const forms::Panel& panel, QWidget& parent) {
    return panel.caption.get().empty() ? new QWidget(&parent) : new QGroupBox(toQt(panel.caption), &parent);
  }
};

class LabelBinding : public Binding {
 public:
  LabelBinding(FormRoad& road, forms::Label& label, QWidget& parent, double factor)
      : LabelBinding(road, label, new QLabel(&parent), factor) {}
  void leadTo(QWidget& field) override { view_->setBuddy(&field); }

 private:
  LabelBinding(FormRoad& road, forms::Label& label, QLabel* view, double factor) : Binding(road, label, view), view_(view) {
    view->setTextFormat(Qt::PlainText);
    view->setText(toQt(label.caption));
    view->setWordWrap(hinted(label, "text"));
    view->setProperty("art", toQt(label.art));
    if (hinted(label, "number")) view->setFixedWidth(sized(kNumbers, factor));
    if (hinted(label, "right")) view->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    watch(*view);
  }
  void showText() override { view_->setText(toQt(control().caption)); }

  QLabel* view_;
};

class ButtonBinding : public Binding {
 public:
  ButtonBinding(FormRoad& road, forms::Button& button, QWidget& parent, double factor)
      : ButtonBinding(road, button, new QPushButton(toQt(button.caption), &parent), factor) {}

 protected:
  ButtonBinding(FormRoad& road, forms::Button& button, QPushButton* view, double factor)
      : Binding(road, button, view), button_(button), view_(view) {
    view->setAutoDefault(false);
    if (hinted(button, "small")) view->setFixedWidth(sized(kSmallKey, factor));
    watch(*view);
    QObject::connect(view, &QPushButton::clicked, this, [this] { clicked(); });
  }
  virtual void clicked() {
    road_.enter([this](Form& form) { form.press(button_); });
  }

 private:
  void showText() override { view_->setText(toQt(button_.caption)); }

  forms::Button& button_;
  QPushButton* view_;
};

/// The tab that shows has its key hidden: here it is the one that is pressed in.
class TabBinding : public ButtonBinding {
 public:
  TabBinding(FormRoad& road, forms::Button& button, QWidget& parent, double factor)
      : TabBinding(road, button, new QPushButton(toQt(button.caption), &parent), factor) {}
  void showVisibility() override { view_->setChecked(!control().visible); }

 private:
  TabBinding(FormRoad& road, forms::Button& button, QPushButton* view, double factor)
      : ButtonBinding(road, button, view, factor), view_(view) {
    view->setCheckable(true);
    view->setProperty("tab", true);
  }
  void clicked() override {
    // It shows its state, whatever the press would make of it.
    showVisibility();
    ButtonBinding::clicked();
  }

  QPushButton* view_;
};

/// It shows the control's value, whatever a press would make of it.
class TickBinding : public Binding {
 protected:
  TickBinding(FormRoad& road, forms::CheckBox& check, QAbstractButton* view) : Binding(road, check, view), check_(check), view_(view) {
    view->setChecked(check.value);
    watch(*view);
    QObject::connect(view, &QAbstractButton::clicked, this, [this] {
      showSelection();
      road_.enter([this](Form& form) { form.press(check_); });
    });
  }

 private:
  void showText() override { view_->setText(toQt(check_.caption)); }
  void showSelection() override { view_->setChecked(check_.value); }

  forms::CheckBox& check_;
  QAbstractButton* view_;
};

class CheckBinding : public TickBinding {
 public:
  CheckBinding(FormRoad& road, forms::CheckBox& check, QWidget& parent, double /*factor*/)
      : TickBinding(road, check, new QCheckBox(toQt(check.caption), &parent)) {}
};

class OptionBinding : public TickBinding {
 public:
  OptionBinding(FormRoad& road, forms::CheckBox& check, QWidget& parent, double /*factor*/)
      : TickBinding(road, check, widgetFor(check, parent)) {}

 private:
  static QRadioButton* widgetFor(const forms::CheckBox& check, QWidget& parent) {
    auto* view = new QRadioButton(toQt(check.caption), &parent);
    view->setAutoExclusive(false);
    return view;
  }
};

class ProgressBinding : public Binding {
 public:
  ProgressBinding(FormRoad& road, forms::Bar& bar, QWidget& parent, double /*factor*/)
      : ProgressBinding(road, bar, new QProgressBar(&parent)) {}

 private:
  ProgressBinding(FormRoad& road, forms::Bar& bar, QProgressBar* view) : Binding(road, bar, view), bar_(bar), view_(view) {
    view->setRange(0, 100);
    ProgressBinding::showText();
    ProgressBinding::showLook();
  }
  void showText() override {
    view_->setFormat(toQt(bar_.caption));
    view_->setTextVisible(!bar_.caption.get().empty());
  }
  void showLook() override { view_->setValue(bar_.floodPercent); }

  forms::Bar& bar_;
  QProgressBar* view_;
};

constexpr BindingRow kKeys[] = {
    {Kind::Panel, "", &made<PanelBinding, forms::Panel>},
    {Kind::Label, "", &made<LabelBinding, forms::Label>},
    {Kind::Button, "tab", &made<TabBinding, forms::Button>},
    {Kind::Button, "", &made<ButtonBinding, forms::Button>},
    {Kind::Check, "choice", &made<OptionBinding, forms::CheckBox>},
    {Kind::Check, "", &made<CheckBinding, forms::CheckBox>},
    {Kind::Bar, "", &made<ProgressBinding, forms::Bar>},
};

}  // namespace

std::span<const BindingRow> keyBindings() { return kKeys; }

}  // namespace orvanta
