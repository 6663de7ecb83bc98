// A form that lays itself out: a window of the desktop with real widgets, bound to the form's controls.
#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>

#include "platform/forms/form.h"
#include "platform/ports/core_gate.h"
#include "platform/qt/scale.h"

class QGridLayout;
class QTreeWidget;

namespace orvanta {

class DataWindow : public QWidget {
 public:
  DataWindow(forms::Form& form, CoreGate& gate, const Scale& scale);

  /// The form is gone: nothing reaches it from here on.
  void detach();
  void place();
  void showWanted(bool wanted);
  void follow(forms::Control& control, forms::Change change);
  void followForm(forms::Change change);
  void followFocus(forms::Control* control);
  /// Rows that wait to be shown are shown.
  void flush();
  QWidget* widgetOf(const forms::Control& control) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void build();
  QWidget* make(forms::Control& control, QWidget* parent);
  QWidget* makeText(forms::TextBox& box, QWidget* parent);
  QWidget* makeCombo(forms::Combo& combo, QWidget* parent);
  QWidget* makeList(forms::ListBox& list, QWidget* parent);
  QWidget* makeButton(forms::Button& button, QWidget* parent);
  QWidget* makeCheck(forms::CheckBox& check, QWidget* parent);
  QWidget* makeLabel(forms::Label& label, QWidget* parent);
  QGridLayout* gridOf(QWidget* owner, const forms::Control* panel);
  void watch(QWidget* widget, forms::Control& control);

  void showText(forms::Control& control);
  void showRows(forms::ListBox& list, QTreeWidget& view);
  void showSelection(forms::ListBox& list, QTreeWidget& view);
  void showVisibility(forms::Control& control);
  void showFrames();
  void userTyped(forms::Control& control, const QString& text);
  void userSelected(forms::ListBox& list);
  bool mouse(forms::Control& control, QEvent* event);
  /// Calls the core. The form may be gone when it comes back; the window goes when the last such call has come back.
  template <class Work>
  void enter(const Work& work) {
    if (form_ == nullptr || telling_) return;
    ++entered_;
    gate_.enter(work);
    if (--entered_ == 0 && form_ == nullptr) deleteLater();
  }
  QRect freeArea() const;
  /// The control's table has this hint for us.
  static bool has(const forms::Control& control, std::string_view hint) { return control.art.find(hint) != std::string::npos; }
  bool onScreen() const;

  forms::Form* form_;
  CoreGate& gate_;
  Scale deckScale_;  ///< of places
  Scale scale_;      ///< of sizes: as the deck's, as far as the window fits the screen
  std::map<const forms::Control*, QWidget*> widgets_;
  std::map<const QObject*, forms::Control*> controls_;  ///< of a widget and of its inner parts
  std::map<forms::ListBox*, bool> waiting_;             ///< lists whose rows are to be shown anew
  bool telling_ = false;                                ///< we change a widget: it is no user's doing
  bool wanted_ = false;
  int entered_ = 0;
};

/// The form's side. It may go in the midst of one of the window's events, so the window outlives it for a moment.
class DataView : public forms::FormView {
 public:
  DataView(forms::Form& form, CoreGate& gate, const Scale& scale) : window_(new DataWindow(form, gate, scale)) {}
  ~DataView() override;
  DataView(const DataView&) = delete;
  DataView& operator=(const DataView&) = delete;

  void show() override { window_->showWanted(true); }
  void hide() override { window_->showWanted(false); }
  void raise() override;
  void changed(forms::Control& control, forms::Change change) override { window_->follow(control, change); }
  void formChanged(forms::Change change) override { window_->followForm(change); }
  void refresh(forms::Control& /*control*/) override { window_->flush(); }
  void focusMoved(forms::Control* control) override { window_->followFocus(control); }
  void drag() override {}
  DataWindow* window() const { return window_; }

 private:
  QPointer<DataWindow> window_;
};

}  // namespace orvanta
